#pragma once

#include "game/game.h"
#include "store/draw_records.h"
#include "store/open_databases.h"

#include <QStringList>

/// Stores draws as another page would: each text is a date, the balls in slot order and, for the Main game, machine and
/// set of balls, separated by commas.
inline void StoreDraws(const Game& game, const QStringList& draws)
{
    Transaction transaction(DrawDb, "The draws of the test could not be stored");
    for (const QString& text : draws) {
        const QStringList fields = text.split(u',');
        EnteredDraw draw{QDate::fromString(fields[0], Qt::ISODate), {}, {}, {}};
        for (int slot = 0; slot < game.BallCount(); ++slot)
            draw.balls.at(static_cast<size_t>(slot)) = fields[slot + 1].toDouble();
        draw.machine = fields.value(game.BallCount() + 1);
        draw.ballSet = fields.value(game.BallCount() + 2);
        AddDraw(DrawsOf(game), game, draw);
    }
    transaction.Commit();
    DrawListOf(game).Requery();
}

/// What another running copy of the program does: it works on the same file through a connection of its own.
template <typename Action>
void InAnotherCopy(const std::filesystem::path& file, const std::string& connect, const TableLayout& table,
                   Action action)
{
    Database database;
    database.Open(file, connect);
    RecordSet set;
    set.Open(database, table);
    set.MoveFirst();
    action(set);
}
