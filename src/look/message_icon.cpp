#include "look/message_icon.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

namespace {

enum class Sign
{
    Information,
    Critical
};

class MessageIcon : public QIconEngine
{
public:
    explicit MessageIcon(Sign shownSign) : sign(shownSign) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        const qreal unit = rect.width() / 20.0;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(unit, unit);
        const bool information = sign == Sign::Information;
        painter->setPen(Qt::NoPen);
        painter->setBrush(information ? QColor("#4A63C8") : QColor("#C0303B"));
        painter->drawEllipse(QRectF(1, 1, 18, 18));
        painter->setPen(QPen(Qt::white, 2.2, Qt::SolidLine, Qt::RoundCap));
        if (information) {
            painter->drawPoint(QPointF(10, 5.8));
            painter->drawLine(QPointF(10, 9.6), QPointF(10, 14.4));
        } else {
            painter->drawLine(QPointF(6.8, 6.8), QPointF(13.2, 13.2));
            painter->drawLine(QPointF(13.2, 6.8), QPointF(6.8, 13.2));
        }
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }

    QIconEngine* clone() const override { return new MessageIcon(sign); }

private:
    Sign sign;
};

} // namespace

QIcon InformationIcon()
{
    return QIcon(new MessageIcon(Sign::Information));
}

QIcon CriticalIcon()
{
    return QIcon(new MessageIcon(Sign::Critical));
}
