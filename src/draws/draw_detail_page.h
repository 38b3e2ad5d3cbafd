#pragma once

#include "controls/page_frame.h"

class DrawView;
struct Game;

/// Pages 14 and 15: one draw in detail, laid over the page of all draws.
class DrawDetailPage : public PageFrame
{
    Q_OBJECT

public:
    explicit DrawDetailPage(const Game& drawGame);

    /// Shows, in front of the other pages, the draw on which the game's list stands.
    void Prepare() override;

private:
    const Game& game;
    DrawView* draw;
};
