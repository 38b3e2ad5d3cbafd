#include "support/look_faults.h"

#include "analysis/screen_button.h"
#include "balls/ball_disc.h"
#include "look/button.h"
#include "look/control_painting.h"
#include "look/style.h"
#include "shell/page_area.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QHash>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>

#include <cmath>

namespace {

constexpr double TextContrast = 4.5;
constexpr double OutlineContrast = 3;
constexpr int LookedAtRows = 12;

QString NameOf(const QWidget& widget)
{
    return QString(widget.metaObject()->className()) + ' ' + widget.objectName();
}

QRect PlaceOf(const QWidget& widget)
{
    return {widget.mapTo(widget.window(), QPoint()), widget.size()};
}

template <typename... Kinds>
bool IsOneOf(const QWidget* widget)
{
    return ((qobject_cast<const Kinds*>(widget) != nullptr) || ...);
}

bool IsInSight(const QWidget& widget)
{
    return !widget.visibleRegion().isEmpty();
}

bool Fits(const QSize& needed, const QSize& given)
{
    return needed.width() <= given.width() && needed.height() <= given.height();
}

bool CellsFit(const QAbstractItemView& view)
{
    const QAbstractItemModel& model = *view.model();
    for (int row = 0; row < qMin(model.rowCount(), LookedAtRows); ++row)
        for (int column = 0; column < model.columnCount(); ++column)
            if (const QRect place = view.visualRect(model.index(row, column));
                place.isValid() &&
                view.fontMetrics().horizontalAdvance(model.index(row, column).data().toString()) > place.width())
                return false;
    for (const auto* header : view.findChildren<QHeaderView*>())
        for (int section = 0; header->isVisible() && section < header->count(); ++section)
            if (!header->isSectionHidden(section) &&
                header->sectionSizeHint(section) > header->sectionSize(section) + 8)
                return false;
    return true;
}

bool TextFits(const QWidget& widget)
{
    constexpr QSize buttonEdges(12, 6);
    constexpr QSize arrow(40, 0);
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->text().isEmpty() || (label->wordWrap() ? label->heightForWidth(label->width()) <= label->height()
                                                             : Fits(label->sizeHint(), label->size()));
    if (const auto* button = qobject_cast<const QPushButton*>(&widget))
        return Fits(button->fontMetrics().size(0, button->text()), button->size() - buttonEdges);
    if (const auto* edit = qobject_cast<const QLineEdit*>(&widget))
        return Fits(edit->fontMetrics().size(0, edit->text()), edit->size());
    if (const auto* list = qobject_cast<const QComboBox*>(&widget))
        return Fits(list->fontMetrics().size(0, list->currentText()), list->size() - arrow);
    if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget); view != nullptr && !CellsFit(*view))
        return false;
    if (const auto* area = qobject_cast<const QAbstractScrollArea*>(&widget);
        area != nullptr && area->horizontalScrollBar()->isVisible())
        return false;
    return widget.sizePolicy().hasHeightForWidth() ? widget.heightForWidth(widget.width()) <= widget.height()
                                                   : Fits(widget.minimumSizeHint(), widget.size());
}

/// Whether a widget stands over the edge of what it lies in, where the player cannot scroll to it.
bool IsCut(const QWidget& widget)
{
    const QWidget* outer = widget.parentWidget();
    return !outer->rect().contains(widget.geometry()) && !IsOneOf<QScrollArea>(outer->parentWidget());
}

bool MayOverlap(const QWidget& widget)
{
    // A page lies over the others; a frame that is drawn around a control lets the mouse through.
    return IsOneOf<PageArea>(widget.parentWidget()) || widget.testAttribute(Qt::WA_TransparentForMouseEvents);
}

double Luminance(QRgb colour)
{
    const auto linear = [](int channel) {
        const double share = channel / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

double Contrast(QRgb first, QRgb second)
{
    const double one = Luminance(first);
    const double other = Luminance(second);
    return (qMax(one, other) + 0.05) / (qMin(one, other) + 0.05);
}

/// How much the strongest colour of a part of a picture stands out from its commonest one.
double StrongestContrast(const QImage& picture, const QRect& part)
{
    const qreal scale = picture.devicePixelRatio();
    const QRect pixels = QRect(part.topLeft() * scale, part.size() * scale) & picture.rect();
    QHash<QRgb, int> counts;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y)
        for (int x = pixels.left(); x <= pixels.right(); ++x)
            ++counts[picture.pixel(x, y)];
    QRgb ground = 0;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count)
        if (count.value() > counts.value(ground))
            ground = count.key();
    double strongest = 1;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count)
        strongest = qMax(strongest, Contrast(count.key(), ground));
    return strongest;
}

