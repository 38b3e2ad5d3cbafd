#pragma once

#include "controls/page_frame.h"
#include "records/bookmark.h"

class BallFields;
class DayBoxes;
class EntryHead;
struct Game;

/// Page 20: the numbers and days of one entry are changed. Laid over the entries list.
class EntryEditPage : public PageFrame
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
    const Game* game;
    EntryHead* head;
    BallFields* F20num;
    DayBoxes* F20day;
    Button* F20back;
    Button* F20store;
};
