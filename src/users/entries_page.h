#pragma once

#include "controls/page_frame.h"
#include "game/entry_row.h"

#include <QLabel>

#include <optional>

class Card;
class EntryGridModel;
class GridView;
class PageSwitch;
class QComboBox;
class QRadioButton;
struct Game;

/// Page 13, "View or Edit Entries": the entries of one user and one game.
class EntriesPage : public PageFrame
{
    Q_OBJECT

public:
    explicit EntriesPage(PageSwitch& pageSwitch);

    /// ShowEntriesPage.
    void Prepare() override;

    /// F13typemain_Click, F13typethunder_Click: lists the chosen user's entries of the game.
    void ListGame(const Game& game);

private:
    Card* MakeChoiceCard();
    Card* MakeGridCard();
    void F13user_Click();
    void FillEntriesGrid();
    void F13view_Click();
    void F13edit_Click();
    void F13delete_Click();
    const Game& ChosenGame() const;
    /// The one selected row; tells the player when there are no entries, with the verb given, or several are selected.
    std::optional<int> OneSelectedRow(const QString& verb) const;
    /// The stored entry of a row; tells the player when it is gone.
    std::optional<EntryRow> FindEntry(int row) const;

    PageSwitch& pages;
    std::optional<std::int64_t> selectedUserNumber;

    QComboBox* F13user;
    QRadioButton* F13typemain;
    QRadioButton* F13typethunder;
    EntryGridModel* model;
    GridView* F13grid;
    QLabel* F13noentries;
    Button* F13delete;
    Button* F13edit;
    Button* F13view;
};
