#include "users/user_details_page.h"

#include "base/failure.h"
#include "base/numbers.h"
#include "controls/card.h"
#include "controls/guard.h"
#include "controls/label.h"
#include "controls/message_box.h"
#include "look/button.h"
#include "look/theme.h"
#include "store/open_databases.h"
#include "store/user_changes.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

QLineEdit* MakeBox(const QString& name)
{
    auto* box = new QLineEdit;
    box->setObjectName(name);
    return box;
}

QString UserCountText(int count)
{
    if (count == 0)
        return u"There are currently no users."_s;
    if (count == 1)
        return u"There is currently 1 user."_s;
    return u"There are currently "_s + SpacedNumber(count) + u" users."_s;
}

} // namespace

UserDetailsPage::UserDetailsPage()
    : PageFrame(11, u"User Details"_s),
      F11label1(MakeLabel({}, TextRole::Body, u"F11label1"_s)),
      F11list(new QListWidget),
      F11label2(MakeLabel({}, TextRole::Caption, u"F11label2"_s)),
      F11seluser(MakeBox(u"F11seluser"_s)),
      F11spend(MakeBox(u"F11spend"_s)),
      F11label4(MakeLabel(u"Current number of entries"_s, TextRole::Caption, u"F11label4"_s)),
      F11entrycount(MakeBox(u"F11entrycount"_s)),
      F11adduser(AddFooterButton(u"Add New User"_s, u"F11adduser"_s)),
      F11edituser(AddFooterButton(u"Edit User"_s, u"F11edituser"_s)),
      F11deleteuser(AddFooterButton(u"Delete User"_s, u"F11deleteuser"_s)),
      F11storenu(new Button(u"Store New User"_s, u"F11storenu"_s)),
      F11storech(new Button(u"Store Changes"_s, u"F11storech"_s))
{
    auto* cards = new QHBoxLayout;
    cards->setSpacing(Spacing::Cards);
    cards->addWidget(MakeListCard(), 1);
    cards->addWidget(MakeUserCard(), 1);
    Body()->addLayout(cards);
    MakeForm();
    ConnectHandlers();
}

Card* UserDetailsPage::MakeListCard()
{
    F11label1->setWordWrap(true);
    F11list->setObjectName(u"F11list"_s);
    F11list->setAccessibleName(u"User"_s);
    F11list->setFrameShape(QFrame::NoFrame);
    F11list->viewport()->setBackgroundRole(QPalette::AlternateBase);
    F11list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    F11list->installEventFilter(this);
    // The card beside the list is never higher than this, so that the buttons keep their places.
    F11list->setMinimumHeight(308);
    auto* card = new Card;
    card->Content()->addWidget(F11label1);
    card->Content()->addWidget(F11list, 1);
    return card;
}

Card* UserDetailsPage::MakeUserCard()
{
    auto* card = new Card;
    QVBoxLayout* form = card->Content();
    form->setSpacing(Spacing::Inside);
    const auto add = [form](QLabel* caption, QLineEdit* box) {
        caption->setContentsMargins(0, form->isEmpty() ? 0 : Spacing::Between, 0, 0);
        form->addWidget(caption);
        form->addWidget(box);
    };
    add(F11label2, F11seluser);
    add(MakeLabel(u"Maximum number of entries"_s, TextRole::Caption, u"F11label3"_s), F11spend);
    add(F11label4, F11entrycount);
    F11spend->setAccessibleName(u"Maximum number of entries"_s);
    F11entrycount->setAccessibleName(F11label4->text());
    F11entrycount->setReadOnly(true);
    form->addSpacing(Spacing::Between);
    for (Button* store : {F11storenu, F11storech}) {
        store->MakeAccent();
        form->addWidget(store, 0, Qt::AlignLeft);
    }
    form->addStretch(1);
    return card;
}

void UserDetailsPage::ConnectHandlers()
{
    ConnectGuarded(F11list, &QListWidget::itemClicked, this, [this] { F11list_Click(); });
    ConnectGuarded(F11list, &QListWidget::itemSelectionChanged, this, [this] { F11list_Click(); });
    // F11adduser_Click.
    ConnectGuarded(F11adduser, &QPushButton::clicked, this, [this] { SetMode(Mode::Add); });
    ConnectGuarded(F11edituser, &QPushButton::clicked, this, [this] { F11edituser_Click(); });
    ConnectGuarded(F11seluser, &QLineEdit::returnPressed, this, [this] { F11spend->setFocus(Qt::TabFocusReason); });
    ConnectGuarded(F11spend, &QLineEdit::returnPressed, this, [this] { F11spend_KeyPress(); });
    ConnectGuarded(F11storenu, &QPushButton::clicked, this, [this] { F11storenu_Click(); });
    ConnectGuarded(F11storech, &QPushButton::clicked, this, [this] { F11storech_Click(); });
    ConnectGuarded(F11deleteuser, &QPushButton::clicked, this, [this] { F11deleteuser_Click(); });
}

void UserDetailsPage::Prepare()
{
    show();
    SetMode(Mode::View);
    F11list->clear();
    for (const UserRow& user : ReadAllUsers(users))
        F11list->addItem(user.name);
    F11label1->setText(UserCountText(F11list->count()));
    if (F11list->count() == 0)
        SetMode(Mode::Add);
}

