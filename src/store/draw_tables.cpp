#include "store/draw_tables.h"

#include "game/game.h"
#include "store/link_table.h"

namespace {

TableLayout ListOf(TableLayout table)
{
    table.listedTable = table.name;
    table.name += "list";
    table.orderedBy = {DrawField::Date, DrawField::DrawId};
    return table;
}

} // namespace

const TableLayout& DrawTable(const Game& game)
{
    static const TableLayout mainDraws{"ukmain",
                                       {{"DrawId", "INTEGER"},
                                        {"Date", "TEXT"},
                                        {"Day", "TEXT"},
                                        {"Ball1", "INTEGER"},
                                        {"Ball2", "INTEGER"},
                                        {"Ball3", "INTEGER"},
                                        {"Ball4", "INTEGER"},
                                        {"Ball5", "INTEGER"},
                                        {"Ball6", "INTEGER"},
                                        {"Bonus", "INTEGER"},
                                        {"Machine", "TEXT"},
                                        {"BallSet", "TEXT"}}};
    static const TableLayout thunderballDraws{"ukthunder",
                                              {{"DrawId", "INTEGER"},
                                               {"Date", "TEXT"},
                                               {"Day", "TEXT"},
                                               {"Ball1", "INTEGER"},
                                               {"Ball2", "INTEGER"},
                                               {"Ball3", "INTEGER"},
                                               {"Ball4", "INTEGER"},
                                               {"Ball5", "INTEGER"},
                                               {"Thunderball", "INTEGER"}}};
    return game.IsMain() ? mainDraws : thunderballDraws;
}

const TableLayout& DrawList(const Game& game)
{
    static const TableLayout mainList = ListOf(DrawTable(MainGame));
    static const TableLayout thunderballList = ListOf(DrawTable(ThunderballGame));
    return game.IsMain() ? mainList : thunderballList;
}

std::vector<TableLayout> DrawDatabaseLayouts()
{
    return {DrawTable(MainGame), DrawTable(ThunderballGame), DrawList(MainGame), DrawList(ThunderballGame),
            LinksTable()};
}
