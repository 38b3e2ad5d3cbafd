#pragma once

#include "game/ball_colours.h"

#include <QString>

struct Game;

/// Which fractions pass the check of a field: those between the lowest and the highest ball, also those just outside
/// them (0.5, say, or 14.5), or none. New draws and entries refuse them all when they are stored.
enum class Fractions
{
    Inside,
    InsideAndAtTheEdges,
    None
};

/// When a refused field turns grey. Where it never does, an empty one is not grey either.
enum class Greying
{
    BeforeMessage,
    AfterMessage,
    Never
};

/// How the fields of a page check one typed ball when it loses the focus.
struct BallFieldRule
{
    const Game* game;
    QString mainMessage;
    QString extraMessage;
    Fractions fractions;
    Greying greying;
};

/// The rule of the pages on which new draws and entries of the game are typed in.
const BallFieldRule& AddingRule(const Game& game);

/// The rule of the pages on which a stored draw of the game is edited.
const BallFieldRule& DrawEditingRule(const Game& game);

/// The rule of the page on which a stored entry of the game is edited.
const BallFieldRule& EntryEditingRule(const Game& game);

/// The outcome of the check of a field: an accepted one (an empty one too) has its colours; a refused one has those of
/// an empty one and the message that says why.
struct BallFieldVerdict
{
    BallColours colours;
    QString message;

    bool IsRefused() const { return !message.isEmpty(); }
};

BallFieldVerdict CheckBallField(const BallFieldRule& rule, int slot, const QString& text);
