#pragma once

#include "users/entry_page.h"

#include <array>

class BallRow;

/// Page 19, "View Entry in Detail": one entry, to be read only.
class EntryViewPage : public EntryPage
{
    Q_OBJECT

public:
    EntryViewPage();

    /// Shows the entry on which `entries` stands, of the user on whom `users` stands.
    void Prepare() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    QWidget* MakeDays();
    void ColourDays();

    DaySet days{};
    BallRow* balls;
    std::array<QLabel*, DaysOfWeek> F19day{};
};
