#include "controls/scrolling_content.h"

#include "look/theme.h"

#include <QApplication>

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
    if (focused != nullptr && widget()->isAncestorOf(focused))
        ensureWidgetVisible(focused, Spacing::Cards, Spacing::Cards);
}

void ScrollingContent::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    BringIntoView(window()->focusWidget());
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
