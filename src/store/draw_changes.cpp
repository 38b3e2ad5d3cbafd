#include "store/draw_changes.h"

#include "store/open_databases.h"

void StoreNewDraw(const Game& game, const EnteredDraw& draw)
{
    Transaction transaction(DrawDb, "The draw could not be stored");
    AddDraw(DrawsOf(game), game, draw);
    transaction.Commit();
    DrawListOf(game).Requery();
}

void OverwriteDrawOfDate(const Game& game, const EnteredDraw& draw)
{
    Transaction transaction(DrawDb, "The draw could not be stored");
    RecordSet& table = DrawsOf(game);
    if (FindDrawByDate(table, draw.date))
        OverwriteDraw(table, game, draw);
    else
        AddDraw(table, game, draw);
    transaction.Commit();
    DrawListOf(game).Requery();
}

void ChangeDraw(const Game& game, std::int64_t drawId, const EnteredDraw& draw)
{
    const std::string doing = "The draw could not be changed";
    Transaction transaction(DrawDb, doing);
    RecordSet& table = DrawsOf(game);
    MoveToDraw(table, drawId, doing);
    OverwriteDraw(table, game, draw);
    transaction.Commit();
    DrawListOf(game).Requery();
}

void DeleteDraws(const Game& game, const std::vector<std::int64_t>& drawIds)
{
    Transaction transaction(DrawDb,
                            drawIds.size() == 1 ? "The draw could not be deleted" : "The draws could not be deleted");
    DeleteRecords(DrawsOf(game), drawIds);
    transaction.Commit();
    DrawListOf(game).Requery();
}
