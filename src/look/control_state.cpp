#include "look/control_state.h"

#include "look/control_painting.h"
#include "look/theme.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>

QRect RingPlace(const QStyleOption& option, const QWidget* widget)
{
    if (qobject_cast<const QCheckBox*>(widget) == nullptr && qobject_cast<const QRadioButton*>(widget) == nullptr)
        return option.rect;
    const QRect whole = widget->rect();
    const QRect caption = option.rect.adjusted(-Spacing::Inside, 0, Spacing::Inside, 0);
    const QPoint markSide = option.direction == Qt::LeftToRight ? whole.topLeft() : whole.topRight();
    return (caption | QRect(markSide, QSize(1, whole.height()))) & whole;
}

bool IsSelectionQuiet(const QWidget* view)
{
    return view != nullptr && !view->hasFocus() && view->window()->windowType() != Qt::Popup;
}

QStyleOptionViewItem AsDrawn(const QStyleOptionViewItem& item, const QWidget* view)
{
    QStyleOptionViewItem drawn(item);
    drawn.text.truncate(MostDrawnCharacters);
    if (!IsSelectionQuiet(view))
        return drawn;
    QColor quiet = item.palette.color(QPalette::Highlight);
    quiet.setAlphaF(0.4F);
    drawn.palette.setColor(QPalette::Highlight, quiet);
    drawn.palette.setColor(QPalette::HighlightedText, item.palette.color(QPalette::Text));
    return drawn;
}

bool IsBareView(const QWidget* widget)
{
    return qobject_cast<const QAbstractScrollArea*>(widget) != nullptr && widget->property(BareProperty).toBool();
}

bool IsBareField(const QWidget& field)
{
    return field.property(BareProperty).toBool() || qobject_cast<const QComboBox*>(field.parentWidget()) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(field.parentWidget()) != nullptr;
}

bool HasRoomForRing(const QWidget* widget)
{
    return IsBareView(widget) ||
           (qobject_cast<const QAbstractItemView*>(widget) != nullptr && widget->window()->windowType() != Qt::Popup);
}
