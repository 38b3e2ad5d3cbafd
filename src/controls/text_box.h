#pragma once

#include <QLineEdit>

/// A text field that tells when its content is final: by the Enter key, or because the player went on to another
/// control.
class TextBox : public QLineEdit
{
    Q_OBJECT

public:
    explicit TextBox(QWidget* parent = nullptr);

Q_SIGNALS:
    /// The Enter key was pressed.
    void EnterPressed();
    /// The focus went to another control of the window.
    void Left();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};
