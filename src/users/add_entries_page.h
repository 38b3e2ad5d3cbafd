#pragma once

#include "controls/page_frame.h"
#include "store/user_records.h"

#include <QLabel>

#include <array>

class BallFields;
class Card;
class DayBoxes;
class PageSwitch;
class QComboBox;
struct Game;

/// Page 18, "Add New Entries": one entry at a time is typed in, checked and stored for a user.
class AddEntriesPage : public PageFrame
{
    Q_OBJECT

public:
    explicit AddEntriesPage(PageSwitch& pageSwitch);

    /// ShowAddEntriesPage.
    void Prepare() override;

private:
    Card* MakeUserCard();
    Card* MakeBallCard();
    Card* MakeDayCard();
    void F18user_Click();
    void F18type_Click();
    void F18reset_Click();
    void F18store_Click();
    /// Shows how many entries the user has and may have; tells the player when there is no room for another one.
    void ShowUser(const UserRow& user);
    /// Empties the balls and the days for entries of the chosen game.
    void BeginEntry();
    const Game& ChosenGame() const;

    PageSwitch& pages;
    UserRow selectedUser;
    int entryCount = 0;
    /// The game for which the balls were last emptied.
    const Game* begunGame = nullptr;

    QComboBox* F18user;
    std::array<QLabel*, 3> F18userdata{};
    QComboBox* F18type;
    BallFields* F18ent;
    DayBoxes* F18day;
    Button* F18reset;
    Button* F18store;
};
