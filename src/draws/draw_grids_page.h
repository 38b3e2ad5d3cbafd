#pragma once

#include "controls/page_frame.h"
#include "records/record_row.h"

#include <QLabel>

class GridModel;
class GridView;
class PageSwitch;
struct Game;

/// The grid of one game's draws with the buttons that act on the selected rows.
class DrawGridSection : public QWidget
{
    Q_OBJECT

public:
    DrawGridSection(const Game& drawGame, PageSwitch& pageSwitch);

    /// Fills the grid from the list and selects the newest draw.
    void Fill();

private:
    QLayout* MakeButtons();
    /// F10maindeletebutton_Click, F10thunderdeletebutton_Click.
    void Delete_Click();
    /// Opens the draw of the one selected row on a page; tells the player when there are several.
    void OpenSelectedDraw(int page);

    const Game& game;
    PageSwitch& pages;
    /// The draws in the grid.
    RecordList shown;
    GridModel* model;
    GridView* grid;
    QLabel* noDraws;
    Button* view;
    Button* edit;
    Button* remove;
};

/// Page 10: all draws of both games.
class DrawGridsPage : public PageFrame
{
    Q_OBJECT

public:
    explicit DrawGridsPage(PageSwitch& pages);

    /// FillDrawGrids.
    void Prepare() override;

private:
    DrawGridSection* mainSection;
    DrawGridSection* thunderballSection;
};
