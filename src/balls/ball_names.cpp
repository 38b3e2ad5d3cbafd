#include "balls/ball_names.h"

#include "game/game.h"

BallLine::Names DrawBallNames(const Game& game, const QString& number, const QString& disc, const QString& caption)
{
    BallLine::Names names{number, disc, caption, {}};
    for (int slot = 0; slot < game.BallCount(); ++slot)
        names.indices.push_back(game.IsExtra(slot) ? 0 : slot + 1);
    return names;
}

QStringList DrawBallCaptions(const Game& game)
{
    QStringList captions;
    for (int slot = 0; slot < game.BallCount(); ++slot)
        captions.append(game.BallCaption(slot));
    return captions;
}

BallLine::Names EntryBallNames(const QString& number, const QString& disc, const QString& caption)
{
    BallLine::Names names{number, disc, caption, {}, 1};
    for (int index = 1; index <= EntryBalls; ++index)
        names.indices.push_back(index);
    return names;
}

QStringList EntryBallCaptions()
{
    QStringList captions;
    for (int slot = 0; slot < EntryBalls; ++slot)
        captions.append(MainGame.BallCaption(slot));
    return captions;
}
