#include "analysis/chart_texts.h"

#include "look/theme.h"

#include <QFontMetricsF>
#include <QGraphicsSimpleTextItem>

#include <cmath>
#include <cstdint>

int StepFor(int highest)
{
    constexpr int mostSteps = 7;
    for (int power = 1;; power *= 10)
        for (const int digit : {1, 2, 5})
            if (highest <= mostSteps * std::int64_t{digit} * power)
                return digit * power;
}

QFont Scaled(QFont font, qreal factor)
{
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * factor);
    else
        font.setPixelSize(qMax(1, static_cast<int>(font.pixelSize() * factor)));
    return font;
}

qreal WidestOf(const QList<QGraphicsSimpleTextItem*>& texts, const QFont& font)
{
    const QFontMetricsF metrics(font);
    qreal widest = 0;
    for (const QGraphicsSimpleTextItem* text : texts)
        widest = qMax(widest, metrics.horizontalAdvance(text->text()));
    return widest;
}

QFont FontThatFits(const QList<QGraphicsSimpleTextItem*>& texts, qreal columnWidth)
{
    const QFont body = FontFor(TextRole::Body);
    if (WidestOf(texts, body) <= columnWidth * 0.75)
        return body;
    const QFont caption = FontFor(TextRole::Caption);
    const qreal widest = WidestOf(texts, caption);
    const qreal room = columnWidth - 2;
    return widest <= room ? caption : Scaled(caption, room / widest * 0.99);
}

QFont EvenlySet(QFont font)
{
    const qreal digit = QFontMetricsF(font).horizontalAdvance(u'0');
    font.setLetterSpacing(QFont::AbsoluteSpacing, std::round(digit) - digit);
    return font;
}

qreal DigitMiddle(const QFont& font)
{
    const QFontMetricsF metrics(font);
    return metrics.ascent() - metrics.capHeight() / 2;
}
