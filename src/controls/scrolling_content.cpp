#include "controls/scrolling_content.h"

#include "look/theme.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>

ScrollingContent::ScrollingContent(QWidget* content)
{
    setWidget(content);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    // A widget that is put into a scroll area is made to fill its background.
    content->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget* /*before*/, QWidget* now) { BringIntoView(now); });
}

ScrollingContent::~ScrollingContent()
{
    // What has the focus loses it while the content is deleted, when this is no scroll area of its own any more.
    disconnect(qApp, nullptr, this, nullptr);
}

void ScrollingContent::BringIntoView(QWidget* focused)
{
    // What is clicked must not move away under the mouse.
    if (focused == nullptr || !widget()->isAncestorOf(focused) || QApplication::mouseButtons() != Qt::NoButton)
        return;
    ensureWidgetVisible(focused, Spacing::Cards, Spacing::Cards);
    // Of a grid the toolkit shows the current row alone.
    const QPoint middle = focused->mapTo(widget(), focused->rect().center());
    if (focused->height() + 2 * Spacing::Cards <= viewport()->height())
        ensureVisible(middle.x(), middle.y(), 0, focused->height() / 2 + Spacing::Cards);
}

void ScrollingContent::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    BringIntoView(window()->focusWidget());
}

bool ScrollingContent::eventFilter(QObject* watched, QEvent* event)
{
    const bool taken = QScrollArea::eventFilter(watched, event);
    QLayout* layout = watched == widget() ? widget()->layout() : nullptr;
    if (layout != nullptr && event->type() == QEvent::LayoutRequest) {
        // A text that needs more lines than before pushes down what stands below it.
        layout->activate();
        BringIntoView(window()->focusWidget());
    }
    return taken;
}

QSize ScrollingContent::sizeHint() const
{
    return widget()->sizeHint();
}

QSize ScrollingContent::minimumSizeHint() const
{
    constexpr int leastLines = 6;
    const int least = leastLines * fontMetrics().height();
    return widget()->minimumSizeHint().boundedTo(QSize(2 * least, least));
}
