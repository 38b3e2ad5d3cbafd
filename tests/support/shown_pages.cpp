#include "support/shown_pages.h"

#include "support/look_faults.h"

#include "look/button.h"
#include "shell/introduction_page.h"
#include "shell/menu_column.h"
#include "shell/page_area.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QMessageBox>
#include <QMetaEnum>

namespace {

QString Quoted(QString text)
{
    return '"' + text.replace("\r\n", "\\r\\n").replace('\n', "\\n").replace('\t', "\\t") + '"';
}

QString Cells(const QAbstractItemView& view, const std::function<QString(int)>& textOf)
{
    QStringList cells;
    for (int column = 0; column < view.model()->columnCount(); ++column)
        if (!view.visualRect(view.model()->index(0, column)).isEmpty())
            cells.append(textOf(column));
    return '[' + cells.join('|') + ']';
}

/// Of a list all lines, of a table its headings and its first row.
QString Listed(const QAbstractItemView& view)
{
    const QAbstractItemModel& model = *view.model();
    QStringList lines;
    if (model.columnCount() > 1)
        lines.append(Cells(view, [&](int column) { return model.headerData(column, Qt::Horizontal).toString(); }));
    for (int row = 0; row < (model.columnCount() > 1 ? qMin(1, model.rowCount()) : model.rowCount()); ++row)
        lines.append(Cells(view, [&](int column) {
            const QVariant ground = model.index(row, column).data(Qt::BackgroundRole);
            const QString colour = ground.isValid() ? " on " + ground.value<QColor>().name() : QString();
            return model.index(row, column).data().toString() + colour;
        }));
    return lines.join(' ');
}

QString Listed(const QComboBox& box)
{
    QStringList items;
    for (int item = 0; item < box.count(); ++item)
        items.append(box.itemText(item));
    return '[' + items.join('|') + ']';
}

/// The colours of a control that has its own.
QString OwnColours(const QWidget& widget)
{
    const auto own = [&widget](QPalette::ColorRole role) { return widget.palette().color(role); };
    const auto isOwn = [&](QPalette::ColorRole role) { return own(role) != QApplication::palette().color(role); };
    const bool isField = widget.inherits("QLineEdit");
    const auto text = isField ? QPalette::Text : widget.foregroundRole();
    const auto ground = isField ? QPalette::Base : widget.backgroundRole();
    return isOwn(text) || isOwn(ground) ? own(text).name() + " on " + own(ground).name() : QString();
}

QString LineOf(QWidget& widget)
{
    QAccessibleInterface& told = *QAccessible::queryAccessibleInterface(&widget);
    QStringList words{TakesTab(widget) ? ">" : "", widget.objectName(),
                      QMetaEnum::fromType<QAccessible::Role>().valueToKey(told.role())};
    QStringList texts;
    // A list tells its choice as its name.
    const QString name =
        qobject_cast<QComboBox*>(&widget) != nullptr ? widget.accessibleName() : told.text(QAccessible::Name);
    for (const QString& text :
         {name, widget.property("text").toString(), told.text(QAccessible::Value), told.text(QAccessible::Description)})
        if (!text.isEmpty() && !texts.contains(text))
            texts.append(text);
    for (const QString& text : texts)
        words.append(Quoted(text));
    if (const auto* box = qobject_cast<const QComboBox*>(&widget))
        words.append(Listed(*box));
    const auto* view = qobject_cast<const QAbstractItemView*>(&widget);
    if (view != nullptr && qobject_cast<const QCalendarWidget*>(view->parentWidget()) == nullptr)
        words.append(Listed(*view));
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        words.append(button->shortcut().toString());
        words.append(button->isChecked() ? "checked" : "");
        words.append(button->property(AccentProperty).toBool() ? "accent" : "");
    }
    words.append(widget.isEnabled() ? "" : "disabled");
    words.append(OwnColours(widget));
    words.removeAll(QString());
    return words.join(' ');
}

QString HeadOf(const QWidget& shown)
{
    QStringList words{shown.objectName(), Quoted(shown.isWindow() ? shown.windowTitle() : shown.accessibleName())};
    if (const auto* box = qobject_cast<const QMessageBox*>(&shown))
        words.append(QMetaEnum::fromType<QMessageBox::Icon>().valueToKey(box->icon()));
    words.removeAll(QString());
    return words.join(' ');
}

QStringList ShownLines(QWidget& shown)
{
    QStringList lines{HeadOf(shown)};
    // What the toolkit's own window holds are the folders of the computer.
    if (const auto* dialog = qobject_cast<const QFileDialog*>(&shown))
        return lines << dialog->nameFilters() << dialog->selectedFiles().constLast().section('/', -1);
    QList<QWidget*> reached;
    for (QWidget* next = shown.nextInFocusChain(); next != &shown; next = next->nextInFocusChain())
        if (shown.isAncestorOf(next) && next->isVisible() && !IsPart(*next) && TakesTab(*next))
            reached.append(next);
    for (QWidget* widget : reached)
        lines.append(LineOf(*widget));
    QStringList texts;
    QStringList withoutText;
    for (auto* widget : shown.findChildren<QWidget*>()) {
        if (!widget->isVisible() || IsPart(*widget) || reached.contains(widget))
            continue;
        if (!widget->property("text").toString().isEmpty())
            texts.append(LineOf(*widget));
        else if (!widget->objectName().isEmpty() && !widget->objectName().startsWith("qt_"))
            withoutText.append(widget->objectName());
    }
    texts.sort();
    withoutText.sort();
    lines += texts;
    if (!withoutText.isEmpty())
        lines.append("Also: " + withoutText.join(' '));
    return lines;
}

/// What stays of a line while its control does: the control, or a text without one.
QString ControlOf(const QString& line)
{
    const QStringList words = line.split(' ');
    const QString& first = words.value(words.first() == ">" ? 1 : 0);
    return first == "StaticText" ? line : first;
}

} // namespace

void ShownPages::TakeDown(const QString& state, QWidget& window)
{
    if (const auto* area = window.findChild<PageArea*>()) {
        QWidget& page = *area->FrontPage();
        const bool withMenu = qobject_cast<IntroductionPage*>(&page) != nullptr;
        Add(page.objectName(), state,
            ShownLines(page) + (withMenu ? ShownLines(*window.findChild<MenuColumn*>()) : QStringList()));
    } else if (qobject_cast<QMessageBox*>(&window) != nullptr) {
        files["messages"] += QStringList("== " + state) + ShownLines(window);
    } else {
        Add(window.objectName(), state, ShownLines(window));
    }
}

void ShownPages::Add(const QString& file, const QString& state, const QStringList& lines)
{
    const QStringList before = std::exchange(last[file], lines);
    QStringList changed;
    QStringList controls;
    for (const QString& line : lines) {
        controls.append(ControlOf(line));
        if (!before.contains(line))
            changed.append(before.isEmpty() ? line : "+ " + line);
    }
    for (const QString& line : before)
        if (!controls.contains(ControlOf(line)))
            changed.append("- " + ControlOf(line));
    if (!changed.isEmpty())
        files[file] += QStringList("== " + state) + changed;
}
