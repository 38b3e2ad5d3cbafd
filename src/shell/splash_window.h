#pragma once

#include <QWidget>

/// The splash window, frmsplash: a picture of the product with a border, shown while the databases are opened.
class SplashWindow : public QWidget
{
    Q_OBJECT

public:
    SplashWindow();

    /// Shows the window and has it paint itself at once.
    void ShowAtOnce();

protected:
    void paintEvent(QPaintEvent* event) override;
};
