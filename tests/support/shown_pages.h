#pragma once

#include <QMap>
#include <QStringList>

class QWidget;

/// What pages and windows tell those who see them, hear them and work them by keyboard, a line a control. The controls
/// that the Tab key reaches come first, in its order, each marked with ">"; after them the other texts, by name. A line
/// tells the control's name and role, its name for a screen reader, its text where that is another, what it lists, its
/// key, its state, and its colours where they are not those of the theme. The last line names what has no text.
class ShownPages
{
public:
    /// Takes down what a window shows, the page in front or a dialog, and with an introduction page the menu. Of what
    /// was shown before only what is new is told, after a "+", and what is gone, after a "-". `state` says when it was.
    void TakeDown(const QString& state, QWidget& window);

    /// The lines of every page and window, by its object name, and those of all message boxes.
    const QMap<QString, QStringList>& Files() const { return files; }

private:
    void Add(const QString& file, const QString& state, const QStringList& lines);

    QMap<QString, QStringList> files;
    QMap<QString, QStringList> last;
};
