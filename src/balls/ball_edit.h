#pragma once

#include "controls/text_box.h"

/// The text field on a ball: no frame and no background of its own. Its colours are the Base and Text roles of its
/// palette, as the ball's is its Window role.
class BallEdit : public TextBox
{
    Q_OBJECT

public:
    explicit BallEdit(QWidget* parent = nullptr);

    void SetColours(const QColor& ball, const QColor& digits);
    /// Selects the whole text whenever the field gets the focus.
    void SelectTextOnFocus() { selectsOnFocus = true; }

protected:
    void focusInEvent(QFocusEvent* event) override;

private:
    bool selectsOnFocus = false;
};

/// Makes the press of the mouse that is just being delivered do nothing: it took the focus from a field whose content
/// was refused, and the player has not yet seen that when it goes on to press what lies under it.
void SwallowMousePressInProgress();
