#pragma once

#include "game/ball_colours.h"

#include <QString>

struct Game;

/// How the fields of a page check one typed ball when it loses the focus.
struct BallFieldRule
{
    const Game* game;
    QString mainMessage;
    QString extraMessage;
    /// Whether a value between 0 and 1, or between the highest ball and the next number, passes here; storing refuses
    /// fractions in any case.
    bool fractionsAtTheEdgesPass;
    /// Whether every field keeps its slot's colours, an empty or refused one too.
    bool coloursAreFixed = false;
};

/// The rule of the pages on which new draws and entries of the game are typed in.
const BallFieldRule& AddingRule(const Game& game);

/// The rule of the pages on which a stored draw of the game is edited.
const BallFieldRule& DrawEditingRule(const Game& game);

/// The rule of the page on which a stored entry of the game is edited.
const BallFieldRule& EntryEditingRule(const Game& game);

/// What became of a field: an accepted one (an empty one too) has its colours; a refused one has those of an empty one
/// and the message that says why.
struct BallFieldVerdict
{
    BallColours colours;
    QString message;

    bool IsRefused() const { return !message.isEmpty(); }
};

BallFieldVerdict CheckBallField(const BallFieldRule& rule, int slot, const QString& text);
