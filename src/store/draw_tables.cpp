#include "store/draw_tables.h"

#include "game/game.h"

namespace {

TableLayout TableOf(const Game& game, const std::string& name, const std::vector<ColumnLayout>& afterMainBalls)
{
    TableLayout table{name, {{"DrawId", "INTEGER"}, {"Date", "TEXT"}, {"Day", "TEXT"}}};
    for (int ball = 1; ball <= game.mainBalls; ++ball)
        table.columns.push_back({"Ball" + std::to_string(ball), "INTEGER"});
    for (const ColumnLayout& column : afterMainBalls)
        table.columns.push_back(column);
    return table;
}

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
    static const TableLayout mainDraws =
        TableOf(MainGame, "ukmain", {{"Bonus", "INTEGER"}, {"Machine", "TEXT"}, {"BallSet", "TEXT"}});
    static const TableLayout thunderballDraws = TableOf(ThunderballGame, "ukthunder", {{"Thunderball", "INTEGER"}});
    return game.IsMain() ? mainDraws : thunderballDraws;
}

const TableLayout& DrawList(const Game& game)
{
    static const TableLayout mainList = ListOf(DrawTable(MainGame));
    static const TableLayout thunderballList = ListOf(DrawTable(ThunderballGame));
    return game.IsMain() ? mainList : thunderballList;
}

const TableLayout& LinksTable()
{
    static const TableLayout links{"links",
                                   {{"SiteName", "TEXT"},
                                    {"WebAddress", "TEXT"},
                                    {"MailAddress", "TEXT"},
                                    {"Description1", "TEXT"},
                                    {"Description2", "TEXT"}}};
    return links;
}

std::vector<TableLayout> DrawDatabaseLayouts()
{
    return {DrawTable(MainGame), DrawTable(ThunderballGame), DrawList(MainGame), DrawList(ThunderballGame),
            LinksTable()};
}
