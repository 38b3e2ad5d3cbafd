#pragma once

#include "controls/page_frame.h"

#include <QLabel>

#include <cstdint>
#include <vector>

class BallFields;
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
    void BuildCards();
    void F18user_Click();
    void F18type_Click();
    void F18reset_Click();
    void F18store_Click();
    void ClearDrawDays();
    void LayoutBalls();
    const Game& ChosenGame() const;
    bool IsUpToLimit() const;
    void StoreEntry();

    PageSwitch& pages;
    std::int64_t selectedUserNumber = 0;
    double selectedUserLimit = 0;
    int entryCount = 0;
    QString previousDrawType;

    QComboBox* F18user;
    std::vector<QLabel*> F18userdata;
    QComboBox* F18type;
    BallFields* F18ent;
    DayBoxes* F18day;
    Button* F18reset;
    Button* F18store;
};
