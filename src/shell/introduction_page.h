#pragma once

#include "controls/page_frame.h"

/// Pages 1 to 5: what a menu group is for, with its sub-options as clickable labels.
class IntroductionPage : public PageFrame
{
    Q_OBJECT

public:
    explicit IntroductionPage(int group);

Q_SIGNALS:
    /// A label of the array `lab` that acts as a sub-option (1 to 4) was clicked.
    void SuboptionClicked(int suboption);
    void StartScreenClicked();
};
