#pragma once

#include "controls/page_frame.h"

class DrawFields;
class MonthCalendar;
struct EnteredDraw;
struct Game;

/// Pages 6 and 7: the result of a draw of the game is typed in, checked and stored.
class AddDrawPage : public PageFrame
{
    Q_OBJECT

public:
    explicit AddDrawPage(const Game& drawGame);

    /// F6Reset_Click, F7Reset_Click.
    void Prepare() override;

private:
    void BuildCards();
    /// F6Store_Click, F7Store_Click.
    void Store_Click();
    /// Stores the draw as a new row, or over the row of the same date when the player wants that; false on Cancel.
    bool StoreDraw(const EnteredDraw& draw);

    const Game& game;
    MonthCalendar* calendar;
    DrawFields* fields;
    Button* reset;
    Button* store;
};