void UserDetailsPage::F11list_Click()
{
    if (SelectedLine() == nullptr)
        return;
    if (!FindUserByName(users, SelectedLine()->text())) {
        // The list cannot be filled anew while it is still at work on the click.
        QTimer::singleShot(0, this, [this] { Guard([this] { DropVanishedUser(); }); });
        return;
    }
    selectedUser = ReadUser(users);
    entryCount = CountEntries(entries, selectedUser.number);
    SetMode(Mode::View);
    F11seluser->setText(selectedUser.name);
    F11spend->setText(PlainNumber(selectedUser.spendLimit));
    F11entrycount->setText(PlainNumber(entryCount));
}

bool UserDetailsPage::eventFilter(QObject* watched, QEvent* event)
{
    // While no user is chosen, the toolkit would go on from the first one, which is not seen.
    if (watched == F11list && event->type() == QEvent::KeyPress && SelectedLine() == nullptr && F11list->count() > 0) {
        constexpr std::array keys{Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_PageUp};
        if (std::find(keys.begin(), keys.end(), static_cast<QKeyEvent*>(event)->key()) != keys.end()) {
            F11list->setCurrentRow(0);
            return true;
        }
    }
    return PageFrame::eventFilter(watched, event);
}

void UserDetailsPage::DropVanishedUser()
{
    if (SelectedLine() == nullptr)
        return;
    const std::string name = SelectedLine()->text().toStdString();
    Prepare();
    throw Failure("The user could not be shown",
                  "another copy of the program has deleted it or given it another name meanwhile", name);
}

void UserDetailsPage::F11edituser_Click()
{
    if (mode == Mode::Edit)
        return;
    if (SelectedLine() == nullptr) {
        ShowMessage(u"Select a user first."_s);
        return;
    }
    // Typing that was begun for a new user is dropped, as by a click on the list.
    if (mode == Mode::Add)
        F11list_Click();
    editedUserName = F11seluser->text();
    SetMode(Mode::Edit);
}

void UserDetailsPage::F11spend_KeyPress()
{
    if (mode == Mode::Add)
        F11storenu->setFocus(Qt::TabFocusReason);
    else if (mode == Mode::Edit)
        F11storech->setFocus(Qt::TabFocusReason);
}

void UserDetailsPage::F11storenu_Click()
{
    if (!StoreNewUser(F11seluser->text(), NumericValue(F11spend->text()))) {
        ShowMessage(u"There is already a user with this name."_s + Crlf + u"Try another name and try again."_s);
        return;
    }
    Prepare();
}

void UserDetailsPage::F11storech_Click()
{
    if (F11seluser->text().isEmpty()) {
        ShowMessage(u"Invalid user name, please retry."_s);
        return;
    }
    // A stored name may be longer than what the box holds; one that was not changed stays as it is stored.
    const bool renamed = F11seluser->text() != editedUserName;
    const QString name = renamed ? F11seluser->text() : selectedUser.name;
    const double limit = NumericValue(F11spend->text());
    if (renamed && FindUserByName(users, name) && ReadUser(users).number != selectedUser.number) {
        ShowMessage(u"This user name has already been used, please retry"_s);
        return;
    }
    if (limit < entryCount) {
        ShowMessage(u"This user already has more entries than you have specified as the maximum."_s + Crlf +
                    u"Change the maximum limit or delete some entries, then retry."_s);
        return;
    }
    StoreUserChanges(selectedUser.mark, name, limit);
    Prepare();
}

void UserDetailsPage::F11deleteuser_Click()
{
    if (SelectedLine() == nullptr) {
        ShowMessage(u"Select a user first."_s);
        return;
    }
    if (!AskYesNo(u"Are you sure you want to delete this user"_s + Crlf + u"and all entries stored with it?"_s))
        return;
    DeleteUserWithEntries(selectedUser);
    Prepare();
}

void UserDetailsPage::SetMode(Mode newMode)
{
    mode = newMode;
    const bool typing = mode != Mode::View;
    for (QLineEdit* box : {F11seluser, F11spend}) {
        box->setReadOnly(!typing);
        if (mode != Mode::Edit)
            box->clear();
    }
    F11entrycount->setVisible(mode != Mode::Add);
    F11label4->setVisible(mode != Mode::Add);
    if (mode != Mode::Edit)
        F11entrycount->clear();
    F11storenu->setVisible(mode == Mode::Add);
    F11storech->setVisible(mode == Mode::Edit);
    F11label2->setText(mode == Mode::View  ? u"Currently selected user"_s
                       : mode == Mode::Add ? u"New users name"_s
                                           : u"Updated users name"_s);
    F11seluser->setAccessibleName(F11label2->text());
    if (typing)
        F11seluser->setFocus(Qt::TabFocusReason);
}

const QListWidgetItem* UserDetailsPage::SelectedLine() const
{
    const QList<QListWidgetItem*> selected = F11list->selectedItems();
    return selected.isEmpty() ? nullptr : selected.first();
}
