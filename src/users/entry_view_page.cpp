#include "users/entry_view_page.h"

#include "draws/ball_row.h"
#include "draws/game.h"
#include "platform/dates.h"
#include "platform/guard.h"
#include "users/entry_head.h"

#include <QEvent>
#include <QGridLayout>

EntryViewPage::EntryViewPage()
    : PageFrame(19, QStringLiteral("View Entry in Detail")),
      head(new EntryHead(QStringLiteral("F19"))),
      balls(new BallRow(
          {QStringLiteral("F19num"), QStringLiteral("F19ball"), QStringLiteral("F19caption"), {1, 2, 3, 4, 5, 6}},
          EntryBallCaptions())),
      F19back(AddFooterDefault(QStringLiteral("BACK"), QStringLiteral("F19back")))
{
    KeepThunderballCaptionOnly(balls, QStringLiteral("F19thunderlabel"));
    auto* ballCard = new Card;
    ballCard->Content()->addWidget(balls);
    for (Card* card : {static_cast<Card*>(head), ballCard, MakeDayCard()})
        Body()->addWidget(card);
    Body()->addStretch(1);
    SetBackButton(F19back);
    // F19back_Click.
    ConnectGuarded(F19back, &QPushButton::clicked, this, [this] { hide(); });
}

Card* EntryViewPage::MakeDayCard()
{
    auto* card = new Card;
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(Spacing::Page);
    grid->setVerticalSpacing(Spacing::Between);
    constexpr int rowsInColumn = 4;
    for (int day = 0; day < 7; ++day) {
        QLabel*& label = F19day.at(static_cast<size_t>(day));
        label = MakeLabel(DayNames.at(static_cast<size_t>(day)), TextRole::Strong,
                          ElementName(QStringLiteral("F19day"), day));
        grid->addWidget(label, day % rowsInColumn, day / rowsInColumn);
    }
    grid->setColumnStretch(2, 1);
    card->Content()->addLayout(grid);
    return card;
}

void EntryViewPage::Show(const EntryRow& entry, const QString& userName)
{
    const Game& game = entry.drawType == MainGame.drawType ? MainGame : ThunderballGame;
    const bool isMain = &game == &MainGame;
    head->Show(userName, game);
    balls->Show(game, entry.numbers);
    balls->SetLastApart(!isMain);
    balls->Caption(5)->setVisible(!isMain);
    days = entry.days;
    ColourDays();
    F19back->setFocus();
}

void EntryViewPage::changeEvent(QEvent* event)
{
    PageFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && F19day.back() != nullptr)
        ColourDays();
}

void EntryViewPage::ColourDays()
{
    // Black would not be seen on a dark page; there a played day has the colour of all other text.
    const QColor played = CurrentTheme().dark ? CurrentTheme().text : QColor(Qt::black);
    const QColor notPlayed(0x80, 0x80, 0x80);
    for (size_t day = 0; day < days.size(); ++day) {
        QLabel* label = F19day.at(day);
        QPalette palette = label->palette();
        palette.setColor(QPalette::WindowText, days.at(day) ? played : notPlayed);
        label->setPalette(palette);
        // The colour is not the only sign.
        label->setFont(FontFor(days.at(day) ? TextRole::Strong : TextRole::Body));
        label->setAccessibleDescription(days.at(day) ? QStringLiteral("played") : QStringLiteral("not played"));
    }
}
