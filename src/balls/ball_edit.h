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
    /// Selects the whole text whenever the field gets the focus, so that typing replaces it.
    void SelectTextOnFocus() { selectsOnFocus = true; }

protected:
    void focusInEvent(QFocusEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    bool selectsOnFocus = false;
};
