#pragma once

#include "controls/page_frame.h"
#include "game/entry_row.h"

class BallFields;
class DayBoxes;
class EntryHead;
class PageSwitch;

/// Page 20: the numbers and days of one entry are changed. Laid over the entries list.
class EntryEditPage : public PageFrame
{
    Q_OBJECT

public:
    explicit EntryEditPage(PageSwitch& pageSwitch);

    void Show(const EntryRow& entry, const QString& userName);

private:
    void F20store_Click();
    void F20back_Click();
    bool HasEqualTexts() const;
    void StoreChanges();

    PageSwitch& pages;
    std::int64_t entryId = 0;
    EntryHead* head;
    BallFields* F20num;
    DayBoxes* F20day;
    Button* F20back;
    Button* F20store;
};
