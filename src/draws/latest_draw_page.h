#pragma once

#include "controls/page_frame.h"

#include <array>

class Card;
class DrawView;
struct Game;

/// Page 8, "Latest Draw": the newest draw of each game, side by side.
class LatestDrawPage : public PageFrame
{
    Q_OBJECT

public:
    LatestDrawPage();

    /// ShowLatestDraws.
    void Prepare() override;

private:
    struct Section
    {
        const Game* game;
        Card* card;
        DrawView* draw;
        /// The panel with the label that there are no draws, in the place of the draw.
        QFrame* blank;
    };

    static Section MakeSection(const Game& game);

    std::array<Section, 2> sections;
};
