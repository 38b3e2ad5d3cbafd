#include "checking/check_page.h"

#include "base/dates.h"
#include "checking/report_view.h"
#include "controls/card.h"
#include "controls/date_field.h"
#include "controls/guard.h"
#include "controls/keeping_room.h"
#include "controls/label.h"
#include "controls/message_box.h"
#include "controls/page_switch.h"
#include "look/button.h"
#include "look/theme.h"
#include "store/draw_records.h"
#include "store/open_databases.h"
#include "users/choices.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

const QString AllUsers = u"All Users"_s;

Card* MakeGroup(const QString& caption, const QString& captionName, const QString& shapeName)
{
    auto* card = new Card;
    card->setObjectName(shapeName);
    card->Content()->setContentsMargins(Spacing::Between, Spacing::Between, Spacing::Between, Spacing::Between);
    card->Content()->setSpacing(Spacing::Inside);
    card->Content()->addWidget(MakeLabel(caption, TextRole::Caption, captionName));
    return card;
}

QWidget* MakeOptions(const QString& frameName, std::initializer_list<QRadioButton*> options)
{
    auto* frame = new QWidget;
    frame->setObjectName(frameName);
    // The options stand level with the list on the card beside them.
    frame->setMinimumHeight(QComboBox().sizeHint().height());
    auto* row = new QHBoxLayout(frame);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Spacing::Between);
    for (QRadioButton* option : options)
        row->addWidget(option);
    row->addStretch(1);
    return frame;
}

} // namespace

CheckPage::CheckPage(PageSwitch& pageSwitch)
    : PageFrame(12, u"Check Entries"_s),
      pages(pageSwitch),
      F12user(MakeList(u"F12user"_s, u"User"_s)),
      F12typem(MakeOption(u"Main"_s, u"F12typem"_s)),
      F12typet(MakeOption(u"Thunderball"_s, u"F12typet"_s)),
      F12typeb(MakeOption(u"Both"_s, u"F12typeb"_s)),
      F12datelatest(MakeOption(u"Latest Draw"_s, u"F12datelatest"_s)),
      F12dateselect(MakeOption(u"Select Date"_s, u"F12dateselect"_s)),
      F12cal(new DateField(u"F12cal"_s, u"Date of the draw"_s)),
      F12text(new ReportView),
      F12clear(AddFooterButton(u"Clear"_s, u"F12clear"_s)),
      F12print(AddFooterButton(u"Print"_s, u"F12print"_s)),
      F12check(AddFooterDefault(u"Check Now"_s, u"F12check"_s))
{
    auto* who = new QHBoxLayout;
    who->setSpacing(Spacing::Between);
    who->addWidget(MakeUserCard(), 1);
    who->addWidget(MakeTypeCard());
    auto* cards = new CardRow;
    cards->setSpacing(Spacing::Between);
    cards->addLayout(who, 1);
    cards->addWidget(MakeDateCard());
    cards->addStretch(1);
    Body()->addLayout(cards);

    F12text->setObjectName(u"F12text"_s);
    F12text->setAccessibleName(u"Report"_s);
    auto* reportCard = new Card;
    reportCard->Content()->addWidget(F12text);
    Body()->addWidget(reportCard, 1);
    ConnectGuarded(F12datelatest, &QRadioButton::clicked, this, [this] { F12datelatest_Click(); });
    ConnectGuarded(F12dateselect, &QRadioButton::clicked, this, [this] { F12dateselect_Click(); });
    ConnectGuarded(F12check, &QPushButton::clicked, this, [this] { F12check_Click(); });
    ConnectGuarded(F12clear, &QPushButton::clicked, this, [this] { F12clear_Click(); });
}

Card* CheckPage::MakeUserCard()
{
    F12user->setMinimumContentsLength(7);
    Card* card = MakeGroup(u"User"_s, u"F12label1"_s, u"F12shape1"_s);
    card->Content()->addWidget(F12user);
    card->Content()->addStretch(1);
    return card;
}

Card* CheckPage::MakeTypeCard()
{
    Card* card = MakeGroup(u"Draw Type"_s, u"F12label2"_s, QString());
    card->Content()->addWidget(MakeOptions(u"F12frame1"_s, {F12typem, F12typet, F12typeb}));
    card->Content()->addStretch(1);
    return card;
}

Card* CheckPage::MakeDateCard()
{
    Card* card = MakeGroup(u"Date"_s, u"F12label3"_s, u"F12shape2"_s);
    auto* choice = new CardRow;
    choice->setSpacing(Spacing::Inside);
    choice->addWidget(MakeOptions(u"F12frame2"_s, {F12datelatest, F12dateselect}));
    choice->addWidget(KeepingRoom(F12cal));
    choice->addStretch(1);
    card->Content()->addLayout(choice);
    card->Content()->addStretch(1);
    return card;
}

void CheckPage::Prepare()
{
    const QString whyNot =
        u"You cannot check entries until you have"_s + Crlf + u"created a user profile and created entries."_s;
    if (FillUserList(F12user, pages, whyNot).empty())
        return;
    F12user->insertItem(0, AllUsers);
    F12user->setCurrentIndex(0);
    F12typeb->setChecked(true);
    F12datelatest->setChecked(true);
    F12datelatest_Click();
    F12clear_Click();
    show();
}

void CheckPage::F12datelatest_Click()
{
    F12cal->hide();
}

void CheckPage::F12dateselect_Click()
{
    F12cal->setDate(QDate::currentDate());
    F12cal->show();
}

void CheckPage::F12check_Click()
{
    ShowClearAndPrint(true);
    F12text->Show(WriteCheckReport(UsersToCheck(), GamesToCheck(), ReadAllEntries(entries)));
}

void CheckPage::F12clear_Click()
{
    F12text->clear();
    ShowClearAndPrint(false);
}

void CheckPage::ShowClearAndPrint(bool shown)
{
    F12clear->setVisible(shown);
    F12print->setVisible(shown);
}

std::vector<CheckedUser> CheckPage::UsersToCheck() const
{
    const QString chosen = F12user->currentText();
    std::vector<CheckedUser> checked;
    for (const UserRow& user : ReadAllUsers(users))
        if (chosen == AllUsers || (user.name == chosen && checked.empty()))
            checked.push_back({user.number, user.name});
    return checked;
}

std::vector<CheckedGame> CheckPage::GamesToCheck() const
{
    std::vector<CheckedGame> games;
    if (!F12typet->isChecked())
        games.push_back(FindCheckDrawDate(MainGame));
    if (!F12typem->isChecked())
        games.push_back(FindCheckDrawDate(ThunderballGame));
    return games;
}

CheckedGame CheckPage::FindCheckDrawDate(const Game& game) const
{
    RecordSet& list = DrawListOf(game);
    CheckedGame checked{&game, std::nullopt};
    list.MoveFirst();
    if (list.IsEmpty())
        return checked;
    if (F12dateselect->isChecked() && !FindDrawByDate(list, F12cal->date()))
        return checked;
    const DrawRow draw = ReadDraw(list, game);
    checked.draw = CheckedDraw{DateFromIso(draw.date), draw.balls, ShortStoredDate(draw.date)};
    return checked;
}
