#pragma once

#include <QDialog>

/// The about window, frmabout.
class AboutWindow : public QDialog
{
    Q_OBJECT

public:
    explicit AboutWindow(QWidget* parent);
};
