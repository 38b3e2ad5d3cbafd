#include "store/user_tables.h"

#include "base/dates.h"
#include "game/entry_row.h"

const TableLayout& UsersTable()
{
    static const TableLayout users{"users", {{"UserId", "INTEGER"}, {"UserName", "TEXT"}, {"SpendLimit", "NUMERIC"}}};
    return users;
}

const TableLayout& EntriesTable()
{
    static const TableLayout entries = [] {
        TableLayout table{"entries", {{"EntryId", "INTEGER"}, {"UserId", "INTEGER"}, {"DrawType", "INTEGER"}}};
        for (int ball = 1; ball <= EntryBalls; ++ball)
            table.columns.push_back({"Ball" + std::to_string(ball), "INTEGER"});
        for (const QString& day : DayNames)
            table.columns.push_back({day.toStdString(), "INTEGER"});
        return table;
    }();
    return entries;
}