/// How many pixels outside of a part stand out in one picture from what they are in the other.
int ChangedAround(const QRectF& part, const QImage& before, const QImage& after)
{
    const qreal scale = before.devicePixelRatio();
    int changed = 0;
    for (int y = 0; y < before.height(); ++y)
        for (int x = 0; x < before.width(); ++x)
            if (before.pixel(x, y) != after.pixel(x, y) && !part.contains(QPointF(x, y) / scale) &&
                Contrast(before.pixel(x, y), after.pixel(x, y)) >= OutlineContrast)
                ++changed;
    return changed;
}

/// The text of a control where the player reads it; the title of a screen is told above the screens.
QString ReadText(const QWidget& widget)
{
    return IsOneOf<ScreenButton>(&widget)
               ? QString()
               : widget.property(IsOneOf<QComboBox>(&widget) ? "currentText" : "text").toString();
}

/// Where the rows of a column are seen. A single figure may be too fine to show its full colour.
QRect ColumnPlace(const QAbstractItemView& view, int column)
{
    QRect place;
    for (int row = 1; row < qMin(view.model()->rowCount(), LookedAtRows); ++row)
        place |= view.visualRect(view.model()->index(row, column)) & view.viewport()->rect();
    return place.translated(PlaceOf(*view.viewport()).topLeft());
}

/// Whether nothing but an outline tells the player where the control is.
bool HasOutline(const QWidget& widget)
{
    return (IsOneOf<QLineEdit>(&widget) && !widget.property(BareProperty).toBool()) ||
           IsOneOf<QComboBox, QCheckBox, QRadioButton, QPushButton, QAbstractSpinBox>(&widget);
}

/// Whether a widget lies on a page that is under another one.
bool IsCovered(const QWidget& widget)
{
    const auto* area = widget.window()->findChild<PageArea*>();
    return area != nullptr && area != &widget && area->isAncestorOf(&widget) &&
           !area->FrontPage()->isAncestorOf(&widget);
}

/// Looks at what a screen reader finds in an object that is showing, and in all that it holds.
void FindReaderFaults(QAccessibleInterface& told, QWidget* owner, QStringList& faults)
{
    const QAccessible::State state = told.state();
    if (state.invisible)
        return;
    auto* widget = qobject_cast<QWidget*>(told.object());
    if (widget != nullptr)
        owner = widget;
    const QString what = "told " + NameOf(*owner) + (widget == nullptr ? " part " + told.text(QAccessible::Name) : "");
    if (!owner->isVisible() || IsCovered(*owner))
        faults.append(what + " is not seen");
    // The calendar keeps its chosen day as the current cell.
    if (state.focused && !owner->hasFocus() && !IsOneOf<QCalendarWidget>(owner->parentWidget()))
        faults.append(what + " has no focus");
    if (state.focusable && told.text(QAccessible::Name).trimmed().isEmpty())
        faults.append(what + " has no name");
    if (const auto* list = qobject_cast<QComboBox*>(widget);
        list != nullptr && !list->isEditable() && told.relations(QAccessible::Label).isEmpty())
        faults.append(what + " is not labelled");
    if (told.role() == QAccessible::Button && IsOneOf<QAbstractButton>(widget) &&
        !IsOneOf<QCalendarWidget>(widget->parentWidget()->parentWidget()) && widget->focusPolicy() == Qt::NoFocus)
        faults.append(what + " is no button");
    for (int child = 0; child < qMin(told.childCount(), LookedAtRows * 10); ++child)
        if (QAccessibleInterface* inner = told.child(child))
            FindReaderFaults(*inner, owner, faults);
}

} // namespace

QList<QWidget*> ShownWidgets(const QWidget& window)
{
    const auto isPart = [](const QWidget& widget) {
        for (const QWidget* outer = widget.parentWidget(); outer != nullptr; outer = outer->parentWidget())
            if (IsOneOf<QAbstractScrollArea, QComboBox, QAbstractSpinBox>(outer) && !IsOneOf<QScrollArea>(outer))
                return true;
        return false;
    };
    QList<QWidget*> shown;
    for (auto* widget : window.findChildren<QWidget*>())
        if (widget->window() == window.window() && widget->isVisible() && !isPart(*widget))
            shown.append(widget);
    return shown;
}

