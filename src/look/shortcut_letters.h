#pragma once

#include <QObject>
#include <QString>

class QAbstractButton;

// Captions stand as they are given, without the mark of a shortcut key: the key is kept by the button, and its letter
// is underlined while the Alt key is held.

/// Whether the Alt key is held, while which letters are underlined.
bool AltIsHeld();

/// Makes Alt with a letter press a button.
void SetShortcutLetter(QAbstractButton& button, QChar letter);

/// Gives every push button of a page or a dialog a letter of its caption, the first one that is neither taken by
/// another button there nor among `taken`.
void GiveShortcutLetters(const QWidget& page, QString taken = {});

/// The caption as it is to be drawn now, with the mark of the shortcut key while the Alt key is held.
QString DrawnCaption(const QAbstractButton& button);

/// Has the captions drawn anew when the Alt key is pressed or let go.
class AltKeyWatch : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override;
};
