#include "look/button.h"

#include "look/theme.h"

#include <QKeyEvent>

bool IsEnter(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

Button::Button(const QString& caption, const QString& name, QWidget* parent) : QPushButton(caption, parent)
{
    setObjectName(name);
    setAccessibleName(caption);
    setAutoDefault(false);
    // Where the page is too narrow for its buttons, they give up the room beside their captions.
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void Button::MakeQuietDefault()
{
    setProperty(AccentProperty, false);
    setDefault(true);
}

QSize Button::minimumSizeHint() const
{
    const int captionWidth = fontMetrics().horizontalAdvance(text()) + 2 * Spacing::Between;
    return {qMin(captionWidth, sizeHint().width()), sizeHint().height()};
}

void Button::MakeAccent()
{
    setProperty(AccentProperty, true);
    update();
}

void Button::keyPressEvent(QKeyEvent* event)
{
    if (IsEnter(*event))
        click();
    else
        QPushButton::keyPressEvent(event);
}

void EnterButton::keyPressEvent(QKeyEvent* event)
{
    if (IsEnter(*event))
        click();
    else
        QAbstractButton::keyPressEvent(event);
}
