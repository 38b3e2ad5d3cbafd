#include "balls/ball_edit.h"

#include "look/control_painting.h"
#include "look/theme.h"

#include <QApplication>
#include <QFocusEvent>
#include <QTimer>

namespace {

class PressSwallower : public QObject
{
public:
    explicit PressSwallower(QObject* parent) : QObject(parent)
    {
        qApp->installEventFilter(this);
        // The press is delivered in this turn of the event loop or not at all.
        QTimer::singleShot(0, this, &QObject::deleteLater);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::MouseButtonPress || !watched->isWidgetType())
            return false;
        qApp->removeEventFilter(this);
        return true;
    }
};

} // namespace

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

void SwallowMousePressInProgress()
{
    new PressSwallower(qApp);
}
