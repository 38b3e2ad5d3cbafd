#include "support/look_faults.h"

#include "analysis/screen_button.h"
#include "look/button.h"
#include "look/control_painting.h"
#include "look/style.h"
#include "shell/page_area.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
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
#include <QStyleOption>
#include <QTest>

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

/// The widgets of the window that the player sees, without the parts of compound controls.
QList<QWidget*> SeenWidgets(QWidget& window)
{
    QList<QWidget*> seen;
    for (auto* widget : window.findChildren<QWidget*>())
        if (widget->window() == &window && widget->isVisible() && !widget->visibleRegion().isEmpty() &&
            !IsPart(*widget))
            seen.append(widget);
    return seen;
}

bool HasRoleAndName(QWidget& widget)
{
    const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&widget);
    return told != nullptr && !told->text(QAccessible::Name).trimmed().isEmpty() &&
           told->role() != QAccessible::NoRole && told->role() != QAccessible::Client;
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
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->text().isEmpty() || (label->wordWrap() ? label->heightForWidth(label->width()) <= label->height()
                                                             : Fits(label->sizeHint(), label->size()));
    if (const auto* button = qobject_cast<const QPushButton*>(&widget))
        return Fits(button->fontMetrics().size(0, button->text()), button->size() - QSize(12, 6));
    if (const auto* edit = qobject_cast<const QLineEdit*>(&widget))
        return edit->fontMetrics().horizontalAdvance(edit->text()) < edit->width() &&
               edit->fontMetrics().height() <= edit->height();
    if (const auto* box = qobject_cast<const QAbstractSpinBox*>(&widget))
        return TextFits(*box->findChild<QLineEdit*>()) && Fits(box->minimumSizeHint(), box->size());
    if (const auto* list = qobject_cast<const QComboBox*>(&widget)) {
        QStyleOptionComboBox option;
        option.initFrom(list);
        const QRect field =
            list->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, list);
        return Fits(list->fontMetrics().size(Qt::TextSingleLine, list->currentText()), field.size());
    }
    const auto* view = qobject_cast<const QAbstractItemView*>(&widget);
    if (view != nullptr && !CellsFit(*view))
        return false;
    if (const auto* area = qobject_cast<const QAbstractScrollArea*>(&widget))
        for (const QScrollBar* bar : {area->horizontalScrollBar(), area->verticalScrollBar()})
            if (bar->isVisible() && (bar->orientation() == Qt::Horizontal || bar->maximum() == bar->minimum()))
                return false;
    return widget.sizePolicy().hasHeightForWidth() ? widget.heightForWidth(widget.width()) <= widget.height()
                                                   : Fits(widget.minimumSizeHint(), widget.size());
}

/// Whether a widget stands over the edge of what it lies in, where the player cannot bring it to light.
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

/// Whether the eye, which reads columns from top to bottom and rows from left to right, comes to `next` before `now`.
bool ReadsBackwards(const QRect& now, const QRect& next)
{
    const bool sameRow = next.top() <= now.bottom() && next.bottom() >= now.top();
    return sameRow ? next.right() < now.left() : next.bottom() < now.top() && next.left() <= now.right();
}

QStringList OrderFaults(const QList<QWidget*>& seen, QWidget& window)
{
    QStringList faults;
    const QWidget* last = nullptr;
    for (QWidget* next = window.nextInFocusChain(); next != &window; next = next->nextInFocusChain()) {
        if (!seen.contains(next) || !TakesTab(*next))
            continue;
        if (last != nullptr && ReadsBackwards(PlaceOf(*last), PlaceOf(*next)))
            faults.append("order " + NameOf(*last) + " > " + NameOf(*next));
        last = next;
    }
    return faults;
}

double Luminance(QRgb colour)
{
    const auto linear = [](int channel) {
        const double share = channel / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

double Contrast(double first, double second)
{
    return (qMax(first, second) + 0.05) / (qMin(first, second) + 0.05);
}

/// How much the strongest colour of a part of a picture stands out from its commonest one.
double StrongestContrast(const QImage& picture, const QRect& part)
{
    QHash<QRgb, int> counts;
    for (int y = qMax(0, part.top()); y <= qMin(part.bottom(), picture.height() - 1); ++y)
        for (int x = qMax(0, part.left()); x <= qMin(part.right(), picture.width() - 1); ++x)
            ++counts[picture.pixel(x, y)];
    QRgb ground = 0;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count)
        if (count.value() > counts.value(ground))
            ground = count.key();
    double strongest = 1;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count)
        strongest = qMax(strongest, Contrast(Luminance(count.key()), Luminance(ground)));
    return strongest;
}

/// How many pixels stand out in one picture from what they are in the other.
int ChangedPixels(const QImage& before, const QImage& after)
{
    int changed = 0;
    for (int y = 0; y < before.height(); ++y)
        for (int x = 0; x < before.width(); ++x)
            if (before.pixel(x, y) != after.pixel(x, y) &&
                Contrast(Luminance(before.pixel(x, y)), Luminance(after.pixel(x, y))) >= OutlineContrast)
                ++changed;
    return changed;
}

