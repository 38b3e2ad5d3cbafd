#pragma once

#include "controls/small_window.h"

/// The about window, frmabout.
class AboutWindow : public SmallWindow
{
    Q_OBJECT

public:
    explicit AboutWindow(QWidget* parent);
};
