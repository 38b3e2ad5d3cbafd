#pragma once

#include "controls/page_frame.h"
#include "records/record_row.h"

#include <QLabel>

class DrawFields;
class PageSwitch;
struct Game;

/// Pages 16 and 17: the balls of a stored draw are corrected, and its machine and set of balls where it has them. Laid
/// over the page of all draws.
class EditDrawPage : public PageFrame
{
    Q_OBJECT

public:
    EditDrawPage(const Game& drawGame, PageSwitch& pageSwitch);

    /// Shows, in front of the other pages, the draw on which the game's list stands, to be changed.
    void Prepare() override;

private:
    /// F16reset_Click, F17reset_Click.
    void Reset_Click();
    /// F16save_Click, F17save_Click.
    void Save_Click();
    /// F16back_Click, F17back_Click.
    void Back_Click();

    const Game& game;
    PageSwitch& pages;
    Bookmark shown;
    QLabel* date;
    DrawFields* fields;
    Button* back;
    Button* reset;
    Button* save;
};
