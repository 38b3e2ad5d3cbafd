#define SQLITE_HAS_CODEC 1
#include <sqlite3.h>

#include <cstdio>

int main()
{
    sqlite3* engine = nullptr;
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_open(":memory:", &engine) != SQLITE_OK ||
        sqlite3_prepare_v2(engine, "PRAGMA cipher_version", -1, &statement, nullptr) != SQLITE_OK ||
        sqlite3_step(statement) != SQLITE_ROW)
        return 1;
    std::puts(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0)));
    return 0;
}
