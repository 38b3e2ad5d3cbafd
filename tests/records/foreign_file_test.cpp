#include "support/failure_of.h"
#include "support/raw_file.h"
#include "support/test_window.h"

#include "walk.h"

namespace {

/// The program's two files, of which somebody has worked over that of the users.
struct ForeignFiles
{
    explicit ForeignFiles(const std::string& userSql)
    {
        OpenDatabaseFiles();
        AddUser(users, "Ann", 5);
        AddEntry(entries, EntryRow{});
        CloseDatabaseFiles();
        RunSql(UserDataPath, {}, userSql);
    }

    TestFolder folder{TestFolder::Content::Empty};
};

} // namespace

class ForeignFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void NothingOfTheFileRunsWhenRowsChange()
    {
        const char* const cascade = R"(DROP TABLE entries; CREATE UNIQUE INDEX number ON users(UserId);
            CREATE TABLE entries(EntryId INTEGER, UserId INTEGER REFERENCES users(UserId) ON DELETE CASCADE, DrawType,
            Ball1, Ball2, Ball3, Ball4, Ball5, Ball6, Monday, Tuesday, Wednesday, Thursday, Friday, Saturday, Sunday);
            INSERT INTO entries(EntryId, UserId) VALUES (1, 1))";
        for (const char* sql :
             {"CREATE TRIGGER t AFTER INSERT ON users BEGIN DELETE FROM entries; END",
              "CREATE TRIGGER t BEFORE DELETE ON users BEGIN DELETE FROM entries; END", cascade,
              "CREATE VIRTUAL TABLE search USING fts4(a)", "CREATE INDEX i ON users(lower(trim(UserName)))",
              "CREATE INDEX i ON users(UserId); ANALYZE", "PRAGMA journal_mode = WAL",
              "CREATE TABLE c(a INTEGER PRIMARY KEY AUTOINCREMENT, b AS (a + 1)); INSERT INTO c VALUES (1)",
              "CREATE VIEW v AS SELECT * FROM nowhere"}) {
            const ForeignFiles files(sql);
            OpenDatabaseFiles();
            AddUser(users, "Bob", 1);
            users.MoveFirst();
            ChangeUser(users, "Anna", 2);
            users.Delete();
            QCOMPARE(files.folder.Files(), (QStringList{"drawdata.tv3", "userdata.tv3"}));
            QCOMPARE(sql + CloseAndCompactFiles(), QString(sql));
            QCOMPARE(TestFolder::StoredRows("users"), QStringList{"2,Bob,1"});
            QCOMPARE(TestFolder::StoredRows("entries").size(), 1);
        }
    }

    void TableMustBeATableOfTheseColumns()
    {
        const char* const disguised = R"(CREATE VIRTUAL TABLE users USING fts4(UserId, UserName, SpendLimit);
            PRAGMA writable_schema = 1; UPDATE sqlite_master SET rootpage = 2 WHERE name = 'users')";
        for (const char* sql :
             {"", "CREATE VIEW users AS SELECT 1 AS UserId, 2 AS UserName, 3 AS SpendLimit",
              "CREATE VIRTUAL TABLE users USING fts4(UserId, UserName, SpendLimit)", disguised,
              "CREATE TABLE users(UserId, UserName)", "CREATE TABLE users(UserName, UserId, SpendLimit)",
              "CREATE TABLE users(UserId, UserName, SpendLimit, More AS (hex(UserName)))",
              "CREATE TABLE users(UserId PRIMARY KEY, UserName, SpendLimit) WITHOUT ROWID"}) {
            const ForeignFiles files("DROP TABLE users;" + std::string(sql));
            QVERIFY2(!FailureOf(OpenDatabaseFiles).detail.isEmpty(), sql);
        }
    }

    /// A stored query is never run, whatever it says: its table's rows are put into order by the program.
    void ListIsAnOrderOfItsTable()
    {
        const ForeignFiles files("");
        RunSql(
            DrawDataPath, DrawConnect,
            "DROP VIEW ukmainlist; CREATE VIEW ukmainlist(DrawId, \"Date\", Day, Ball1, Ball2, Ball3, Ball4, Ball5, "
            "Ball6, Bonus, Machine, BallSet) AS WITH RECURSIVE more(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM more) "
            "SELECT n, n, n, n, n, n, n, n, n, n, n, n FROM more; INSERT INTO ukmain(DrawId, \"Date\") VALUES "
            "(1, '2020-01-11'), (2, '2020-01-04'), (3, '2020-01-11'), (3, '2020-01-11'), (4, ''), (-5, '10'), (6, "
            "'\u00e9')");
        OpenDatabaseFiles();
        QString numbers;
        for (ukmainlist.MoveFirst(); !ukmainlist.Eof(); ukmainlist.MoveNext())
            numbers += QString::number(ukmainlist.Number(0)) + ' ';
        QCOMPARE(numbers, QString("6 3 3 1 2 -5 4 "));
    }

    void EngineAdmitsOnlyWhatTheProgramDoes()
    {
        const ForeignFiles files("CREATE VIEW v AS SELECT 1; CREATE VIRTUAL TABLE search USING fts4(a);"
                                 "CREATE TABLE n(a); WITH RECURSIVE more(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM "
                                 "more LIMIT 3000) INSERT INTO n SELECT n FROM more");
        const Engine engine = OpenGuarded(UserDataPath, {}, {}, "opening");
        const auto answer = [&](const char* sql) {
            return FailureOf([&] { Execute(engine.get(), sql, "trying"); }).detail;
        };
        for (const char* sql :
             {"ATTACH ':memory:' AS other", "SELECT sqlcipher_export('main')", "UPDATE sqlite_master SET sql = ''"})
            QVERIFY2(!answer(sql).isEmpty(), sql);
        Statement most(engine.get(), "PRAGMA max_page_count", "asking");
        QVERIFY(most.Step() && most.WholeNumber(0) == 64 * 1024 * 1024 / 4096);
        for (const bool compacting : {false, true}) {
            if (compacting)
                AllowExport(engine.get());
            QCOMPARE(answer("SELECT count(*) FROM users"), QString());
            QCOMPARE(answer("SELECT count(*) FROM n, n AS o, n AS p"), QString("interrupted"));
            for (const char* sql :
                 {"CREATE TABLE x(a)", "DROP TABLE users", "CREATE TEMP TABLE x(a)", "PRAGMA writable_schema = 1",
                  "PRAGMA journal_mode = OFF", "PRAGMA trusted_schema = 1", "SELECT load_extension('x')",
                  "SELECT randomblob(5)", "SELECT * FROM v", "SELECT * FROM search",
                  "WITH RECURSIVE more(n) AS (SELECT 1 UNION ALL SELECT n FROM more) SELECT n FROM more"})
                QVERIFY2(!answer(sql).isEmpty(), sql);
        }
    }

    void WhatTakesTooMuchMemoryIsRefused()
    {
        const ForeignFiles files("DROP TABLE users; CREATE TABLE users(UserId);"
                                 "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 80)"
                                 "INSERT INTO users SELECT i FROM n;"
                                 "ALTER TABLE users ADD UserName DEFAULT '" +
                                 std::string(900000, 'x') + "'; ALTER TABLE users ADD SpendLimit");
        OpenDatabaseFiles();
        QCOMPARE(FailureOf([] { (void)users.Count(); }).reason, QString("their texts are too long"));
        CloseDatabaseFiles();
        std::filesystem::resize_file(UserDataPath, 65ULL * 1024 * 1024);
        QCOMPARE(FailureOf(OpenDatabaseFiles).reason, QString("it is far larger than any file of this program"));
    }

    void OddValuesAreShownAndCrashNothing()
    {
        TestWindow window;
        const QStringList odd =
            QString("NULL 'text' -1 0 3.7 9e999 9223372036854775807 -9223372036854775808 x'00ff' '' "
                    "'2020-02-31'")
                .split(' ');
        QString draws = "INSERT INTO links VALUES (1, 2, 3, 4, zeroblob(1000000));";
        QString people = "INSERT INTO users VALUES (1, 'Ann', 1000), (1, hex(zeroblob(500000)), 4);";
        for (int shift = 0; shift < odd.size(); ++shift)
            for (const auto& [sql, table, fields] : {std::tuple(&draws, "ukmain", 12),
                                                     {&draws, "ukthunder", 9},
                                                     {&draws, "links", 5},
                                                     {&people, "users", 3},
                                                     {&people, "entries", 16}})
                *sql += QString("INSERT INTO %1 VALUES (%2);")
                            .arg(table, (odd.mid(shift) + odd + odd).mid(0, fields).join(u','));
        RunSql(DrawDataPath, DrawConnect, draws.toStdString());
        RunSql(UserDataPath, {}, people.toStdString());
        window.modals.WillAlwaysDo([](QDialog& dialog) { dialog.close(); });
        for (const Stop& stop : Stops())
            GoTo(window.Window(), stop);
        for (int link = 0; link <= odd.size(); ++link)
            window.Click("F25next");
        QCOMPARE(TestFolder::StoredRows("users").size(), odd.size() + 2);
        QVERIFY(window.Window().width() <= 1024);
    }
};

TAVENOR_TEST(ForeignFileTest)
#include "foreign_file_test.moc"
