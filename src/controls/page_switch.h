#pragma once

class PageFrame;

/// The way from one page to another, which the main window gives to its pages.
class PageSwitch
{
public:
    PageSwitch() = default;
    virtual ~PageSwitch() = default;
    PageSwitch(const PageSwitch&) = delete;
    PageSwitch& operator=(const PageSwitch&) = delete;

    /// Acts exactly like the group's button (1 to 5) followed by its sub-option (1 to 4).
    virtual void ChooseMenu(int group, int suboption) = 0;

    /// Selects a page (0 to 30), hides the others and runs its preparation.
    virtual void ShowPage(int index) = 0;

    /// The page of that index, built when it is first needed.
    virtual PageFrame* Page(int index) = 0;

    /// Goes to the start page, as the logo does.
    virtual void ShowStartPage() = 0;
};
