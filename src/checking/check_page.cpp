#include "checking/check_page.h"

#include "base/dates.h"
#include "controls/card.h"
#include "controls/card_row.h"
#include "controls/guard.h"
#include "controls/keeping_room.h"
#include "controls/label.h"
#include "controls/message_box.h"
#include "controls/page_switch.h"
#include "look/button.h"
#include "look/theme.h"
#include "store/draw_records.h"
#include "store/open_databases.h"
#include "store/user_records.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QDateEdit>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QTextCursor>
#include <QTextEdit>

using namespace Qt::StringLiterals;

namespace {

const QString AllUsers = u"All Users"_s;

QRadioButton* MakeOption(const QString& caption, const QString& name)
{
    auto* option = new QRadioButton(caption);
    option->setObjectName(name);
    option->setAccessibleName(caption);
    return option;
}

Card* MakeGroup(const QString& caption, const QString& captionName, const QString& shapeName)
{
    auto* card = new Card;
    card->setObjectName(shapeName);
    card->Content()->setContentsMargins(Spacing::Between, Spacing::Between, Spacing::Between, Spacing::Between);
    card->Content()->setSpacing(Spacing::Inside);
    card->Content()->addWidget(MakeLabel(caption, TextRole::Caption, captionName));
    return card;
}

void AddOptions(Card* card, const QString& frameName, std::initializer_list<QRadioButton*> options)
{
    auto* frame = new QWidget;
    frame->setObjectName(frameName);
    // The options stand level with the list on the card beside them.
    frame->setMinimumHeight(QComboBox().sizeHint().height());
    auto* group = new QButtonGroup(card);
    auto* row = new QHBoxLayout(frame);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Spacing::Between);
    for (QRadioButton* option : options) {
        group->addButton(option);
        row->addWidget(option);
    }
    row->addStretch(1);
    card->Content()->addWidget(frame);
}

} // namespace

CheckPage::CheckPage(PageSwitch& pageSwitch)
    : PageFrame(12, u"Check Entries"_s),
      pages(pageSwitch),
      F12user(new QComboBox),
      F12typem(MakeOption(u"Main"_s, u"F12typem"_s)),
      F12typet(MakeOption(u"Thunderball"_s, u"F12typet"_s)),
      F12typeb(MakeOption(u"Both"_s, u"F12typeb"_s)),
      F12datelatest(MakeOption(u"Latest Draw"_s, u"F12datelatest"_s)),
      F12dateselect(MakeOption(u"Select Date"_s, u"F12dateselect"_s)),
      F12cal(new QDateEdit),
      F12text(new QTextEdit)
{
    BuildCards();
    F12clear = AddFooterButton(u"Clear"_s, u"F12clear"_s);
    F12print = AddFooterButton(u"Print"_s, u"F12print"_s);
    F12check = AddFooterDefault(u"Check Now"_s, u"F12check"_s);
    ConnectHandlers();
}

void CheckPage::BuildCards()
{
    F12user->setObjectName(u"F12user"_s);
    F12user->setAccessibleName(u"User"_s);
    F12user->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    F12user->setMinimumContentsLength(7);
    F12cal->setObjectName(u"F12cal"_s);
    F12cal->setAccessibleName(u"Date of the draw"_s);
    F12cal->setCalendarPopup(true);
    F12text->setObjectName(u"F12text"_s);
    F12text->setAccessibleName(u"Report"_s);
    F12text->setReadOnly(true);
    F12text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    F12text->setUndoRedoEnabled(false);
    F12text->setFrameShape(QFrame::NoFrame);
    F12text->viewport()->setBackgroundRole(QPalette::AlternateBase);
    QFont digits = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    digits.setPointSizeF(FontFor(TextRole::Body).pointSizeF());
    F12text->setFont(digits);

    Card* userCard = MakeGroup(u"User"_s, u"F12label1"_s, u"F12shape1"_s);
    userCard->Content()->addWidget(F12user);
    Card* typeCard = MakeGroup(u"Draw Type"_s, u"F12label2"_s, QString());
    AddOptions(typeCard, u"F12frame1"_s, {F12typem, F12typet, F12typeb});
    Card* dateCard = MakeGroup(u"Date"_s, u"F12label3"_s, u"F12shape2"_s);
    AddOptions(dateCard, u"F12frame2"_s, {F12datelatest, F12dateselect});
    dateCard->Content()->addWidget(KeepingRoom(F12cal));
    for (Card* card : {userCard, typeCard, dateCard})
        card->Content()->addStretch(1);
    auto* who = new CardRow;
    who->setSpacing(Spacing::Between);
    who->addWidget(userCard, 1);
    who->addWidget(typeCard);
    auto* cards = new CardRow;
    cards->setSpacing(Spacing::Between);
    cards->addLayout(who, 1);
    cards->addWidget(dateCard);
    Body()->addLayout(cards);

    auto* reportCard = new Card;
    reportCard->Content()->addWidget(F12text);
    Body()->addWidget(reportCard, 1);
}

