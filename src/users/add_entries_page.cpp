#include "users/add_entries_page.h"

#include "balls/ball_fields.h"
#include "base/failure.h"
#include "base/numbers.h"
#include "controls/card.h"
#include "controls/card_row.h"
#include "controls/guard.h"
#include "controls/label.h"
#include "controls/message_box.h"
#include "controls/page_switch.h"
#include "game/game.h"
#include "look/button.h"
#include "look/theme.h"
#include "store/entry_changes.h"
#include "store/open_databases.h"
#include "store/user_records.h"
#include "users/day_boxes.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QComboBox* MakeList(const QString& name, const QString& caption)
{
    auto* list = new QComboBox;
    // Not as wide as its longest text, which may be of any length.
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->setObjectName(name);
    list->setAccessibleName(caption);
    return list;
}

QStringList EntryCaptions()
{
    QStringList captions;
    for (int slot = 0; slot < 6; ++slot)
        captions.append(MainGame.BallCaption(slot));
    return captions;
}

} // namespace

AddEntriesPage::AddEntriesPage(PageSwitch& pageSwitch)
    : PageFrame(18, u"Add New Entries"_s),
      pages(pageSwitch),
      F18user(MakeList(u"F18user"_s, u"User Name"_s)),
      F18type(MakeList(u"F18type"_s, u"Draw Type"_s)),
      F18ent(new BallFields({u"F18ent"_s, u"F18ball"_s, u"F18blab"_s, {1, 2, 3, 4, 5, 6}, 1}, EntryCaptions())),
      F18day(new DayBoxes({u"F18day"_s, u"F18selallday"_s, u"F18clearday"_s}, u" "_s)),
      F18reset(new Button(u"Clear Ball Values"_s, u"F18reset"_s))
{
    BuildCards();
    F18store = AddFooterDefault(u"Store"_s, u"F18store"_s);
    ConnectGuarded(F18user, &QComboBox::activated, this, [this] { F18user_Click(); });
    ConnectGuarded(F18type, &QComboBox::activated, this, [this] { F18type_Click(); });
    ConnectGuarded(F18ent, &BallFields::Completed, this, [this] { F18store->setFocus(Qt::TabFocusReason); });
    ConnectGuarded(F18reset, &QPushButton::clicked, this, [this] { F18reset_Click(); });
    ConnectGuarded(F18store, &QPushButton::clicked, this, [this] { F18store_Click(); });
}

void AddEntriesPage::BuildCards()
{
    auto* userCard = new Card;
    auto* form = new QGridLayout;
    form->setHorizontalSpacing(Spacing::Cards);
    form->setVerticalSpacing(Spacing::Inside);
    form->addWidget(MakeLabel(u"User Name"_s, TextRole::Caption, u"F18label2"_s), 0, 0);
    form->addWidget(F18user, 1, 0);
    form->addWidget(MakeLabel(u"Draw Type"_s, TextRole::Caption, u"F18label3"_s), 0, 1);
    form->addWidget(F18type, 1, 1);
    for (const QString& text : {u"This user has __ entries stored."_s, u"Your spend limit is £__"_s,
                                u"To alter limit, goto \"User Details\""_s}) {
        const int index = static_cast<int>(F18userdata.size());
        F18userdata.push_back(MakeLabel(text, TextRole::Body, ElementName(u"F18userdata"_s, index)));
        F18userdata.back()->setForegroundRole(QPalette::PlaceholderText);
        form->addWidget(F18userdata.back(), 2 + index, 0, 1, 2);
    }
    form->setColumnStretch(0, 1);
    form->setColumnStretch(1, 1);
    userCard->Content()->addLayout(form);

    auto* ballCard = new Card;
    auto* balls = new CardRow;
    balls->setSpacing(Spacing::Between);
    balls->addWidget(F18ent, 1);
    balls->addWidget(F18reset);
    ballCard->Content()->addLayout(balls);

    ballCard->Content()->setContentsMargins(Spacing::Cards, Spacing::Between, Spacing::Cards, Spacing::Between);

    auto* dayCard = new Card;
    dayCard->Content()->setSpacing(Spacing::Inside);
    dayCard->Content()->addWidget(MakeLabel(u"Draw day for this entry"_s, TextRole::Caption, u"F18label4"_s));
    dayCard->Content()->addWidget(F18day);

    for (Card* card : {userCard, ballCard, dayCard})
        Body()->addWidget(card);
    MakeForm();
}

