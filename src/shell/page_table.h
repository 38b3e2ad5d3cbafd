#pragma once

class PageFrame;
class PageSwitch;

/// One row of the page table: how a page is made, and whether choosing it runs its preparation.
struct PageTableRow
{
    int index;
    bool hasPreparation;
    PageFrame* (*make)(PageSwitch&);
};

/// The row of a page, or nullptr for a frame that stays empty.
const PageTableRow* FindPage(int index);

/// The pages are numbered 0 to 30.
inline constexpr int PageCount = 31;
