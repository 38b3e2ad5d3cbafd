#include "balls/ball_edit.h"

#include "look/control_painting.h"
#include "look/theme.h"

#include <QDropEvent>
#include <QFocusEvent>
#include <QTimer>

BallEdit::BallEdit(QWidget* parent) : TextBox(parent)
{
    setProperty(BareProperty, true);
    setFrame(false);
    setAlignment(Qt::AlignCenter);
    setFont(FontFor(TextRole::Heading));
    setAttribute(Qt::WA_MacShowFocusRect, false);
}

void BallEdit::SetColours(const QColor& ball, const QColor& digits)
{
    QPalette changed = palette();
    changed.setColor(QPalette::Base, ball);
    changed.setColor(QPalette::Text, digits);
    setPalette(changed);
}

void BallEdit::focusInEvent(QFocusEvent* event)
{
    TextBox::focusInEvent(event);
    if (!selectsOnFocus)
        return;
    selectAll();
    // The press of the mouse that brings the focus goes on to place the cursor, so the text is selected after it.
    if (event->reason() == Qt::MouseFocusReason)
        QTimer::singleShot(0, this, &QLineEdit::selectAll);
}

void BallEdit::dropEvent(QDropEvent* event)
{
    TextBox::dropEvent(event);
    // Text that is dropped is checked like text that is typed: when the field is left.
    setFocus(Qt::OtherFocusReason);
}
