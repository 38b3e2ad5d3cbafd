#include "users/entries_page.h"

#include "controls/card.h"
#include "controls/grid_view.h"
#include "controls/guard.h"
#include "controls/label.h"
#include "controls/message_box.h"
#include "controls/page_switch.h"
#include "game/game.h"
#include "look/button.h"
#include "look/theme.h"
#include "store/entry_changes.h"
#include "store/open_databases.h"
#include "users/choices.h"
#include "users/entry_grid.h"

#include <QComboBox>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int ViewPage = 19;
constexpr int EditPage = 20;

} // namespace

EntriesPage::EntriesPage(PageSwitch& pageSwitch)
    : PageFrame(13, u"View or Edit Entries"_s),
      pages(pageSwitch),
      F13user(MakeList(u"F13user"_s, u"User"_s)),
      F13typemain(MakeOption(MainGame.name, u"F13typemain"_s)),
      F13typethunder(MakeOption(ThunderballGame.name, u"F13typethunder"_s)),
      model(new GridModel(EntryColumns(), this)),
      F13grid(new GridView(u"F13grid"_s, u"Entries"_s)),
      F13noentries(MakeLabel(u"There are no entries of this type, for this user."_s, TextRole::Body, u"F13noentries"_s))
{
    Body()->addWidget(MakeChoiceCard());
    Body()->addWidget(MakeGridCard(), 1);
    F13delete = AddFooterButton(u"Delete"_s, u"F13delete"_s);
    F13edit = AddFooterButton(u"Edit"_s, u"F13edit"_s);
    F13view = AddFooterDefault(u"View in Detail"_s, u"F13view"_s);
    ConnectGuarded(F13user, &QComboBox::activated, this, [this] { F13user_Click(); });
    // F13typemain_Click, F13typethunder_Click.
    for (const QRadioButton* option : {F13typemain, F13typethunder})
        ConnectGuarded(option, &QRadioButton::clicked, this, [this] { FillEntriesGrid(); });
    ConnectGuarded(F13grid, &GridView::Opened, this, [this] { F13view->click(); });
    ConnectGuarded(F13grid, &GridView::DeletePressed, this, [this] { F13delete_Click(); });
    // F13view_Click.
    ConnectGuarded(F13view, &QPushButton::clicked, this, [this] { OpenSelectedEntry(ViewPage, u"view"_s); });
    // F13edit_Click.
    ConnectGuarded(F13edit, &QPushButton::clicked, this, [this] { OpenSelectedEntry(EditPage, u"edit"_s); });
    ConnectGuarded(F13delete, &QPushButton::clicked, this, [this] { F13delete_Click(); });
    ConnectGuarded(pages.Page(EditPage), &PageFrame::Stored, this, [this] { FillEntriesGrid(); });
}

Card* EntriesPage::MakeChoiceCard()
{
    F13user->setMinimumContentsLength(14);
    auto* choices = new CaptionedRow;
    choices->Add(u"User"_s, u"F13label1"_s, {F13user});
    choices->Add(u"Draw Type"_s, u"F13label2"_s, {F13typemain, F13typethunder}, 0);
    choices->setColumnStretch(choices->columnCount(), 2);
    auto* card = new Card;
    card->Content()->addLayout(choices);
    return card;
}

Card* EntriesPage::MakeGridCard()
{
    F13grid->setModel(model);
    F13grid->SetColumnShares(model->ColumnShares());
    F13noentries->setAlignment(Qt::AlignCenter);
    auto* card = new Card;
    card->Content()->setContentsMargins(Spacing::Between, Spacing::Between, Spacing::Between, Spacing::Between);
    card->Content()->addWidget(F13grid);
    card->Content()->addWidget(F13noentries);
    return card;
}

void EntriesPage::Prepare()
{
    const QString whyNot = u"You cannot view or edit entries until you have created a user profile."_s;
    if (FillUserList(F13user, pages, whyNot).empty())
        return;
    F13typemain->setChecked(true);
    F13user_Click();
    show();
}

void EntriesPage::F13user_Click()
{
    // Another copy may have deleted or renamed the user; the entries of the one chosen before must not stand in.
    selectedUserNumber =
        FindUserByName(users, F13user->currentText()) ? std::optional(ReadUser(users).number) : std::nullopt;
    FillEntriesGrid();
}

const Game& EntriesPage::ChosenGame() const
{
    return F13typemain->isChecked() ? MainGame : ThunderballGame;
}

void EntriesPage::FillEntriesGrid()
{
    shown = selectedUserNumber ? ListEntriesOf(entries, *selectedUserNumber, ChosenGame().drawType) : RecordList();
    model->Show(shown.Count(), [this](int row, int column) { return EntryCell(ReadEntry(shown[row]), row, column); });
    NameLastNumber(*model, ChosenGame());
    const bool empty = model->rowCount() == 0;
    F13grid->setHidden(empty);
    F13noentries->setVisible(empty);
    F13grid->SelectRow(0);
}

void EntriesPage::OpenSelectedEntry(int page, const QString& verb)
{
    const GridView::RowSpan rows = F13grid->SelectedRows();
    if (rows.Count() != 1) {
        ShowMessage(rows.Count() == 0 ? u"There are no entries to "_s + verb : u"Select only ONE draw."_s);
        return;
    }
    pages.Page(page)->ShowInFront();
    if (entries.MoveTo(shown[rows.first].Mark()))
        pages.Page(page)->Prepare();
    else
        ShowMessage(u"An unexpected error has occured,"_s + Crlf + u"please try again."_s);
}

void EntriesPage::F13delete_Click()
{
    const GridView::RowSpan rows = F13grid->SelectedRows();
    if (rows.Count() == 0)
        return;
    const QString question = rows.Count() == 1 ? u"Are you sure you want"_s + Crlf + u"to delete this entry?"_s
                                               : u"Are you sure you want to"_s + Crlf + u"delete these entries?"_s;
    if (!AskYesNo(question)) {
        ShowMessage(u"Data delete has been aborted."_s);
        return;
    }
    DeleteEntries(shown.Marks(rows.first, rows.last));
    FillEntriesGrid();
}
