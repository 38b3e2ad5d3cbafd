#include "support/failure_of.h"
#include "support/file_bytes.h"
#include "support/raw_file.h"
#include "support/test_window.h"

#include "records/held_file.h"

#include <map>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const TableLayout Numbers{"numbers", {{"Number", "INTEGER"}, {"Word", "TEXT"}}};
const TableLayout NumbersDownwards{"numberslist", {{"Number", "INTEGER"}, {"Word", "TEXT"}}, "numbers", {0}};
const std::string Connect = ";pwd=secret";

void Add(RecordSet& set, double number, std::string_view word)
{
    set.AddNew();
    set.SetField(0, number);
    set.SetField(1, word);
    set.Update();
}

void ChangeWord(RecordSet& set, std::string_view word)
{
    set.Edit();
    set.SetField(1, word);
    set.Update();
}

QString NumbersOf(RecordSet& set)
{
    QString seen;
    for (set.MoveFirst(); !set.Eof(); set.MoveNext())
        seen += QString::number(set.Number(0)) + ' ';
    return seen.trimmed();
}

/// A database with the rows 1 to 4, and its two record sets.
struct Fixture
{
    explicit Fixture(const std::string& connect = {}) : path(folder.filePath("numbers.db").toStdString())
    {
        CreateDatabase(path, connect, {Numbers, NumbersDownwards});
        Open(connect);
        for (const char* word : {"one", "two", "three", "four"})
            Add(table, static_cast<double>(table.NextNumber()), word);
    }
    void Open(const std::string& connect = {})
    {
        database.Open(path, connect);
        table.Open(database, Numbers);
        list.Open(database, NumbersDownwards);
    }

    QTemporaryDir folder;
    std::string path;
    Database database;
    RecordSet table;
    RecordSet list;
};

/// Where a set stands after some steps: to the first, last, next or previous row, by some rows, or deleting one.
QString After(RecordSet& set, const QString& steps)
{
    static const std::map<QString, void (RecordSet::*)()> moves{{"F", &RecordSet::MoveFirst},
                                                                {"L", &RecordSet::MoveLast},
                                                                {"N", &RecordSet::MoveNext},
                                                                {"P", &RecordSet::MovePrevious},
                                                                {"D", &RecordSet::Delete}};
    for (const QString& step : steps.split(u' ')) {
        if (moves.contains(step))
            (set.*moves.at(step))();
        else
            set.Move(step.toInt());
    }
    if (set.Bof() || set.Eof())
        return set.IsEmpty() ? "empty" : set.Bof() ? "bof" : "eof";
    return FailureOf([&] { (void)set.Row(); }).reason.isEmpty() ? QString::number(set.Number(0)) : "gap";
}

} // namespace

class RecordSetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void PositionsBehaveAtBothEndsAndOverDeletedRows()
    {
        const std::pair<const char*, const char*> rows[] = {
            {"F -2", "bof"},  {"F -2 N", "1"},    {"F 3", "4"},        {"F 5", "eof"},
            {"F 5 P", "4"},   {"L P", "3"},       {"F N D", "gap"},    {"F N D N", "3"},
            {"F N D P", "1"}, {"F N D P 2", "4"}, {"F N D L -2", "1"}, {"F D N D N D N D F", "empty"}};
        for (const auto& [steps, expected] : rows) {
            Fixture f;
            QCOMPARE(QString(steps) + ": " + After(f.table, steps), QString(steps) + ": " + expected);
        }
    }

    void FieldsComeBackAsTheyWereStored()
    {
        // Numbers that need more room than those before, and texts that come again.
        const std::vector<double> numbers{0, -1, 127, -128, 128, 2147483647, -2147483648.0, 2147483648.0, 2.5, 1e300};
        Fixture f;
        After(f.table, "F D N D N D N D");
        for (const double number : numbers)
            Add(f.table, number, number < 100 ? "often" : std::to_string(number));
        for (const bool anew : {false, true}) {
            if (anew)
                f.Open();
            f.table.MoveFirst();
            for (const double number : numbers) {
                QCOMPARE(f.table.Number(0), number);
                QVERIFY(f.table.Text(1) == (number < 100 ? "often" : std::to_string(number)));
                f.table.MoveNext();
            }
            QVERIFY(f.table.Eof() && f.table.CountOf(0, 128) == 1);
        }
    }

    void ChangeByAnotherCopyIsSeenAtTheNextFirstOrLastRow()
    {
        Fixture f;
        QCOMPARE(NumbersOf(f.list), QString("4 3 2 1"));
        After(f.table, "F");
        RunSql(f.path, {}, "INSERT INTO numbers VALUES (5, 'five'); UPDATE numbers SET Word = 'vier' WHERE Number = 4");
        f.table.MoveNext();
        QCOMPARE(f.table.Count(), 4);
        QCOMPARE(f.table.NextNumber(), std::int64_t{6});
        QCOMPARE(After(f.table, "L P"), QString("4"));
        QCOMPARE(f.table.Text(1), std::string_view("vier"));
        RunSql(f.path, {}, "DELETE FROM numbers WHERE Number = 1");
        QCOMPARE(NumbersOf(f.table), QString("2 3 4 5"));
        QCOMPARE(NumbersOf(f.list), QString("5 4 3 2"));
    }

    void RowThatAnotherCopyDeletedIsNotChangedByMistake()
    {
        const QString gone = "another copy of the program has deleted the row meanwhile";
        // The new row is given the old one's place. Where another row is gone, the change is stored.
        for (const auto& [theirs, deletes, told, numbers] : {std::tuple("4", true, QString(), "1 2 3 9"),
                                                             {"4", false, gone, "1 2 3 9"},
                                                             {"1", true, {}, "2 3 9"},
                                                             {"1", false, {}, "2 3 4 9"}}) {
            Fixture f;
            f.table.MoveLast();
            RunSql(f.path, {},
                   std::string("DELETE FROM numbers WHERE Number = ") + theirs +
                       "; INSERT INTO numbers VALUES (9, 'nine')");
            const FailureOf change([&, mine = deletes] { mine ? f.table.Delete() : ChangeWord(f.table, "mine"); });
            QCOMPARE(change.reason + NumbersOf(f.table), told + numbers);
        }
    }

    void TransactionWithoutItsEndChangesNothing()
    {
        Fixture f;
        QCOMPARE(After(f.table, "F N"), QString("2"));
        {
            const Transaction transaction(f.database, "nothing");
            ChangeWord(f.table, "zwei");
            Add(f.table, 9, "nine");
            f.list.Requery();
            After(f.table, "F D L P D");
        }
        QCOMPARE(f.table.Number(0), 4.0);
        QCOMPARE(NumbersOf(f.table) + ", " + NumbersOf(f.list), QString("1 2 3 4, 4 3 2 1"));
        After(f.table, "F N");
        QCOMPARE(f.table.Text(1), std::string_view("two"));
    }

    void FileThatAnotherToolChangesIsNotReplaced()
    {
        const std::string five = "INSERT INTO numbers VALUES (5, hex(zeroblob(30000)));";
        for (const auto& [begin, end, reason] :
             {std::tuple("BEGIN;" + five, "COMMIT", "another program is using the file"),
              {"PRAGMA journal_mode = WAL;" + five, "PRAGMA wal_checkpoint",
               "changes that another tool made are not in the file yet"}}) {
            Fixture f;
            f.database.Close();
            sqlite3* tool = nullptr;
            sqlite3_open(f.path.c_str(), &tool);
            Execute(tool, begin, "");
            QCOMPARE(FailureOf([&] { HeldFile(f.path, {}, "doing").Compact(); }).reason, QString(reason));
            Execute(tool, end, "");
            sqlite3_close(tool);
            HeldFile(f.path, {}, "doing").Compact();
            f.Open();
            QCOMPARE(NumbersOf(f.table), QString("1 2 3 4 5"));
            QVERIFY(!QFile::exists(QString::fromStdString(f.path + "-wal")));
        }
    }

    void CompactionKeepsRowsOrderKeyMarksAndRights()
    {
        Fixture f(Connect);
        After(f.table, "F D N D");
        Add(f.table, 2, "two again");
        f.database.Close();
        RunSql(f.path, Connect, "PRAGMA user_version = 7");
        // Only root may give a file away.
        const bool isRoot = ::geteuid() == 0;
        QVERIFY(::chmod(f.path.c_str(), 0640) == 0 && (!isRoot || ::chown(f.path.c_str(), 65534, 65533) == 0));
        HeldFile(f.path, Connect, "doing").Compact();
        QVERIFY(!BytesOf(QString::fromStdString(f.path)).startsWith("SQLite format 3"));
        // Any tool opens it with no more than the password.
        RunSql(f.path, Connect,
               "CREATE TEMP TABLE t(mark CHECK (mark = 7)); INSERT INTO t SELECT user_version FROM "
               "pragma_user_version");
        f.Open(Connect);
        QCOMPARE(NumbersOf(f.table) + ", " + NumbersOf(f.list), QString("3 4 2, 4 3 2"));
        struct stat rights = {};
        QVERIFY(::stat(f.path.c_str(), &rights) == 0 && (rights.st_mode & 0777) == 0640);
        QVERIFY(!isRoot || (rights.st_uid == 65534 && rights.st_gid == 65533));
    }
};

TAVENOR_TEST(RecordSetTest)
#include "record_set_test.moc"
