#pragma once

#include <QStringList>
#include <QWidget>

class QDialog;

/// Whether a widget is a part of one of the toolkit's own compound controls.
bool IsPart(const QWidget& widget);

/// Whether the Tab key reaches a widget that is seen.
bool TakesTab(const QWidget& widget);

/// What keeps a window from being seen, read aloud and worked by keyboard; each fault begins with the word of its kind
/// and names the control. Only what can be seen at the moment is looked at.

/// "name", "fit", "overlap", "order" and "fixed": where and what the controls are.
QStringList LayoutFaults(QWidget& window);

/// "contrast": the colours of the window as it is painted.
QStringList ContrastFaults(QWidget& window);

/// "ring": the controls that do not show the focus, one after the other.
QStringList FocusFaults(QWidget& window);

/// "told": what a screen reader would tell wrongly, such as a field without a name or a focus that is elsewhere.
QStringList ScreenReaderFaults(QWidget& window);

/// "default" and "escape". A dialog without a fault is closed afterwards.
QStringList DialogFaults(QDialog& dialog);
