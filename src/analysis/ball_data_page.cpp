#include "analysis/ball_data_page.h"

#include "controls/card.h"
#include "controls/guard.h"
#include "controls/label.h"
#include "game/ball_colours.h"
#include "game/game.h"
#include "look/button.h"
#include "look/theme.h"
#include "store/open_databases.h"

#include <QHBoxLayout>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

int PageOf(const Game& game)
{
    return game.IsMain() ? 23 : 24;
}

void ShowIn(const LabelledBall& disc, const Game& game, int slot, int ball)
{
    disc.Show(TwoDigits(ball), ColoursOfBall(game, slot, ball));
}

} // namespace

BallDataPage::BallDataPage(const Game& drawGame)
    : PageFrame(PageOf(drawGame), u"Individual Ball Data"_s),
      game(drawGame),
      enter(new QLineEdit),
      mainBall(PutLabelOn(new BallDisc(ControlName(u"ball"_s)), ControlName(u"number"_s)))
{
    if (!game.extraFromSameMachine)
        extraBall = PutLabelOn(new BallDisc(ControlName(u"ball2"_s)), ControlName(u"number2"_s));
    BuildCards();
    Button* backButton = AddFooterButton(u"BACK"_s, ControlName(u"back"_s));
    SetBackButton(backButton);
    ConnectGuarded(enter, &QLineEdit::textChanged, this, [this] { enter_Change(); });
    ConnectGuarded(enter, &QLineEdit::returnPressed, this, [this] { enter_KeyPress(); });
    // F23back_Click, F24back_Click.
    ConnectGuarded(backButton, &QPushButton::clicked, this, [this] { hide(); });
}

void BallDataPage::BuildCards()
{
    QLabel* subtitle = MakeLabel(game.name + u" Draw"_s, TextRole::Heading, ControlName(u"titlelabel2"_s));
    subtitle->setForegroundRole(QPalette::PlaceholderText);
    Body()->addWidget(subtitle);

    enter->setObjectName(ControlName(u"enter"_s));
    enter->setAccessibleName(u"Ball Number"_s);
    enter->setFont(FontFor(TextRole::Heading));
    enter->setAlignment(Qt::AlignCenter);
    enter->setFixedWidth(enter->fontMetrics().averageCharWidth() * 12);
    auto* row = new QHBoxLayout;
    row->setSpacing(Spacing::Between);
    row->addWidget(MakeLabel(u"Enter"_s, TextRole::Body, ControlName(u"label1"_s)));
    row->addWidget(MakeLabel(u"Ball Number"_s, TextRole::Strong, ControlName(u"label2"_s)));
    row->addWidget(enter);
    row->addSpacing(Spacing::Page);
    row->addWidget(mainBall.disc);
    if (extraBall.disc != nullptr)
        row->addWidget(extraBall.disc);
    row->addStretch(1);
    auto* entryCard = new Card;
    entryCard->Content()->addLayout(row);
    Body()->addWidget(entryCard);

    auto* box = new Card;
    box->setObjectName(ControlName(u"box"_s));
    for (int index = 1; index <= 4; ++index) {
        QLabel*& sentence = data.at(static_cast<size_t>(index) - 1);
        sentence = MakeStoredTextLabel({}, TextRole::Body, ElementName(ControlName(u"data"_s), index));
        sentence->setMinimumHeight(sentence->fontMetrics().lineSpacing());
        if (index == 3)
            box->Content()->addSpacing(Spacing::Cards);
        box->Content()->addWidget(sentence);
    }
    Body()->addWidget(box);
    MakeForm();
}

void BallDataPage::Prepare()
{
    // A text that does not change would fill nothing.
    enter->clear();
    enter->setText(u"1"_s);
    enter->clear();
    ShowInFront();
    enter->setFocus();
}

void BallDataPage::enter_Change()
{
    if (const std::optional<int> ball = TypedBall(game, enter->text()))
        ShowBallData(*ball);
}

void BallDataPage::enter_KeyPress()
{
    enter_Change();
    enter->clear();
}

void BallDataPage::ShowBallData(int ball)
{
    ShowIn(mainBall, game, 0, ball);
    ShowRole(MainBallRole(game), ball, data[0], data[1]);
    const bool canBeExtra = ball <= game.highestExtra;
    if (extraBall.disc != nullptr) {
        ShowIn(extraBall, game, game.mainBalls, ball);
        extraBall.disc->setVisible(canBeExtra);
        extraBall.number->setVisible(canBeExtra);
    }
    if (canBeExtra) {
        ShowRole(ExtraBallRole(game), ball, data[2], data[3]);
    } else {
        data[2]->clear();
        data[3]->clear();
    }
}

void BallDataPage::ShowRole(const BallRole& role, int ball, QLabel* lastDrawn, QLabel* count)
{
    const BallAppearances found = FindBall(DrawListOf(game), role, ball);
    lastDrawn->setText(LastDrawnSentence(role, found));
    count->setText(CountSentence(role, found));
}