bool TakesTab(const QWidget& widget)
{
    return widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.focusProxy() == nullptr;
}

QStringList ScreenReaderFaults(QWidget& window)
{
    QStringList faults;
    FindReaderFaults(*QAccessible::queryAccessibleInterface(&window), &window, faults);
    return faults;
}

QStringList LayoutFaults(QWidget& window)
{
    QStringList faults;
    const QList<QWidget*> shown = ShownWidgets(window);
    for (QWidget* widget : shown) {
        if (!IsInSight(*widget))
            continue;
        if (!TextFits(*widget) || IsCut(*widget))
            faults.append("fit " + NameOf(*widget));
        for (QWidget* other : shown)
            if (other < widget && other->parentWidget() == widget->parentWidget() && !MayOverlap(*widget) &&
                !MayOverlap(*other) && IsInSight(*other) && other->geometry().intersects(widget->geometry()))
                faults.append("overlap " + NameOf(*widget) + " and " + NameOf(*other));
    }
    // The toolkit's own message box is as large as its message and has nothing that would grow.
    if (!IsOneOf<QMessageBox>(&window) &&
        (window.maximumWidth() < QWIDGETSIZE_MAX || window.maximumHeight() < QWIDGETSIZE_MAX))
        faults.append("fixed " + NameOf(window));
    return faults;
}

QStringList ContrastFaults(QWidget& window)
{
    QStringList faults;
    const QImage picture = window.grab().toImage();
    for (QWidget* widget : ShownWidgets(window)) {
        if (!widget->isEnabled() || widget->visibleRegion().boundingRect() != widget->rect())
            continue;
        if (const auto* view = qobject_cast<const QAbstractItemView*>(widget))
            for (int column = 0; column < view->model()->columnCount(); ++column)
                if (const QRect cells = ColumnPlace(*view, column);
                    !cells.isEmpty() && StrongestContrast(picture, cells) < TextContrast)
                    faults.append(QString("contrast column %1 of %2").arg(column).arg(NameOf(*view)));
        const QRect place = PlaceOf(*widget);
        QRect inside = place.adjusted(4, 2, -4, -2);
        if (const auto* label = qobject_cast<const QLabel*>(widget); label != nullptr && !label->wordWrap())
            inside = QStyle::alignedRect(Qt::LeftToRight, label->alignment(),
                                         label->fontMetrics().size(0, label->text()), place);
        if (!ReadText(*widget).trimmed().isEmpty() && StrongestContrast(picture, inside) < TextContrast)
            faults.append("contrast " + NameOf(*widget));
        const QRect edge(place.left() - 1, place.center().y(), 8, 1);
        if (HasOutline(*widget) && StrongestContrast(picture, edge) < OutlineContrast)
            faults.append("contrast outline of " + NameOf(*widget));
    }
    return faults;
}

QStringList FocusFaults(QWidget& window)
{
    QStringList faults;
    // A field that is left like this is not checked.
    constexpr auto forAWhile = Qt::PopupFocusReason;
    const QPointer<QWidget> focused = window.focusWidget();
    window.activateWindow();
    QApplication::processEvents();
    for (QWidget* widget : ShownWidgets(window)) {
        if (!TakesTab(*widget) || widget->visibleRegion().boundingRect() != widget->rect())
            continue;
        // In a field and a list the cursor and the selection change too. The ring of a field on a ball is the ball's.
        constexpr int ring = 4;
        const bool onBall = IsOneOf<BallDisc>(widget->parentWidget());
        const QWidget& ringed = onBall ? *widget->parentWidget() : *widget;
        const QRect place = PlaceOf(ringed).adjusted(-ring, -ring, ring, ring) & window.rect();
        const int edge = onBall ? 0 : ring;
        const QRect inner = IsOneOf<QLineEdit, QAbstractItemView>(widget)
                                ? PlaceOf(*widget).adjusted(edge, edge, -edge, -edge).translated(-place.topLeft())
                                : QRect();
        window.setFocus(forAWhile);
        const QImage without = window.grab(place).toImage();
        widget->setFocus(forAWhile);
        const QImage with = window.grab(place).toImage();
        // Half of a ring of one pixel, for a ring may take the place of an outline that is nearly as strong.
        const QSize needed = ringed.size().boundedTo(ringed.sizeHint());
        if (ChangedAround(inner, without, with) < (needed.width() + needed.height()) * with.devicePixelRatio())
            faults.append("ring " + NameOf(*widget));
    }
    if (focused != nullptr)
        focused->setFocus(forAWhile);
    return faults;
}
