#pragma once

#include "controls/card.h"
#include "controls/page_frame.h"

#include <QDate>
#include <QLabel>

class DrawView;
class MonthCalendar;
class RecordSet;
struct Game;

/// The draws of one game on a date: the one on which the list stands, with arrows to the others of that date.
class BrowserSection : public Card
{
    Q_OBJECT

public:
    explicit BrowserSection(const Game& drawGame);

    /// FindDrawsOfDate for this game: shows the draw that stands last in the list, or that there is none.
    void Find(QDate date);

private:
    void AddHeading();
    /// Moves one record towards the list's end (1) or start (-1), and hides the arrow that led there when there is no
    /// further draw of the date.
    void Step(int direction, Button* arrow, Button* opposite);
    /// ShowBrowserMainDraw, ShowBrowserThunderDraw.
    void ShowDraw();

    const Game& game;
    RecordSet& list;
    QDate shownDate;
    DrawView* draw;
    QLabel* noDraw;
    Button* back;
    Button* forward;
};

/// Page 9, the single-draw browser: the draws of both games on the date that is chosen in the calendar.
class DrawBrowserPage : public PageFrame
{
    Q_OBJECT

public:
    DrawBrowserPage();

    /// ShowDrawBrowser.
    void Prepare() override;

private:
    void FindDrawsOfDate(QDate date);

    MonthCalendar* F9Cal;
    BrowserSection* mainSection;
    BrowserSection* thunderballSection;
};
