#include "analysis/ball_data_page.h"

#include "controls/card.h"
#include "controls/guard.h"
#include "controls/label.h"
#include "game/ball_colours.h"
#include "look/button.h"
#include "look/theme.h"

#include <QHBoxLayout>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

void ShowIn(const LabelledBall& disc, const Game& game, int slot, int ball)
{
    disc.Show(u"%1"_s.arg(ball, 2, 10, QChar(u'0')), ColoursOfBall(game, slot, ball));
}

} // namespace

BallDataPage::BallDataPage(const Game& drawGame)
    : PageFrame(drawGame.IsMain() ? 23 : 24, u"Individual Ball Data"_s),
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
    const bool canBeExtra = ball <= game.highestExtra;
    if (extraBall.disc != nullptr) {
        ShowIn(extraBall, game, game.mainBalls, ball);
        extraBall.disc->setVisible(canBeExtra);
        extraBall.number->setVisible(canBeExtra);
    }
    const BallSentences asMain = DescribeBall(game, BallType::MainBalls, ball);
    const BallSentences asExtra = canBeExtra ? DescribeBall(game, BallType::ExtraBall, ball) : BallSentences();
    data[0]->setText(asMain.lastDrawn);
    data[1]->setText(asMain.count);
    data[2]->setText(asExtra.lastDrawn);
    data[3]->setText(asExtra.count);
}
