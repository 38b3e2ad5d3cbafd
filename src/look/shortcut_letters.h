#pragma once

#include <QString>

class QAbstractButton;
class QWidget;

// Captions stand as they are given, without the mark of a shortcut key: the key is kept by the button, and its letter
// is underlined while the Alt key is held.

/// Whether the Alt key is held; the letters are underlined then.
bool AltIsHeld();

/// Makes Alt with a letter press a button; none when the letter is null.
void SetShortcutLetter(QAbstractButton& button, QChar letter);

/// Gives every push button of a page or a dialog that can be pressed now a letter of its caption, none that a button of
/// the menu or another one has. The default action chooses first, and an initial is better than another letter.
void GiveShortcutLetters(const QWidget& window);

/// Has the captions drawn with or without the marks of their keys.
void ShowShortcutLetters(bool shown);

/// The caption as it is to be drawn now, with the mark of the shortcut key while the Alt key is held.
QString DrawnCaption(const QAbstractButton& button);
