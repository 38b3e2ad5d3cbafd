#include "users/add_entries_page.h"

#include "balls/ball_edit.h"
#include "balls/ball_fields.h"
#include "base/failure.h"
#include "base/numbers.h"
#include "controls/card.h"
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
#include "users/day_boxes.h"

#include <QComboBox>
#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace {

const QString GoToUserDetails = u"Go to 'User Details' to change the spend limit, or choose another user."_s;

} // namespace

AddEntriesPage::AddEntriesPage(PageSwitch& pageSwitch)
    : PageFrame(18, u"Add New Entries"_s),
      pages(pageSwitch),
      F18user(MakeList(u"F18user"_s, u"User Name"_s)),
      F18type(MakeList(u"F18type"_s, u"Draw Type"_s)),
      F18ent(new BallFields({u"F18ent"_s, u"F18ball"_s, u"F18blab"_s})),
      F18day(new DayBoxes({u"F18day"_s, u"F18selallday"_s, u"F18clearday"_s}, u" "_s)),
      F18reset(new Button(u"Clear Ball Values"_s, u"F18reset"_s)),
      F18store(AddFooterDefault(u"Store"_s, u"F18store"_s))
{
    for (Card* card : {MakeUserCard(), MakeBallCard(), MakeDayCard()})
        Body()->addWidget(card);
    MakeForm();
    SetFirstField(F18ent->Field(0));
    ConnectGuarded(F18user, &QComboBox::activated, this, [this] { F18user_Click(); });
    ConnectGuarded(F18type, &QComboBox::activated, this, [this] { F18type_Click(); });
    ConnectGuarded(F18ent, &BallFields::Completed, this, [this] { F18store->setFocus(Qt::TabFocusReason); });
    ConnectGuarded(F18reset, &QPushButton::clicked, this, [this] { F18reset_Click(); });
    ConnectGuarded(F18store, &QPushButton::clicked, this, [this] { F18store_Click(); });
}

Card* AddEntriesPage::MakeUserCard()
{
    auto* form = new CaptionedRow;
    form->Add(u"User Name"_s, u"F18label2"_s, {F18user});
    form->Add(u"Draw Type"_s, u"F18label3"_s, {F18type});
    const std::array<QString, 3> texts{u"This user has __ entries stored."_s, u"Your spend limit is £__"_s,
                                       u"To alter limit, goto \"User Details\""_s};
    for (int index = 0; index < 3; ++index) {
        QLabel*& label = F18userdata.at(static_cast<size_t>(index));
        label = MakeLabel(texts.at(static_cast<size_t>(index)), TextRole::Body, ElementName(u"F18userdata"_s, index));
        label->setForegroundRole(QPalette::PlaceholderText);
        form->addWidget(label, 2 + index, 0, 1, 2);
    }
    auto* card = new Card;
    card->Content()->addLayout(form);
    return card;
}

Card* AddEntriesPage::MakeBallCard()
{
    auto* balls = new CardRow;
    balls->setSpacing(Spacing::Between);
    balls->addWidget(F18ent, 1);
    balls->addWidget(F18reset);
    auto* card = new Card;
    card->Content()->addLayout(balls);
    return card;
}

Card* AddEntriesPage::MakeDayCard()
{
    auto* card = new Card;
    card->Content()->setSpacing(Spacing::Inside);
    card->Content()->addWidget(MakeLabel(u"Draw day for this entry"_s, TextRole::Caption, u"F18label4"_s));
    card->Content()->addWidget(F18day);
    return card;
}

void AddEntriesPage::Prepare()
{
    const QString whyNot = u"You cannot store entries until you have created a user profile."_s;
    const std::vector<UserRow> all = FillUserList(F18user, pages, whyNot);
    if (all.empty())
        return;
    ShowUser(all.front());
    F18type->clear();
    F18type->addItems({MainGame.name, ThunderballGame.name});
    F18type_Click();
    F18day->SetAll(false);
    show();
}

void AddEntriesPage::F18user_Click()
{
    const QString name = F18user->currentText();
    if (!FindUserByName(users, name)) {
        Prepare();
        throw Failure("The user could not be chosen",
                      "another copy of the program has deleted it or given it another name meanwhile",
                      name.toStdString());
    }
    ShowUser(ReadUser(users));
}

void AddEntriesPage::ShowUser(const UserRow& user)
{
    selectedUser = user;
    F18userdata[1]->setText(u"Your limit is "_s + PlainNumber(user.spendLimit) + u" entries."_s);
    entryCount = CountEntries(entries, user.number);
    F18userdata[0]->setText(entryCount > 0 ? u"This user has "_s + PlainNumber(entryCount) + u" entries stored."_s
                                           : u"This user has no entries stored."_s);
    if (IsUpToLimit(entryCount, user.spendLimit))
        ShowMessage(u"This user is up to the spend limit."_s + Crlf + GoToUserDetails);
}

const Game& AddEntriesPage::ChosenGame() const
{
    return F18type->currentIndex() == 0 ? MainGame : ThunderballGame;
}

void AddEntriesPage::F18type_Click()
{
    if (&ChosenGame() != begunGame)
        BeginEntry();
}

void AddEntriesPage::BeginEntry()
{
    constexpr int last = EntryBalls - 1;
    const Game& game = ChosenGame();
    begunGame = &game;
    F18ent->SetRule(AddingRule(game));
    F18ent->Clear();
    F18day->SetAll(false);
    F18ent->SetLastApart(!game.IsMain());
    F18ent->SetCaption(last, game.BallCaption(last));
}

void AddEntriesPage::F18reset_Click()
{
    F18ent->Clear();
    F18ent->FocusField(0);
}

void AddEntriesPage::F18store_Click()
{
    if (IsUpToLimit(entryCount, selectedUser.spendLimit)) {
        ShowMessage(u"This user is up to the spend limit, so this entry has NOT been stored."_s + Crlf +
                    GoToUserDetails);
        return;
    }
    const Game& game = ChosenGame();
    if (!IsPossibleEntry(game, F18ent->Typed<EntryNumbers>())) {
        ShowMessage(u"Error detected in the data that you entered."_s + Crlf +
                    u"Please re-check and press 'Store' again."_s);
        return;
    }
    F18ent->Sort(game.mainBalls);
    if (!F18day->AnyTicked()) {
        ShowMessage(u"You must specify at least ONE draw day. Please retry."_s);
        return;
    }
    StoreEntry(selectedUser, {0, 0, game.drawType, F18ent->Typed<EntryNumbers>(), F18day->Days()});
    ShowMessage(u"This entry has been stored."_s);
    F18user_Click();
    BeginEntry();
    F18ent->FocusField(0);
}