void CheckPage::ConnectHandlers()
{
    ConnectGuarded(F12datelatest, &QRadioButton::clicked, this, [this] { F12datelatest_Click(); });
    ConnectGuarded(F12dateselect, &QRadioButton::clicked, this, [this] { F12dateselect_Click(); });
    ConnectGuarded(F12check, &QPushButton::clicked, this, [this] { F12check_Click(); });
    ConnectGuarded(F12clear, &QPushButton::clicked, this, [this] { F12clear_Click(); });
}

void CheckPage::Prepare()
{
    users.MoveFirst();
    if (users.IsEmpty()) {
        pages.ChooseMenu(3, 1);
        ShowMessage(u"You cannot check entries until you have"_s + Crlf +
                    u"created a user profile and created entries."_s);
        return;
    }
    FillCheckUserList();
    F12typeb->setChecked(true);
    F12datelatest->setChecked(true);
    F12datelatest_Click();
    F12clear_Click();
    show();
}

void CheckPage::FillCheckUserList()
{
    F12user->clear();
    F12user->addItem(AllUsers);
    for (const UserRow& user : ReadAllUsers(users))
        F12user->addItem(user.name);
    F12user->setCurrentIndex(0);
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
    const std::vector<EntryRow> allEntries = ReadAllEntries(entries);
    const std::vector<CheckedGame> games = allEntries.empty() ? std::vector<CheckedGame>() : GamesToCheck();
    ShowReport(WriteCheckReport(UsersToCheck(), games, allEntries));
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
    std::vector<CheckedUser> checked;
    for (const UserRow& user : ReadAllUsers(users)) {
        if (F12user->currentText() != AllUsers && user.name != F12user->currentText())
            continue;
        checked.push_back({user.number, user.name});
        if (F12user->currentText() != AllUsers)
            break;
    }
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
    const QDate date = DateFromIso(draw.date);
    if (date.isValid())
        checked.draw = CheckedDraw{date, draw.balls};
    return checked;
}

void CheckPage::ShowReport(const CheckReport& report)
{
    QTextCharFormat emphasised;
    emphasised.setFontWeight(QFont::Bold);
    // A new text takes on the format at the cursor, which may stand in an emphasised line of the old one.
    F12text->setTextCursor(QTextCursor(F12text->document()));
    F12text->setCurrentCharFormat(QTextCharFormat());
    // The text goes in at once and is laid out once; line by line it would take several times as long.
    F12text->setPlainText(report.text);
    QTextCursor caret(F12text->document());
    caret.beginEditBlock();
    qsizetype counted = 0;
    qsizetype lineBreaks = 0;
    // A line break is two characters of the report, but one place in the document.
    const auto placeOf = [&](qsizetype position) {
        lineBreaks += QStringView(report.text).mid(counted, position - counted).count(u'\r');
        counted = position;
        return static_cast<int>(position - lineBreaks);
    };
    for (const CheckReport::Span& span : report.emphasised) {
        caret.setPosition(placeOf(span.start));
        caret.setPosition(placeOf(span.start + span.length), QTextCursor::KeepAnchor);
        caret.setCharFormat(emphasised);
    }
    caret.endEditBlock();
}
