#include "users/entry_view_page.h"

#include "balls/ball_names.h"
#include "balls/ball_row.h"
#include "base/dates.h"
#include "controls/guard.h"
#include "controls/label.h"
#include "game/game.h"
#include "look/button.h"
#include "look/theme.h"
#include "store/open_databases.h"
#include "store/user_records.h"
#include "users/entry_head.h"

#include <QEvent>
#include <QGridLayout>

using namespace Qt::StringLiterals;

EntryViewPage::EntryViewPage()
    : PageFrame(19, u"View Entry in Detail"_s),
      head(new EntryHead(u"F19"_s)),
      balls(new BallRow(EntryBallNames(u"F19num"_s, u"F19ball"_s), EntryBallCaptions())),
      F19back(AddFooterButton(u"BACK"_s, u"F19back"_s))
{
    balls->LastCaption()->setObjectName(u"F19thunderlabel"_s);
    balls->LastCaption()->setText(ThunderballGame.extraBallName);
    auto* ballCard = new Card;
    ballCard->Content()->addWidget(balls);
    for (Card* card : {static_cast<Card*>(head), ballCard, MakeDayCard()})
        Body()->addWidget(card);
    MakeForm();
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
    for (int day = 0; day < DaysOfWeek; ++day) {
        QLabel*& label = F19day.at(static_cast<size_t>(day));
        label = MakeLabel(DayNames.at(static_cast<size_t>(day)), TextRole::Strong, ElementName(u"F19day"_s, day));
        grid->addWidget(label, day % rowsInColumn, day / rowsInColumn);
    }
    grid->setColumnStretch(2, 1);
    card->Content()->addLayout(grid);
    return card;
}

void EntryViewPage::Prepare()
{
    const EntryRow entry = ReadEntry(entries);
    const Game& game = GameOfDrawType(entry.drawType);
    head->Show(ReadUser(users).name, game);
    balls->Show(game, entry.numbers);
    balls->SetLastApart(!game.IsMain());
    balls->LastCaption()->setVisible(!game.IsMain());
    days = entry.days;
    ColourDays();
    ShowInFront();
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
        label->setAccessibleDescription(days.at(day) ? u"played"_s : u"not played"_s);
    }
}
