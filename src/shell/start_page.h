#pragma once

#include "controls/page_frame.h"

class PageSwitch;

/// Page 0, the start page.
class StartPage : public PageFrame
{
    Q_OBJECT

public:
    explicit StartPage(PageSwitch& pages);

protected:
    /// In a large window the logo is a step larger.
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* logo;
};
