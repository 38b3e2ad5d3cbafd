#pragma once

#include "balls/ball_line.h"

struct Game;

/// The object names of the balls of a draw: index 0 is the extra ball, indices from 1 the main balls.
BallLine::Names DrawBallNames(const Game& game, const QString& number, const QString& disc, const QString& caption);

/// The captions of a draw's balls in slot order.
QStringList DrawBallCaptions(const Game& game);

/// The object names of the balls of an entry: indices from 1.
BallLine::Names EntryBallNames(const QString& number, const QString& disc, const QString& caption = {});

/// The captions of an entry's balls as the Main game has them.
QStringList EntryBallCaptions();
