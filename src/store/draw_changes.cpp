#include "store/draw_changes.h"

#include "store/open_databases.h"

void StoreNewDraw(const Game& game, const EnteredDraw& draw)
{
    Transaction transaction(DrawDb, "The draw could not be stored");
    AddDraw(DrawsOf(game), game, draw);
    DrawListOf(game).Requery();
    transaction.Commit();
}

void OverwriteDrawOfDate(const Game& game, const EnteredDraw& draw)
{
    Transaction transaction(DrawDb, "The draw could not be stored");
    RecordSet& table = DrawsOf(game);
    if (FindDrawByDate(table, draw.date))
        OverwriteDraw(table, game, draw);
    else
        AddDraw(table, game, draw);
    DrawListOf(game).Requery();
    transaction.Commit();
}

void ChangeDraw(const Game& game, const Bookmark& mark, const EnteredDraw& draw)
{
    const std::string doing = "The draw could not be changed";
    Transaction transaction(DrawDb, doing);
    RecordSet& table = DrawsOf(game);
    MoveToDraw(table, mark, doing);
    OverwriteDraw(table, game, draw);
    transaction.Commit();
}

void DeleteDraws(const Game& game, const std::vector<Bookmark>& marks)
{
    Transaction transaction(DrawDb,
                            marks.size() == 1 ? "The draw could not be deleted" : "The draws could not be deleted");
    DeleteRecords(DrawsOf(game), marks);
    DrawListOf(game).Requery();
    transaction.Commit();
}
