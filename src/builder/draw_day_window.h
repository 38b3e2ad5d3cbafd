#pragma once

#include "controls/small_window.h"
#include "game/entry_row.h"

class Button;
class DayBoxes;

/// The draw-day window, frmday: on which days a batch of entries is played. Store hands the choice over to the day set
/// that it was given; closing it another way leaves that set as it was.
class DrawDayWindow : public SmallWindow
{
    Q_OBJECT

public:
    DrawDayWindow(DaySet& chosenDays, QWidget* parent);

private:
    void store_Click();

    DaySet& days;
    DayBoxes* boxes;
    Button* store;
};
