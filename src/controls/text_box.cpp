#include "controls/text_box.h"

#include "look/button.h"

#include <QKeyEvent>

TextBox::TextBox(QWidget* parent) : QLineEdit(parent) {}

void TextBox::keyPressEvent(QKeyEvent* event)
{
    if (IsEnter(*event))
        Q_EMIT EnterPressed();
    else
        QLineEdit::keyPressEvent(event);
}

void TextBox::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    const auto reason = event->reason();
    // A message box, a menu or another program takes the focus for a while only; a page that is being left is hidden.
    const bool goneForGood = reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
                             reason != Qt::MenuBarFocusReason && isVisible();
    if (goneForGood)
        Q_EMIT Left();
}
