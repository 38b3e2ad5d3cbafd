#pragma once

#include "draws/draw_records.h"
#include "draws/game.h"
#include "shell/open_databases.h"

/// Stores a draw as the pages do and shows it in the game's list.
inline void StoreDraw(const Game& game, QDate date, const std::array<double, 7>& balls, const QString& machine = {},
                      const QString& ballSet = {})
{
    Transaction transaction(DrawDb, "The draw could not be stored");
    AddDraw(DrawsOf(game), game, {date, balls, machine, ballSet});
    transaction.Commit();
    DrawListOf(game).Requery();
}
