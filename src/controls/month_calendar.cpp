#include "controls/month_calendar.h"

#include "look/control_painting.h"
#include "look/theme.h"

#include <QEvent>
#include <QLineEdit>
#include <QLocale>
#include <QPainter>
#include <QSpinBox>
#include <QTableView>
#include <QTextCharFormat>
#include <QToolButton>

using namespace Qt::StringLiterals;

MonthCalendar::MonthCalendar(const QString& name) : year(findChild<QSpinBox*>("qt_calendar_yearedit"_L1))
{
    setLocale(QLocale(QLocale::English, QLocale::UnitedKingdom));
    setFirstDayOfWeek(Qt::Monday);
    setVerticalHeaderFormat(NoVerticalHeader);
    setHorizontalHeaderFormat(ShortDayNames);
    setSelectedDate(QDate::currentDate());
    // Digits that are typed on the days would choose a date that is not seen.
    setDateEditEnabled(false);
    // Seven rows and the bar above them, with room for the disc of the chosen day whatever stands beside the calendar.
    setMinimumHeight(8 * (fontMetrics().height() + Spacing::Between));
    setAccessibleName(name);
    // Around its days the card is seen.
    setAutoFillBackground(false);
    for (const char* arrow : {"qt_calendar_prevmonth", "qt_calendar_nextmonth"}) {
        auto* button = findChild<QToolButton*>(QLatin1String(arrow));
        const bool previous = button->objectName() == "qt_calendar_prevmonth"_L1;
        button->setIcon(QIcon());
        button->setText(previous ? u"‹"_s : u"›"_s);
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        button->setFont(FontFor(TextRole::Heading));
        button->setAccessibleName(previous ? u"Previous month"_s : u"Next month"_s);
    }
    for (const char* heading : {"qt_calendar_monthbutton", "qt_calendar_yearbutton"})
        findChild<QToolButton*>(QLatin1String(heading))->setFont(FontFor(TextRole::Strong));
    year->setFrame(true);
    year->setButtonSymbols(QSpinBox::NoButtons);
    year->setFont(FontFor(TextRole::Strong));
    // What is typed into it ends where the arrow keys go through the days.
    connect(year->findChild<QLineEdit*>(), &QLineEdit::returnPressed, this, [this] { setFocus(); });
    auto* days = findChild<QTableView*>("qt_calendar_calendarview"_L1);
    days->setAccessibleName(accessibleName());
    days->setProperty(BareProperty, true);
    days->setFrameShape(QFrame::StyledPanel);
    TakeColours();
    connect(this, &QCalendarWidget::clicked, this, &MonthCalendar::DateChosen);
    connect(this, &QCalendarWidget::activated, this, &MonthCalendar::DateChosen);
}

void MonthCalendar::paintCell(QPainter* painter, const QRect& rect, QDate date) const
{
    const QPalette& colours = palette();
    const bool selected = date == selectedDate();
    const bool otherMonth = date.month() != monthShown() || date.year() != yearShown();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const qreal side = qMin(rect.width(), rect.height()) - 2;
    QRectF disc(0, 0, side, side);
    disc.moveCenter(QRectF(rect).center());
    if (selected) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(colours.color(QPalette::Highlight));
        painter->drawEllipse(disc);
    } else if (date == QDate::currentDate()) {
        painter->setPen(QPen(colours.color(QPalette::Highlight), 1));
        painter->drawEllipse(disc.adjusted(0.5, 0.5, -0.5, -0.5));
    }
    QColor text = colours.color(selected ? QPalette::HighlightedText : QPalette::Text);
    if (otherMonth && !selected)
        text = colours.color(QPalette::PlaceholderText);
    painter->setPen(text);
    painter->drawText(rect, Qt::AlignCenter, QString::number(date.day()));
    painter->restore();
}

void MonthCalendar::changeEvent(QEvent* event)
{
    QCalendarWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        TakeColours();
}

void MonthCalendar::TakeColours()
{
    const QPalette& colours = palette();
    QTextCharFormat header;
    header.setForeground(colours.color(QPalette::PlaceholderText));
    header.setFontPointSize(FontFor(TextRole::Caption).pointSizeF());
    header.setBackground(colours.color(QPalette::AlternateBase));
    if (headerTextFormat() != header)
        setHeaderTextFormat(header);
    for (const auto day : {Qt::Saturday, Qt::Sunday})
        setWeekdayTextFormat(day, QTextCharFormat());
    // The calendar lies on a card, and the chosen day is marked by its disc alone.
    QPalette onCard = colours;
    for (const auto role : {QPalette::Base, QPalette::Button, QPalette::Highlight})
        onCard.setColor(role, colours.color(QPalette::AlternateBase));
    onCard.setColor(QPalette::HighlightedText, colours.color(QPalette::Text));
    findChild<QTableView*>("qt_calendar_calendarview"_L1)->setPalette(onCard);
    auto* bar = findChild<QWidget*>("qt_calendar_navigationbar"_L1);
    bar->setBackgroundRole(QPalette::AlternateBase);
    bar->setPalette(onCard);
    year->setPalette(colours);
    for (auto* button : bar->findChildren<QToolButton*>()) {
        button->setPalette(onCard);
        button->setAutoRaise(true);
    }
}
