#include "support/look_faults.h"

#include "analysis/screen_button.h"
#include "balls/ball_disc.h"
#include "look/button.h"
#include "look/control_painting.h"
#include "look/theme.h"
#include "shell/menu_column.h"
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

#include <algorithm>
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

bool Fits(const QSize& needed, const QSize& given)
{
    return needed.width() <= given.width() && needed.height() <= given.height();
}

QString ReadText(const QWidget& widget)
{
    return widget.property(IsOneOf<QComboBox>(&widget) ? "currentText" : "text").toString();
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
    const QSize arrow(IsOneOf<QComboBox>(&widget) ? 40 : 0, 0);
    if (IsOneOf<QLineEdit, QComboBox>(&widget))
        return Fits(widget.fontMetrics().size(0, ReadText(widget)), widget.size() - arrow);
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

bool Overlap(const QWidget& one, const QWidget& other)
{
    // A page lies over the others; a frame that is drawn around a control lets the mouse through.
    const auto may = [](const QWidget& widget) {
        return IsOneOf<PageArea>(widget.parentWidget()) || widget.testAttribute(Qt::WA_TransparentForMouseEvents);
    };
    return one.parentWidget() == other.parentWidget() && one.geometry().intersects(other.geometry()) && !may(one) &&
           !may(other);
}

double Luminance(const QColor& colour)
{
    return 0.2126 * std::pow(colour.redF(), 2.2) + 0.7152 * std::pow(colour.greenF(), 2.2) +
           0.0722 * std::pow(colour.blueF(), 2.2);
}

double Contrast(QRgb first, QRgb second)
{
    const auto [darker, lighter] = std::minmax({Luminance(first), Luminance(second)});
    return (lighter + 0.05) / (darker + 0.05);
}

/// How much the strongest colour of a picture stands out from its commonest one.
double StrongestContrast(const QImage& picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    const QRgb ground = std::max_element(counts.cbegin(), counts.cend()).key();
    double strongest = 1;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count)
        strongest = qMax(strongest, Contrast(count.key(), ground));
    return strongest;
}

/// What encloses all that has the colour of the ring in one picture and another, well told from it, in the other.
QRect RingIn(const QImage& picture, const QImage& other, const QRect& inner, QRgb ring)
{
    QRect enclosing;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (picture.pixel(x, y) == ring && !inner.contains(x, y) &&
                Contrast(ring, other.pixel(x, y)) >= OutlineContrast)
                enclosing |= QRect(x, y, 1, 1);
    return enclosing;
}

/// Looks at what a screen reader finds in an object that is showing, and in all that it holds.
void FindReaderFaults(QAccessibleInterface& told, const QWidget* owner, QStringList& faults)
{
    const QAccessible::State state = told.state();
    if (state.invisible)
        return;
    auto* widget = qobject_cast<QWidget*>(told.object());
    if (widget != nullptr)
        owner = widget;
    const auto* area = owner->window()->findChild<PageArea*>();
    const bool isCovered =
        area != nullptr && area != owner && area->isAncestorOf(owner) && !area->FrontPage()->isAncestorOf(owner);
    if (!owner->isVisible() || isCovered)
        faults.append("told " + NameOf(*owner) + " is not seen");
    // The calendar keeps its chosen day as the current cell.
    if (state.focused && !owner->hasFocus() && !IsOneOf<QCalendarWidget>(owner->parentWidget()))
        faults.append("told " + NameOf(*owner) + " has no focus");
    if (widget != nullptr && TakesTab(*widget) && told.text(QAccessible::Name).isEmpty())
        faults.append("told " + NameOf(*owner) + " has no name");
    if (const auto* list = qobject_cast<QComboBox*>(widget);
        list != nullptr && !list->isEditable() && told.relations(QAccessible::Label).isEmpty())
        faults.append("told " + NameOf(*owner) + " is not labelled");
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

QStringList LayoutFaults(QWidget& window)
{
    QStringList faults;
    QList<QWidget*> shown = ShownWidgets(window);
    shown.removeIf([](const QWidget* widget) { return widget->visibleRegion().isEmpty(); });
    for (QWidget* widget : shown) {
        if (!TextFits(*widget) || IsCut(*widget))
            faults.append("fit " + NameOf(*widget));
        for (QWidget* other : shown)
            if (other < widget && Overlap(*widget, *other))
                faults.append("overlap " + NameOf(*widget) + " and " + NameOf(*other));
    }
    QStringList keys;
    for (const QWidget* widget : ShownWidgets(window))
        if (const QString key = widget->property("shortcut").toString(); widget->isEnabled() && !key.isEmpty())
            keys.append(key);
    if (keys.removeDuplicates() > 0)
        faults.append("key held twice in " + NameOf(window));
    // The toolkit's own message box is as large as its message and has nothing that would grow.
    if (!IsOneOf<QMessageBox>(&window) && window.maximumSize() != QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX))
        faults.append("fixed " + NameOf(window));
    FindReaderFaults(*QAccessible::queryAccessibleInterface(&window), &window, faults);
    return faults;
}