QString ShownText(const QWidget& widget)
{
    // The title of a screen is told above the screens.
    if (IsOneOf<ScreenButton>(&widget))
        return {};
    return widget.property(IsOneOf<QComboBox>(&widget) ? "currentText" : "text").toString();
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

/// Whether a page of the page area lies under another one.
bool IsCovered(const QWidget& widget)
{
    for (const QWidget* page = &widget; page->parentWidget() != nullptr; page = page->parentWidget())
        if (IsOneOf<PageArea>(page->parentWidget()))
            for (const auto* other :
                 page->parentWidget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
                if (const auto& pages = page->parentWidget()->children();
                    other->isVisible() && pages.indexOf(other) > pages.indexOf(page))
                    return true;
    return false;
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
        faults.append(what + " has no name" + NameOf(*owner->parentWidget()));
    if (told.role() == QAccessible::Button && IsOneOf<EnterButton>(widget) && widget->focusPolicy() == Qt::NoFocus)
        faults.append(what + " is no button");
    for (int child = 0; child < qMin(told.childCount(), LookedAtRows * 10); ++child)
        if (QAccessibleInterface* inner = told.child(child))
            FindReaderFaults(*inner, owner, faults);
}

} // namespace

bool TakesTab(const QWidget& widget)
{
    return widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.focusProxy() == nullptr;
}

bool IsPart(const QWidget& widget)
{
    for (const QWidget* outer = widget.parentWidget(); outer != nullptr; outer = outer->parentWidget())
        if (IsOneOf<QAbstractScrollArea, QComboBox, QAbstractSpinBox>(outer) && !IsOneOf<QScrollArea>(outer))
            return true;
    return false;
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
    const QList<QWidget*> seen = SeenWidgets(window);
    for (QWidget* widget : seen) {
        if (widget->focusPolicy() != Qt::NoFocus && !HasRoleAndName(*widget))
            faults.append("name " + NameOf(*widget));
        if (!TextFits(*widget) || IsCut(*widget))
            faults.append("fit " + NameOf(*widget));
        for (QWidget* other : seen)
            if (other < widget && other->parentWidget() == widget->parentWidget() && !MayOverlap(*widget) &&
                !MayOverlap(*other) && other->geometry().intersects(widget->geometry()))
                faults.append("overlap " + NameOf(*widget) + " and " + NameOf(*other));
    }
    // The toolkit's own message box is as large as its message and has nothing that would grow.
    if (!IsOneOf<QMessageBox>(&window) &&
        (window.maximumWidth() < QWIDGETSIZE_MAX || window.maximumHeight() < QWIDGETSIZE_MAX))
        faults.append("fixed " + NameOf(window));
    return faults + OrderFaults(seen, window);
}

QStringList ContrastFaults(QWidget& window)
{
    QStringList faults;
    const QImage picture = window.grab().toImage();
    const auto part = [&picture](const QRect& place) {
        const qreal scale = picture.devicePixelRatio();
        return QRectF(place.x() * scale, place.y() * scale, place.width() * scale, place.height() * scale).toRect();
    };
    for (QWidget* widget : SeenWidgets(window)) {
        const QRect place = PlaceOf(*widget);
        if (widget->visibleRegion().boundingRect() != widget->rect())
            continue;
        if (const auto* view = qobject_cast<const QAbstractItemView*>(widget))
            for (int column = 0; column < view->model()->columnCount(); ++column)
                if (const QRect cells = ColumnPlace(*view, column);
                    !cells.isEmpty() && StrongestContrast(picture, part(cells)) < TextContrast)
                    faults.append(QString("contrast column %1 of %2").arg(column).arg(NameOf(*view)));
        constexpr int border = 4;
        QRect inside = place.adjusted(border, border / 2, -border, -border / 2);
        if (const auto* label = qobject_cast<const QLabel*>(widget); label != nullptr && !label->wordWrap())
            inside = QStyle::alignedRect(Qt::LeftToRight, label->alignment(),
                                         label->fontMetrics().size(0, label->text()), place);
        if (widget->isEnabled() && !ShownText(*widget).trimmed().isEmpty() &&
            StrongestContrast(picture, part(inside)) < TextContrast)
            faults.append(QString("contrast %1 %2").arg(NameOf(*widget)).arg(StrongestContrast(picture, part(inside))));
        const QRect edge(place.left() - 1, place.center().y(), 8, 1);
        if (widget->isEnabled() && HasOutline(*widget) && StrongestContrast(picture, part(edge)) < OutlineContrast)
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
    for (QWidget* widget : SeenWidgets(window)) {
        if (!TakesTab(*widget) || widget->visibleRegion().boundingRect() != widget->rect())
            continue;
        constexpr int ringRoom = 6;
        const QRect place = PlaceOf(*widget).adjusted(-ringRoom, -ringRoom, ringRoom, ringRoom) & window.rect();
        window.setFocus(forAWhile);
        const QImage without = window.grab(place).toImage();
        widget->setFocus(forAWhile);
        const QImage with = window.grab(place).toImage();
        // Half of a ring of one pixel, for a ring may take the place of an outline that is nearly as strong.
        const QSize needed = widget->size().boundedTo(widget->sizeHint());
        if (ChangedPixels(without, with) < (needed.width() + needed.height()) * with.devicePixelRatio())
            faults.append("ring " + NameOf(*widget));
    }
    if (focused != nullptr)
        focused->setFocus(forAWhile);
    return faults;
}

QStringList DialogFaults(QDialog& dialog)
{
    QStringList faults;
    const auto buttons = dialog.findChildren<QPushButton*>();
    if (std::none_of(buttons.begin(), buttons.end(), [](const QPushButton* button) { return button->isDefault(); }))
        faults.append("default " + NameOf(dialog));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    if (dialog.isVisible())
        faults.append("escape " + NameOf(dialog));
    return faults;
}
