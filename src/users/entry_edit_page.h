#pragma once

#include "records/record_row.h"
#include "users/entry_page.h"

class BallFields;
class DayBoxes;

/// Page 20: the numbers and days of one entry are changed.
class EntryEditPage : public EntryPage
{
    Q_OBJECT

public:
    EntryEditPage();

    /// Shows the entry on which `entries` stands, of the user on whom `users` stands, to be changed.
    void Prepare() override;

private:
    void F20store_Click();
    void F20back_Click();
    bool HasEqualMainBalls() const;

    Bookmark shown;
    BallFields* F20num;
    DayBoxes* F20day;
    Button* F20store;
};
