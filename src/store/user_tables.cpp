#include "store/user_tables.h"

const TableLayout& UsersTable()
{
    static const TableLayout users{"users", {{"UserId", "INTEGER"}, {"UserName", "TEXT"}, {"SpendLimit", "NUMERIC"}}};
    return users;
}

const TableLayout& EntriesTable()
{
    static const TableLayout entries{"entries",
                                     {{"EntryId", "INTEGER"},
                                      {"UserId", "INTEGER"},
                                      {"DrawType", "INTEGER"},
                                      {"Ball1", "INTEGER"},
                                      {"Ball2", "INTEGER"},
                                      {"Ball3", "INTEGER"},
                                      {"Ball4", "INTEGER"},
                                      {"Ball5", "INTEGER"},
                                      {"Ball6", "INTEGER"},
                                      {"Monday", "INTEGER"},
                                      {"Tuesday", "INTEGER"},
                                      {"Wednesday", "INTEGER"},
                                      {"Thursday", "INTEGER"},
                                      {"Friday", "INTEGER"},
                                      {"Saturday", "INTEGER"},
                                      {"Sunday", "INTEGER"}}};
    return entries;
}
