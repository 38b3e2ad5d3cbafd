#pragma once

#include <QFont>
#include <QList>

class QGraphicsSimpleTextItem;

// How large the texts of a chart are, and where in their line the digits stand.

/// The smallest of 1, 2, 5, 10, 20, 50 and so on that divides the axis into few enough steps.
int StepFor(int highest);

QFont Scaled(QFont font, qreal factor);

/// The width of the widest of the texts in that font.
qreal WidestOf(const QList<QGraphicsSimpleTextItem*>& texts, const QFont& font);

/// The pages' own font where the texts have ample room in their columns, that of captions where they have enough, and a
/// smaller one where they have not.
QFont FontThatFits(const QList<QGraphicsSimpleTextItem*>& texts, qreal columnWidth);

/// Digits that are a whole number of pixels wide: turned text is set pixel by pixel, and they would stand unevenly.
QFont EvenlySet(QFont font);

/// How far below the top of a line of text the middle of its digits lies.
qreal DigitMiddle(const QFont& font);
