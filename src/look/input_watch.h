#pragma once

#include <QObject>

class QAbstractItemView;

/// Whether what the player did last was a key, and not the mouse.
bool LastInputWasKey();

/// Takes the current cell away from a view, or gives it back: a screen reader would tell the current cell of a view as
/// what has the focus, also while the view does not have it.
void HideCurrentCell(QAbstractItemView& view, bool hidden);

/// What all windows have in common in how they answer keys and the wheel: that Enter presses a button as Space does,
/// the letters of the buttons, which label names a list, and that the wheel changes no list, choice or date that does
/// not have the focus.
class InputWatch : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override;
};
