#pragma once

#include "controls/page_frame.h"

class PageSwitch;

/// Page 0, the start page.
class StartPage : public PageFrame
{
    Q_OBJECT

public:
    explicit StartPage(PageSwitch& pageSwitch);

private:
    void about_Click();
    void F0links_Click();
    void advanced_Click();

    PageSwitch& pages;
};
