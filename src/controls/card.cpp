#include "controls/card.h"

#include "look/theme.h"

#include <QPainter>

Card::Card(QWidget* parent) : QFrame(parent), content(new QVBoxLayout(this))
{
    content->setContentsMargins(Spacing::Cards, Spacing::Cards, Spacing::Cards, Spacing::Cards);
    content->setSpacing(Spacing::Between);
}

void Card::paintEvent(QPaintEvent* /*event*/)
{
    constexpr qreal corner = 12;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Mid), 1));
    painter.setBrush(palette().color(QPalette::AlternateBase));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
}

CardRow::CardRow(QWidget* parent) : QBoxLayout(LeftToRight, parent)
{
    setSpacing(Spacing::Cards);
}

QSize CardRow::minimumSize() const
{
    int width = 0;
    for (const QSize& size : SmallestSizes())
        width = qMax(width, size.width());
    return {width, QBoxLayout::minimumSize().height()};
}

void CardRow::setGeometry(const QRect& place)
{
    int rowWidth = -spacing();
    for (const QSize& size : SmallestSizes())
        rowWidth += size.width() + spacing();
    const Direction wanted = rowWidth <= place.width() ? LeftToRight : TopToBottom;
    if (wanted != direction()) {
        setDirection(wanted);
        // The page must give it another height.
        update();
    }
    QBoxLayout::setGeometry(place);
}

QList<QSize> CardRow::SmallestSizes() const
{
    QList<QSize> sizes;
    for (int item = 0; item < count(); ++item)
        if (!itemAt(item)->isEmpty())
            sizes.append(itemAt(item)->minimumSize());
    return sizes;
}
