#pragma once

#include "controls/page_frame.h"
#include "game/entry_row.h"
#include "records/record_row.h"

#include <QLabel>

#include <optional>

class Card;
class GridModel;
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

private:
    Card* MakeChoiceCard();
    Card* MakeGridCard();
    void F13user_Click();
    void FillEntriesGrid();
    void F13delete_Click();
    const Game& ChosenGame() const;
    /// Opens the one selected entry on a page; tells the player when there are no entries, with the verb given, when
    /// several are selected, or when the entry is gone.
    void OpenSelectedEntry(int page, const QString& verb);

    PageSwitch& pages;
    std::optional<std::int64_t> selectedUserNumber;
    /// The entries in the grid.
    RecordList shown;

    QComboBox* F13user;
    QRadioButton* F13typemain;
    QRadioButton* F13typethunder;
    GridModel* model;
    GridView* F13grid;
    QLabel* F13noentries;
    Button* F13delete;
    Button* F13edit;
    Button* F13view;
};
