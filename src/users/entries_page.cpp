#include "users/entries_page.h"

#include "draws/game.h"
#include "platform/card.h"
#include "platform/guard.h"
#include "platform/message_box.h"
#include "records/record_numbers.h"
#include "shell/open_databases.h"
#include "shell/page_switch.h"
#include "users/entry_edit_page.h"
#include "users/entry_grid_model.h"
#include "users/entry_view_page.h"
#include "users/user_records.h"

#include <QComboBox>
#include <QGridLayout>
#include <QRadioButton>

#include <utility>

namespace {

constexpr int ViewPage = 19;
constexpr int EditPage = 20;

QRadioButton* MakeOption(const Game& game, const char* name)
{
    auto* option = new QRadioButton(game.name);
    option->setObjectName(QLatin1String(name));
    option->setAccessibleName(game.name);
    return option;
}

} // namespace

EntriesPage::EntriesPage(PageSwitch& pageSwitch)
    : PageFrame(13, QStringLiteral("View or Edit Entries")),
      pages(pageSwitch),
      F13user(new QComboBox),
      F13typemain(MakeOption(MainGame, "F13typemain")),
      F13typethunder(MakeOption(ThunderballGame, "F13typethunder")),
      model(new EntryGridModel(this)),
      F13grid(new GridView(QStringLiteral("F13grid"), QStringLiteral("Entries"))),
      F13noentries(MakeLabel(QStringLiteral("There are no entries of this type, for this user."), TextRole::Body,
                             QStringLiteral("F13noentries")))
{
    Body()->addWidget(MakeChoiceCard());
    Body()->addWidget(MakeGridCard(), 1);
    F13delete = AddFooterButton(QStringLiteral("Delete"), QStringLiteral("F13delete"));
    F13edit = AddFooterButton(QStringLiteral("Edit"), QStringLiteral("F13edit"));
    F13view = AddFooterDefault(QStringLiteral("View in Detail"), QStringLiteral("F13view"));
    ConnectGuarded(F13user, &QComboBox::activated, this, [this] { F13user_Click(); });
    ConnectGuarded(F13typemain, &QRadioButton::clicked, this, [this] { ListGame(MainGame); });
    ConnectGuarded(F13typethunder, &QRadioButton::clicked, this, [this] { ListGame(ThunderballGame); });
    ConnectGuarded(F13grid, &GridView::Opened, this, [this] { F13view_Click(); });
    ConnectGuarded(F13grid, &GridView::DeletePressed, this, [this] { F13delete_Click(); });
    ConnectGuarded(F13view, &QPushButton::clicked, this, [this] { F13view_Click(); });
    ConnectGuarded(F13edit, &QPushButton::clicked, this, [this] { F13edit_Click(); });
    ConnectGuarded(F13delete, &QPushButton::clicked, this, [this] { F13delete_Click(); });
}

Card* EntriesPage::MakeChoiceCard()
{
    F13user->setObjectName(QStringLiteral("F13user"));
    F13user->setAccessibleName(QStringLiteral("User"));
    // A long name is cut at the list's edge instead of widening the page.
    F13user->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    F13user->setMinimumContentsLength(14);
    auto* card = new Card;
    auto* form = new QGridLayout;
    form->setHorizontalSpacing(Spacing::Cards);
    form->setVerticalSpacing(Spacing::Inside);
    form->addWidget(MakeLabel(QStringLiteral("User"), TextRole::Caption, QStringLiteral("F13label1")), 0, 0);
    form->addWidget(F13user, 1, 0);
    form->addWidget(MakeLabel(QStringLiteral("Draw Type"), TextRole::Caption, QStringLiteral("F13label2")), 0, 1, 1, 2);
    form->addWidget(F13typemain, 1, 1);
    form->addWidget(F13typethunder, 1, 2);
    form->setColumnStretch(0, 1);
    card->Content()->addLayout(form);
    return card;
}

