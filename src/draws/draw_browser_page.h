#pragma once

#include "controls/page_frame.h"

#include <QDate>
#include <QLabel>

class Card;
class DrawView;
class MonthCalendar;
class RecordSet;
struct Game;

/// The draws of one game on a date: the one on which the list stands, with arrows to the others of that date.
class BrowserSection : public QObject
{
    Q_OBJECT

public:
    /// Makes the section's card; it belongs to `parent`.
    BrowserSection(const Game& drawGame, QWidget* parent);

    Card* View() const { return card; }

    /// FindDrawsOfDate for this game: shows the draw that stands last in the list, or that there is none.
    void Find(QDate date);

private:
    void AddArrows();
    /// F9Mforward_Click, F9Tforward_Click: one record towards the list's start.
    void Forward_Click();
    /// F9Mback_Click, F9Tback_Click: one record towards the list's end.
    void Back_Click();
    /// Moves one record on; hides the arrow that led there when there is no further draw of the date behind it.
    void Step(int direction, Button* arrow, Button* opposite);
    /// ShowBrowserMainDraw, ShowBrowserThunderDraw.
    void ShowDraw();

    const Game& game;
    RecordSet& list;
    QDate shownDate;
    Card* card;
    QFrame* frame;
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
