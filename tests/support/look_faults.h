#pragma once

#include <QStringList>
#include <QWidget>

// What keeps a window from being seen, read aloud and worked by keyboard; each fault begins with the word of its kind
// and names the control. Only what can be seen at the moment is looked at.

/// The visible widgets of a window, without the parts of the toolkit's own compound controls.
QList<QWidget*> ShownWidgets(const QWidget& window);

/// Whether the Tab key reaches a widget that is shown.
bool TakesTab(const QWidget& widget);

/// "fit", "overlap" and "fixed": whether texts and controls have room. "key": whether two buttons have one letter.
/// "told": what a screen reader would tell wrongly, such as a page that is covered or a focus that is elsewhere.
QStringList LayoutFaults(QWidget& window);

/// "contrast": the colours of the window as it is painted, at the scale of 1.
QStringList ContrastFaults(QWidget& window);

/// "ring": the controls that do not show the focus, one after the other, at the scale of 1.
QStringList FocusFaults(QWidget& window);