Card* EntriesPage::MakeGridCard()
{
    F13grid->setModel(model);
    F13grid->SetColumnShares(EntryGridModel::ColumnShares());
    F13noentries->setAlignment(Qt::AlignCenter);
    auto* card = new Card;
    card->Content()->setContentsMargins(Spacing::Between, Spacing::Inside, Spacing::Between, Spacing::Between);
    card->Content()->addWidget(F13grid);
    card->Content()->addWidget(F13noentries);
    return card;
}

void EntriesPage::Prepare()
{
    F13user->clear();
    const std::vector<UserRow> allUsers = ReadAllUsers(users);
    if (allUsers.empty()) {
        pages.ChooseMenu(3, 1);
        ShowMessage(QStringLiteral("You cannot view or edit entries until you have created a user profile."));
        return;
    }
    for (const UserRow& user : allUsers)
        F13user->addItem(user.name);
    F13typemain->setChecked(true);
    F13user->setCurrentIndex(0);
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

void EntriesPage::ListGame(const Game& game)
{
    (&game == &MainGame ? F13typemain : F13typethunder)->setChecked(true);
    FillEntriesGrid();
}

const Game& EntriesPage::ChosenGame() const
{
    return F13typemain->isChecked() ? MainGame : ThunderballGame;
}

void EntriesPage::FillEntriesGrid()
{
    std::vector<EntryRow> rows;
    if (selectedUserNumber)
        rows = ReadEntriesOf(entries, *selectedUserNumber, ChosenGame().drawType);
    model->Fill(ChosenGame(), std::move(rows));
    const bool empty = model->rowCount() == 0;
    F13grid->setHidden(empty);
    F13noentries->setVisible(empty);
    F13grid->SelectRow(0);
}

std::optional<int> EntriesPage::OneSelectedRow(const QString& verb) const
{
    const GridView::RowSpan rows = F13grid->SelectedRows();
    if (rows.Count() == 1)
        return rows.first;
    ShowMessage(rows.Count() == 0 ? QStringLiteral("There are no entries to ") + verb
                                  : QStringLiteral("Select only ONE draw."));
    return std::nullopt;
}

std::optional<EntryRow> EntriesPage::FindEntry(int row) const
{
    if (FindRecord(entries, model->NumberOf(row)))
        return ReadEntry(entries);
    ShowMessage(QStringLiteral("An unexpected error has occured,") + Crlf + QStringLiteral("please try again."));
    return std::nullopt;
}

void EntriesPage::F13view_Click()
{
    const auto row = OneSelectedRow(QStringLiteral("view"));
    if (!row)
        return;
    auto* viewPage = static_cast<EntryViewPage*>(pages.Page(ViewPage));
    viewPage->ShowInFront();
    if (const auto entry = FindEntry(*row))
        viewPage->Show(*entry, F13user->currentText());
}

void EntriesPage::F13edit_Click()
{
    const auto row = OneSelectedRow(QStringLiteral("edit"));
    if (!row)
        return;
    auto* editPage = static_cast<EntryEditPage*>(pages.Page(EditPage));
    editPage->ShowInFront();
    if (const auto entry = FindEntry(*row))
        editPage->Show(*entry, F13user->currentText());
}

void EntriesPage::F13delete_Click()
{
    const GridView::RowSpan rows = F13grid->SelectedRows();
    if (rows.Count() == 0)
        return;
    const QString question =
        rows.Count() == 1 ? QStringLiteral("Are you sure you want") + Crlf + QStringLiteral("to delete this entry?")
                          : QStringLiteral("Are you sure you want to") + Crlf + QStringLiteral("delete these entries?");
    if (!AskYesNo(question)) {
        ShowMessage(QStringLiteral("Data delete has been aborted."));
        return;
    }
    std::vector<std::int64_t> numbers;
    for (int row = rows.first; row <= rows.last; ++row)
        numbers.push_back(model->NumberOf(row));
    Transaction transaction(UserDb, "The entries could not be deleted");
    DeleteRecords(entries, numbers);
    transaction.Commit();
    FillEntriesGrid();
}
