#include "controls/date_field.h"

#include "base/dates.h"
#include "controls/month_calendar.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QLineEdit>
#include <QMouseEvent>
#include <QStyleOptionSpinBox>

DateField::DateField(const QString& name, const QString& accessibleName)
{
    setObjectName(name);
    setAccessibleName(accessibleName);
    lineEdit()->setAccessibleName(accessibleName);
    setCalendarPopup(true);
    auto* calendar = new MonthCalendar(accessibleName);
    // A line around it tells it from the page.
    calendar->layout()->setContentsMargins(1, 1, 1, 1);
    calendar->setBackgroundRole(QPalette::Dark);
    calendar->setAutoFillBackground(true);
    setCalendarWidget(calendar);
    // With two digits of the year, what is typed could be the year of another century.
    setDisplayFormat(ShortDateFormat());
}

void DateField::keyPressEvent(QKeyEvent* event)
{
    const Qt::KeyboardModifiers modifiers = event->modifiers();
    if ((event->key() == Qt::Key_Down && (modifiers & Qt::AltModifier)) ||
        (event->key() == Qt::Key_F4 && modifiers == Qt::NoModifier))
        FoldOut();
    else
        QDateEdit::keyPressEvent(event);
}

void DateField::FoldOut()
{
    // The toolkit knows no other way than a press on the arrow.
    QStyleOptionComboBox option;
    option.initFrom(this);
    const QPointF arrow =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this).center();
    QMouseEvent press(QEvent::MouseButtonPress, arrow, mapToGlobal(arrow), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(this, &press);
    calendarWidget()->setFocus(Qt::PopupFocusReason);
}
