#include "look/input_watch.h"

#include "look/button.h"
#include "look/shortcut_letters.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QTimer>

namespace {

bool lastInputWasKey = false;

/// Whether the wheel over this widget would change a value that does not have the focus.
bool WouldChangeUnfocusedValue(const QWidget& widget)
{
    const QWidget* focused = QApplication::focusWidget();
    for (const QWidget* part = &widget; part != nullptr && !part->isWindow(); part = part->parentWidget())
        if (qobject_cast<const QComboBox*>(part) != nullptr || qobject_cast<const QAbstractSpinBox*>(part) != nullptr ||
            qobject_cast<const QCalendarWidget*>(part) != nullptr)
            return part != focused && !part->isAncestorOf(focused);
    return false;
}

/// A button to be pressed, and not one to be ticked; nullptr for anything else.
QAbstractButton* PressedButton(QObject* watched)
{
    auto* button = qobject_cast<QAbstractButton*>(watched);
    return button != nullptr && !button->isCheckable() ? button : nullptr;
}

/// Tells a screen reader which label names a list, for it takes the list's choice for its name.
void TakeLabel(QComboBox& list)
{
    for (auto* label : list.parentWidget()->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly))
        if (label->text() == list.accessibleName())
            label->setBuddy(&list);
}

/// Presses a button by Enter, as Space does without our help. Whether nothing more is to come of the key.
bool TakeKey(QObject* watched, const QKeyEvent& key)
{
    const bool press = key.type() == QEvent::KeyPress;
    if (key.key() == Qt::Key_Alt)
        ShowShortcutLetters(press);
    // A letter that no button has is not typed into a field.
    if (press && key.modifiers() == Qt::AltModifier && !key.text().isEmpty() && key.text()[0].isPrint())
        return true;
    auto* button = PressedButton(watched);
    if (button == nullptr || !press || !IsEnter(key))
        return false;
    button->click();
    return true;
}

/// A list of which nothing is chosen begins before its first line, where the toolkit would begin at it, unseen.
void BeginBeforeFirst(QAbstractItemView& list)
{
    QTimer::singleShot(0, &list, [&list] {
        if (!list.selectionModel()->hasSelection())
            list.setCurrentIndex({});
    });
}

constexpr char CurrentCellProperty[] = "currentCell";

} // namespace

void HideCurrentCell(QAbstractItemView& view, bool hidden)
{
    // The list that a choice folds out and a calendar need their current cell.
    if (view.selectionModel() == nullptr || view.window()->windowType() == Qt::Popup ||
        qobject_cast<QCalendarWidget*>(view.parentWidget()) != nullptr)
        return;
    QModelIndex shown;
    if (hidden)
        view.setProperty(CurrentCellProperty, QPersistentModelIndex(view.currentIndex()));
    else
        shown = view.property(CurrentCellProperty).value<QPersistentModelIndex>();
    if (hidden || shown.isValid())
        view.selectionModel()->setCurrentIndex(shown, QItemSelectionModel::NoUpdate);
}

bool LastInputWasKey()
{
    return lastInputWasKey;
}

bool InputWatch::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        lastInputWasKey = true;
        return TakeKey(watched, static_cast<QKeyEvent&>(*event));
    case QEvent::MouseButtonPress:
        lastInputWasKey = false;
        return false;
    case QEvent::WindowDeactivate:
        ShowShortcutLetters(false);
        return false;
    case QEvent::Shortcut: {
        lastInputWasKey = true;
        auto* button = PressedButton(watched);
        if (button == nullptr || static_cast<QShortcutEvent*>(event)->isAmbiguous())
            return false;
        PressByKey(*button);
        return true;
    }
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::EnabledChange:
        if (const auto* button = qobject_cast<Button*>(watched); button != nullptr && button->window()->isVisible())
            GiveShortcutLetters(*button->window());
        if (auto* list = qobject_cast<QComboBox*>(watched); list != nullptr && event->type() == QEvent::Show)
            TakeLabel(*list);
        return false;
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        if (auto* view = qobject_cast<QAbstractItemView*>(watched)) {
            HideCurrentCell(*view, event->type() == QEvent::FocusOut);
            if (event->type() == QEvent::FocusIn && view->window()->windowType() == Qt::Popup)
                BeginBeforeFirst(*view);
        }
        return false;
    case QEvent::Wheel:
        if (!watched->isWidgetType() || !WouldChangeUnfocusedValue(*static_cast<QWidget*>(watched)))
            return false;
        // What lies around it may scroll.
        event->ignore();
        return true;
    default:
        return false;
    }
}