void AddEntriesPage::Prepare()
{
    F18user->clear();
    const std::vector<UserRow> allUsers = ReadAllUsers(users);
    if (allUsers.empty()) {
        pages.ChooseMenu(3, 1);
        ShowMessage(u"You cannot store entries until you have created a user profile."_s);
        return;
    }
    for (const UserRow& user : allUsers)
        F18user->addItem(user.name);
    F18user->setCurrentIndex(0);
    F18user_Click();
    F18type->clear();
    F18type->addItems({MainGame.name, ThunderballGame.name});
    F18type->setCurrentIndex(0);
    F18type_Click();
    ClearDrawDays();
    show();
}

void AddEntriesPage::F18user_Click()
{
    if (!FindUserByName(users, F18user->currentText())) {
        const std::string name = F18user->currentText().toStdString();
        Prepare();
        throw Failure("The user could not be chosen",
                      "another copy of the program has deleted it or given it another name meanwhile", name);
    }
    const UserRow user = ReadUser(users);
    selectedUserNumber = user.number;
    selectedUserLimit = user.spendLimit;
    F18userdata[1]->setText(u"Your limit is "_s + PlainNumber(selectedUserLimit) + u" entries."_s);
    entryCount = CountEntries(entries, selectedUserNumber);
    F18userdata[0]->setText(entryCount > 0 ? u"This user has "_s + PlainNumber(entryCount) + u" entries stored."_s
                                           : u"This user has no entries stored."_s);
    if (IsUpToLimit())
        ShowMessage(u"This user is up to the spend limit."_s + Crlf +
                    u"Go to 'User Details' to change the spend limit, or choose another user."_s);
}

void AddEntriesPage::F18type_Click()
{
    if (F18type->currentText() == previousDrawType)
        return;
    previousDrawType = F18type->currentText();
    F18ent->SetRule(AddingRule(ChosenGame()));
    F18ent->Clear();
    ClearDrawDays();
    LayoutBalls();
}

void AddEntriesPage::LayoutBalls()
{
    const bool isMain = &ChosenGame() == &MainGame;
    F18ent->SetLastApart(!isMain);
    F18ent->SetCaption(5, isMain ? MainGame.BallCaption(5) : ThunderballGame.extraBallName);
}

void AddEntriesPage::F18reset_Click()
{
    F18ent->Clear();
    F18ent->FocusField(0);
}

void AddEntriesPage::ClearDrawDays()
{
    F18day->SetAll(false);
}

const Game& AddEntriesPage::ChosenGame() const
{
    return F18type->currentText() == MainGame.name ? MainGame : ThunderballGame;
}

bool AddEntriesPage::IsUpToLimit() const
{
    return entryCount >= selectedUserLimit;
}

void AddEntriesPage::F18store_Click()
{
    if (IsUpToLimit()) {
        ShowMessage(u"This user is up to the spend limit, so this entry has NOT been stored."_s + Crlf +
                    u"Go to 'User Details' to change the spend limit, or choose another user."_s);
        return;
    }
    if (!IsPossibleEntry(ChosenGame(), F18ent->TypedEntry())) {
        ShowMessage(u"Error detected in the data that you entered."_s + Crlf +
                    u"Please re-check and press 'Store' again."_s);
        return;
    }
    F18ent->Sort(ChosenGame().mainBalls);
    F18ent->Recolour();
    if (!F18day->AnyTicked()) {
        ShowMessage(u"You must specify at least ONE draw day. Please retry."_s);
        return;
    }
    StoreEntry();
    ShowMessage(u"This entry has been stored."_s);
    F18user_Click();
    previousDrawType.clear();
    F18type_Click();
}

void AddEntriesPage::StoreEntry()
{
    EntryRow entry;
    entry.userId = selectedUserNumber;
    entry.drawType = ChosenGame().drawType;
    entry.days = F18day->Days();
    entry.numbers = F18ent->TypedEntry();
    ::StoreEntry(entry);
}
