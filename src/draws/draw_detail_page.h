#pragma once

#include "controls/page_frame.h"

#include <cstdint>

class DrawView;
struct Game;

/// Pages 14 and 15: one draw in detail, laid over the page of all draws.
class DrawDetailPage : public PageFrame
{
    Q_OBJECT

public:
    explicit DrawDetailPage(const Game& drawGame);

    /// Shows the draw of this number in front of the other pages. Throws Failure where there is none any more.
    void Open(std::int64_t drawId);

private:
    const Game& game;
    DrawView* draw;
    Button* back;
};
