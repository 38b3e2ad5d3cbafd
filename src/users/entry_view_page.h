#pragma once

#include "controls/page_frame.h"
#include "game/entry_row.h"

#include <QLabel>

#include <array>

class BallRow;
class Card;
class EntryHead;

/// Page 19, "View Entry in Detail": one entry, laid over the entries list.
class EntryViewPage : public PageFrame
{
    Q_OBJECT

public:
    EntryViewPage();

    /// Shows the entry on which `entries` stands, of the user on whom `users` stands.
    void Prepare() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    Card* MakeDayCard();
    void ColourDays();

    DaySet days{};
    EntryHead* head;
    BallRow* balls;
    std::array<QLabel*, DaysOfWeek> F19day{};
    Button* F19back;
};
