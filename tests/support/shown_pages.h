#pragma once

#include "support/look_faults.h"

#include "look/button.h"
#include "shell/menu_column.h"
#include "shell/page_area.h"

#include <QAccessible>
#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QMap>
#include <QMessageBox>
#include <QMetaEnum>
#include <QTableView>

inline QString Quoted(QString text)
{
    return '"' + text.replace("\r\n", "\\r\\n").replace('\n', "\\n").replace('\t', "\\t") + '"';
}

/// Of a list all lines; of a table, which may have hidden columns, its headings and its first row.
inline QString Listed(const QAbstractItemModel& model, const QTableView* table)
{
    QStringList listed;
    for (int line = 0; line < (table == nullptr ? model.rowCount() : model.columnCount()); ++line) {
        if (table != nullptr && table->isColumnHidden(line))
            continue;
        const QModelIndex cell = table == nullptr ? model.index(line, 0) : model.index(0, line);
        const QString heading = table == nullptr ? QString() : model.headerData(line, Qt::Horizontal).toString() + ": ";
        const auto colour = [&cell](int role) { return cell.data(role).value<QColor>().name(); };
        listed.append(heading + cell.data().toString());
        if (cell.data(Qt::BackgroundRole).isValid())
            listed.last() += ' ' + colour(Qt::ForegroundRole) + " on " + colour(Qt::BackgroundRole);
    }
    return '[' + listed.join('|') + ']';
}

/// The colours of a control where they are not those of the theme, and whether it is paler than others.
inline QString OwnColours(const QWidget& widget)
{
    const bool isField = widget.inherits("QLineEdit");
    const auto text = isField ? QPalette::Text : widget.foregroundRole();
    const auto ground = isField ? QPalette::Base : widget.backgroundRole();
    const QPalette& own = widget.palette();
    const QPalette theme = QApplication::palette();
    if (own.color(text) == theme.color(text) && own.color(ground) == theme.color(ground))
        return text == QPalette::PlaceholderText ? "pale" : "";
    return own.color(text).name() + " on " + own.color(ground).name();
}

/// A line that tells what a control is to those who see it, hear it and work it by keyboard.
inline QString LineOf(QWidget& widget)
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
    words.append(widget.property("shortcut").toString());
    for (const char* state : {"checked", "readOnly", AccentProperty, "default"})
        words.append(widget.property(state).toBool() ? state : "");
    words << (widget.isEnabled() ? "" : "disabled") << OwnColours(widget);
    // The places in the menu are given in twips, of which ten make a pixel.
    if (qobject_cast<MenuColumn*>(widget.parentWidget()) != nullptr)
        words.append(QString("at %1").arg(widget.y() * 10));
    words.removeAll(QString());
    return words.join(' ');
}

/// What a page or a window shows: first what the Tab key reaches, in its order and marked with ">", then the other
/// texts, by name, and what has no text.
inline QStringList LinesOf(const QWidget& shown)
{
    QStringList lines{shown.objectName() + ' ' +
                      Quoted(shown.isWindow() ? shown.windowTitle() : shown.accessibleName())};
    if (const auto* box = qobject_cast<const QMessageBox*>(&shown))
        lines.append(QMetaEnum::fromType<QMessageBox::Icon>().valueToKey(box->icon()));
    QList<QWidget*> others = ShownWidgets(shown);
    for (QWidget* next = shown.nextInFocusChain(); next != &shown; next = next->nextInFocusChain())
        if (TakesTab(*next) && others.removeOne(next))
            lines.append(LineOf(*next));
    QStringList rest;
    for (QWidget* widget : others)
        if (!widget->property("text").toString().isEmpty() ||
            (!widget->objectName().isEmpty() && !widget->objectName().startsWith("qt_")))
            rest.append(LineOf(*widget));
    rest.sort();
    return lines + rest;
}

/// What pages, windows and message boxes show, by the names of their files; of each state what is new in it and, after
/// a "-", what is gone.
class ShownPages
{
public:
    void TakeDown(const QString& state, const QWidget& window)
    {
        const auto* area = window.findChild<PageArea*>();
        if (area == nullptr)
            return Add(window.objectName().isEmpty() ? "message_box_" + state : window.objectName(), state, window);
        Add(area->FrontPage()->objectName(), state, *area->FrontPage());
        Add("menu", state, *window.findChild<MenuColumn*>());
    }

    QMap<QString, QStringList> files;

private:
    void Add(const QString& file, const QString& state, const QWidget& shown)
    {
        const QStringList lines = LinesOf(shown);
        const QStringList before = std::exchange(last[file], lines);
        QStringList changed = lines;
        changed.removeIf([&before](const QString& line) { return before.contains(line); });
        for (const QString& line : before)
            if (!lines.contains(line))
                changed.append("- " + line.section('"', 0, 1));
        if (!changed.isEmpty())
            files[file] += QStringList("== " + state) + changed;
    }

    QMap<QString, QStringList> last;
};
