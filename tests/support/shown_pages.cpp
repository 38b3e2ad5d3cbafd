#include "support/shown_pages.h"

#include "support/look_faults.h"

#include "look/button.h"
#include "shell/introduction_page.h"
#include "shell/menu_column.h"
#include "shell/page_area.h"

#include <QAccessible>
#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QFileDialog>
#include <QMessageBox>
#include <QMetaEnum>
#include <QPushButton>
#include <QTableView>

namespace {

QString Quoted(QString text)
{
    return '"' + text.replace("\r\n", "\\r\\n").replace('\n', "\\n").replace('\t', "\\t") + '"';
}

/// Of a list all lines; of a table, which may have hidden columns, its headings and its first row.
QString Listed(const QAbstractItemModel& model, const QTableView* table)
{
    QStringList headings;
    QStringList cells;
    for (int line = 0; line < (table == nullptr ? model.rowCount() : model.columnCount()); ++line) {
        if (table != nullptr && table->isColumnHidden(line))
            continue;
        const QModelIndex cell = table == nullptr ? model.index(line, 0) : model.index(0, line);
        const QVariant ground = cell.data(Qt::BackgroundRole);
        cells.append(cell.data().toString() + (ground.isValid() ? " on " + ground.value<QColor>().name() : QString()));
        headings.append(model.headerData(line, Qt::Horizontal).toString());
    }
    return (table == nullptr ? QString() : '[' + headings.join('|') + "] ") + '[' + cells.join('|') + ']';
}

/// The colours of a control that has its own.
QString OwnColours(const QWidget& widget)
{
    const bool isField = widget.inherits("QLineEdit");
    const auto text = isField ? QPalette::Text : widget.foregroundRole();
    const auto ground = isField ? QPalette::Base : widget.backgroundRole();
    const auto own = [&widget](QPalette::ColorRole role) { return widget.palette().color(role); };
    const auto isOwn = [&](QPalette::ColorRole role) { return own(role) != QApplication::palette().color(role); };
    return isOwn(text) || isOwn(ground) ? own(text).name() + " on " + own(ground).name() : QString();
}

QString LineOf(QWidget& widget)
{
    QAccessibleInterface& told = *QAccessible::queryAccessibleInterface(&widget);
    QStringList words{TakesTab(widget) ? ">" : "", widget.objectName(),
                      QMetaEnum::fromType<QAccessible::Role>().valueToKey(told.role())};
    const auto* box = qobject_cast<const QComboBox*>(&widget);
    // A list tells its choice as its name.
    QStringList texts{box != nullptr ? widget.accessibleName() : told.text(QAccessible::Name),
                      widget.property("text").toString(), told.text(QAccessible::Value),
                      told.text(QAccessible::Description)};
    texts.removeAll(QString());
    texts.removeDuplicates();
    for (const QString& text : texts)
        words.append(Quoted(text));
    const auto* view = qobject_cast<const QAbstractItemView*>(&widget);
    if (box != nullptr)
        words.append(Listed(*box->model(), nullptr));
    else if (view != nullptr && qobject_cast<const QCalendarWidget*>(view->parentWidget()) == nullptr)
        words.append(Listed(*view->model(), qobject_cast<const QTableView*>(view)));
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        words << button->shortcut().toString() << (button->isChecked() ? "checked" : "")
              << (button->property(AccentProperty).toBool() ? "accent" : "")
              << (button->property("default").toBool() ? "default" : "");
    words << (widget.isEnabled() ? "" : "disabled") << OwnColours(widget);
    // The places in the menu are given in twips, of which ten make a pixel.
    if (qobject_cast<MenuColumn*>(widget.parentWidget()) != nullptr)
        words.append(QString("at %1").arg(widget.y() * 10));
    words.removeAll(QString());
    return words.join(' ');
}

QStringList ShownLines(QWidget& shown)
{
    QStringList head{shown.objectName(), Quoted(shown.isWindow() ? shown.windowTitle() : shown.accessibleName())};
    if (const auto* box = qobject_cast<const QMessageBox*>(&shown))
        head[0] = QMetaEnum::fromType<QMessageBox::Icon>().valueToKey(box->icon());
    QStringList lines{head.join(' ')};
    // What the toolkit's own window holds are the folders of the computer.
    if (const auto* dialog = qobject_cast<const QFileDialog*>(&shown))
        return lines << dialog->nameFilters() << dialog->selectedFiles().constLast().section('/', -1);
    QList<QWidget*> others = ShownWidgets(shown);
    for (QWidget* next = shown.nextInFocusChain(); next != &shown; next = next->nextInFocusChain())
        if (TakesTab(*next) && others.removeOne(next))
            lines.append(LineOf(*next));
    QStringList texts;
    QStringList withoutText;
    for (QWidget* widget : others)
        if (!widget->property("text").toString().isEmpty())
            texts.append(LineOf(*widget));
        else if (!widget->objectName().isEmpty() && !widget->objectName().startsWith("qt_"))
            withoutText.append(widget->objectName());
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
    const auto* area = window.findChild<PageArea*>();
    if (area == nullptr) {
        const bool isBox = qobject_cast<QMessageBox*>(&window) != nullptr;
        Add(isBox ? "message_box_" + state : window.objectName(), state, ShownLines(window));
        return;
    }
    QWidget& page = *area->FrontPage();
    auto& menu = *window.findChild<MenuColumn*>();
    QStringList lines = ShownLines(page);
    if (qobject_cast<IntroductionPage*>(&page) != nullptr)
        lines += ShownLines(menu);
    else if (auto* mark = menu.findChild<QWidget*>("Optionmark"); mark->isVisible())
        lines.append(QString("Optionmark at %1").arg(mark->y() * 10));
    Add(page.objectName(), state, lines);
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
