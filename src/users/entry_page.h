#pragma once

#include "balls/ball_line.h"
#include "controls/page_frame.h"
#include "game/entry_row.h"

class QLineEdit;
struct Game;

/// What pages 19 and 20 share, which are laid over the entries list: whose entry they show, and of which game, above
/// its balls and its days.
class EntryPage : public PageFrame
{
    Q_OBJECT

protected:
    explicit EntryPage(int page);

    BallLine::Names BallNames() const;
    /// Puts the cards onto the page: to be called when the balls and the days are made.
    void Build(BallLine* entryBalls, QWidget* days);
    Button* Back() const { return back; }

    /// Shows whose and of which game the entry is on which `entries` stands; `users` stands on its user.
    EntryRow ShowHead();
    /// The game of the shown entry; the Main game before any was shown.
    const Game& ShownGame() const { return *game; }

private:
    const Game* game;
    QLineEdit* user;
    QLineEdit* type;
    BallLine* balls = nullptr;
    Button* back;
};