QStringList ContrastFaults(QWidget& window)
{
    QStringList faults;
    const QImage picture = window.grab().toImage();
    for (QWidget* widget : ShownWidgets(window)) {
        if (!widget->isEnabled() || widget->visibleRegion().boundingRect() != widget->rect())
            continue;
        const auto check = [&](const QRect& place, double least, const QString& what) {
            if (!place.isEmpty() && StrongestContrast(picture.copy(place & picture.rect())) < least)
                faults.append("contrast " + what + " of " + NameOf(*widget));
        };
        const QRect place = PlaceOf(*widget);
        QRect text = place.adjusted(4, 2, -4, -2);
        if (const auto* label = qobject_cast<const QLabel*>(widget); label != nullptr && !label->wordWrap())
            text = QStyle::alignedRect(Qt::LeftToRight, label->alignment(), label->fontMetrics().size(0, label->text()),
                                       place);
        const auto* view = qobject_cast<const QAbstractItemView*>(widget);
        // The title of a screen is told above the screens.
        if ((!ReadText(*widget).trimmed().isEmpty() && !IsOneOf<ScreenButton>(widget)) ||
            (view != nullptr && view->model()->rowCount() > 0))
            check(text, TextContrast, "text");
        // Nothing but an outline tells the player where these are.
        if (IsOneOf<QLineEdit, QComboBox, QCheckBox, QRadioButton, QPushButton, QAbstractSpinBox>(widget) &&
            !widget->property(BareProperty).toBool())
            check({place.left() - 1, place.center().y(), 8, 1}, OutlineContrast, "outline");
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
        const bool onBall = IsOneOf<BallDisc>(widget->parentWidget());
        const QWidget& ringed = onBall ? *widget->parentWidget() : *widget;
        const QRect place = PlaceOf(ringed) & window.rect();
        const int edge = onBall ? 0 : 4;
        const QRect inner = IsOneOf<QLineEdit, QAbstractItemView>(widget)
                                ? PlaceOf(*widget).adjusted(edge, edge, -edge, -edge).translated(-place.topLeft())
                                : QRect();
        const QColor colour =
            IsOneOf<MenuColumn>(widget->parentWidget()) ? CurrentTheme().menuText : CurrentTheme().accent;
        window.setFocus(forAWhile);
        QImage without = window.grab(place).toImage();
        // What is filled with the colour of the ring shows it by the gap inside.
        const QVariant accent = widget->property(AccentProperty);
        const bool filled = (accent.isValid() ? accent : widget->property("default")).toBool();
        widget->setFocus(forAWhile);
        QImage with = window.grab(place).toImage();
        if (filled)
            with.swap(without);
        // A ball leaves some room around its ring.
        const QSize least = ringed.size().boundedTo(ringed.sizeHint()) - QSize(12, 12);
        if (!Fits(least, RingIn(with, without, inner, colour.rgb()).size()))
            faults.append("ring " + NameOf(*widget));
    }
    if (focused != nullptr)
        focused->setFocus(forAWhile);
    return faults;
}
