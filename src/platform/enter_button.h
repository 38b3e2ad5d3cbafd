#pragma once

#include <QAbstractButton>

/// A button that paints itself; Enter presses it as Space does.
class EnterButton : public QAbstractButton
{
    Q_OBJECT

public:
    using QAbstractButton::QAbstractButton;

protected:
    void keyPressEvent(QKeyEvent* event) override;
};
