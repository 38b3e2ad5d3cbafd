#pragma once

#include "game/draw_row.h"
#include "game/entry_row.h"

#include <QString>

/// One of the two weekly draw games: all that differs between them stands here. Balls are numbered by slot: slots 0 to
/// mainBalls - 1 are the main balls, slot mainBalls is the extra ball (the bonus ball or the thunderball).
struct Game
{
    /// The number under which entries name the game.
    int drawType;
    /// The game as the player reads it.
    QString name;
    QString extraBallName;
    int mainBalls;
    int highestMain;
    int highestExtra;
    /// Whether the extra ball comes from the same machine as the main balls, so that it differs from all of them.
    bool extraFromSameMachine;
    /// Whether a draw records its machine and set of balls.
    bool hasMachine;

    bool IsMain() const { return drawType == 1; }
    int BallCount() const { return mainBalls + 1; }
    bool IsExtra(int slot) const { return slot == mainBalls; }
    int Highest(int slot) const { return IsExtra(slot) ? highestExtra : highestMain; }
    /// "main" or "thunderball", as a sentence names the game.
    QString InSentence() const { return name.toLower(); }
    /// "Ball 1" to "Ball 6" and the extra ball's name.
    QString BallCaption(int slot) const;
};

extern const Game MainGame;
extern const Game ThunderballGame;

/// The game of the entries that carry this number.
const Game& GameOfDrawType(int drawType);

extern const std::array<QString, 4> MachineNames;
extern const std::array<QString, 8> BallSetNames;

/// Whether the balls can be a draw of the game: whole numbers in range, main balls all different, and the extra ball
/// different from them where it comes from the same machine.
bool IsPossibleDraw(const Game& game, const DrawBalls& balls);

/// Whether the numbers can be an entry of the game: six main numbers for the Main game, five main numbers and a
/// thunderball for the other; whole numbers in range, main numbers all different.
bool IsPossibleEntry(const Game& game, const EntryNumbers& numbers);
