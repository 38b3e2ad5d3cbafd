#include "controls/scrolling_content.h"

#include <QScrollBar>

RollingArea::RollingArea(QWidget* content)
{
    setWidget(content);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    content->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
}

QSize RollingArea::sizeHint() const
{
    return widget()->sizeHint();
}

QSize RollingArea::minimumSizeHint() const
{
    constexpr int leastLines = 6;
    const QSize content = widget()->minimumSizeHint();
    return {content.width() + verticalScrollBar()->sizeHint().width(),
            qMin(content.height(), leastLines * fontMetrics().height())};
}
