#include "users/entry_view_page.h"

#include "balls/ball_row.h"
#include "base/dates.h"
#include "controls/guard.h"
#include "controls/label.h"
#include "game/game.h"
#include "look/button.h"
#include "look/theme.h"

#include <QEvent>
#include <QGridLayout>

using namespace Qt::StringLiterals;

EntryViewPage::EntryViewPage() : EntryPage(19), balls(new BallRow(BallNames()))
{
    Build(balls, MakeDays());
    // F19back_Click.
    ConnectGuarded(Back(), &QPushButton::clicked, this, [this] { hide(); });
}

QWidget* EntryViewPage::MakeDays()
{
    auto* dayNames = new QWidget;
    auto* grid = new QGridLayout(dayNames);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(Spacing::Page);
    grid->setVerticalSpacing(Spacing::Between);
    constexpr int rowsInColumn = 4;
    for (int day = 0; day < DaysOfWeek; ++day) {
        QLabel*& label = F19day.at(static_cast<size_t>(day));
        label = MakeLabel(DayNames.at(static_cast<size_t>(day)), TextRole::Strong, ElementName(u"F19day"_s, day));
        grid->addWidget(label, day % rowsInColumn, day / rowsInColumn);
    }
    grid->setColumnStretch(2, 1);
    return dayNames;
}

void EntryViewPage::Prepare()
{
    const EntryRow entry = ShowHead();
    balls->Show(ShownGame(), entry.numbers);
    days = entry.days;
    ColourDays();
}

void EntryViewPage::changeEvent(QEvent* event)
{
    EntryPage::changeEvent(event);
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
