#include "support/failure_of.h"
#include "support/full_disk.h"
#include "support/raw_file.h"
#include "support/test_window.h"

#include "records/compaction.h"
#include "records/database_creation.h"
#include "records/held_file.h"
#include "records/key_store.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <map>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const TableLayout Numbers{"numbers", {{"Number", "INTEGER"}, {"Word", "TEXT"}}};
const TableLayout NumbersDownwards{"numberslist", {{"Number", "INTEGER"}, {"Word", "TEXT"}}, "numbers", {0}};
const std::string Connect = ";pwd=secret";

void Add(RecordSet& set, std::int64_t number, std::string_view word)
{
    set.AddNew();
    set.SetField(0, number);
    set.SetField(1, word);
    set.Update();
}

QString Walk(RecordSet& set)
{
    QString seen;
    for (set.MoveFirst(); !set.Eof(); set.MoveNext())
        seen += QString::number(set.Number(0)) + ' ';
    return seen.trimmed();
}

/// A database with the rows 1 to 4, and its two record sets.
class Fixture
{
public:
    explicit Fixture(const std::string& connect = {}) : path(folder.filePath("numbers.db").toStdString())
    {
        CreateDatabase(path, connect, {Numbers, NumbersDownwards});
        database.Open(path, connect);
        table.Open(database, Numbers);
        list.Open(database, NumbersDownwards);
        for (const char* word : {"one", "two", "three", "four"})
            Add(table, table.NextNumber(), word);
        list.Requery();
    }

    QTemporaryDir folder;
    std::string path;
    Database database;
    RecordSet table;
    RecordSet list;
};

QString ReasonOf(const std::function<void()>& action)
{
    return FailureOf(action).reason;
}

/// Where a set stands after some steps: to the first, last, next or previous row, by some rows, or deleting one.
QString After(RecordSet& set, const QString& steps)
{
    static const std::map<QString, void (RecordSet::*)()> moves{{"F", &RecordSet::MoveFirst},
                                                                {"L", &RecordSet::MoveLast},
                                                                {"N", &RecordSet::MoveNext},
                                                                {"P", &RecordSet::MovePrevious},
                                                                {"D", &RecordSet::Delete}};
    for (const QString& step : steps.split(u' ')) {
        if (const auto move = moves.find(step); move != moves.end())
            (set.*move->second)();
        else
            set.Move(step.toInt());
    }
    if (set.Bof() || set.Eof())
        return set.IsEmpty() ? "empty" : set.Bof() ? "bof" : "eof";
    return ReasonOf([&] { (void)set.Field(0); }).isEmpty() ? QString::number(set.Number(0)) : "gap";
}

} // namespace

class RecordSetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void NoKeyIsLeftInMemory()
    {
        const std::string& key = DerivedKeyText("secret", std::string(16, 's'));
        const auto place = reinterpret_cast<off_t>(key.data());
        std::array<char, 96> kept{};
        std::array<char, 96> left{};
        QVERIFY(key.copy(kept.data(), kept.size()) == kept.size());
        // The freed memory is read by way of the system; nothing may take it meanwhile.
        const int memory = ::open("/proc/self/mem", O_RDONLY);
        WipeDerivedKeys();
        const auto got = ::pread(memory, left.data(), left.size(), place);
        ::close(memory);
        QCOMPARE(static_cast<std::size_t>(got), left.size());
        // The first bytes are the allocator's by now.
        QVERIFY(!std::equal(kept.begin() + 48, kept.end(), left.begin() + 48));
    }

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

    void ListShowsOwnChangesAfterARequeryOnly()
    {
        Fixture f;
        After(f.table, "F D N D N D N D F");
        QCOMPARE(Walk(f.list), QString("4 3 2 1"));
        QCOMPARE(f.table.NextNumber(), std::int64_t{1});
        Add(f.table, 7, "seven");
        QCOMPARE(f.table.NextNumber(), std::int64_t{8});
        f.list.Requery();
        QCOMPARE(Walk(f.list), QString("7"));
    }

    void FieldsComeBackAsTheyWereStored()
    {
        // Each kind of field follows ones that need less room. The rows in memory and those read anew must agree.
        std::vector<std::string> words{"seven", "", "seven"};
        for (int number = 0; number < 20000; ++number)
            words.push_back("word " + std::to_string(number));
        std::vector<Value> values{std::int64_t{0}, std::int64_t{-1}, std::int64_t{63}, std::int64_t{-64}};
        const auto addWords = [&](std::size_t first, std::size_t last) {
            values.insert(values.end(), words.begin() + static_cast<int>(first),
                          words.begin() + static_cast<int>(last));
        };
        addWords(0, 3);
        for (const std::int64_t number : {std::int64_t{64}, std::int64_t{-65}, std::int64_t{16383}})
            values.emplace_back(number);
        addWords(3, 100);
        values.insert(values.end(), {Value(), 2.5, Value(), std::string_view(), -0.5});
        addWords(100, words.size());
        for (const std::int64_t number : {std::int64_t{1} << 30, -(std::int64_t{1} << 30), INT64_MIN, INT64_MAX})
            values.emplace_back(number);
        static const TableLayout untyped{"untyped", {{"Field", ""}}};
        const QTemporaryDir folder;
        const std::string path = folder.filePath("untyped.db").toStdString();
        CreateDatabase(path, {}, {untyped});
        Database database;
        database.Open(path);
        RecordSet set;
        set.Open(database, untyped);
        Transaction transaction(database, "The fields could not be stored");
        for (const Value& value : values) {
            set.AddNew();
            set.SetField(0, value);
            set.Update();
        }
        transaction.Commit();
        const auto prove = [&] {
            std::int64_t whole = 0;
            set.MoveFirst();
            for (std::size_t row = 0; row < values.size(); ++row, set.MoveNext()) {
                QVERIFY2(set.Field(0) == values[row], qPrintable(QString::number(row)));
                QCOMPARE(set.WholeNumber(0, whole), std::holds_alternative<std::int64_t>(values[row]));
            }
            QVERIFY(set.Eof());
        };
        prove();
        database.Open(path);
        set.Open(database, untyped);
        prove();
        // A row that needs more room, and rows that move up into the places of deleted ones.
        After(set, "F D");
        values.erase(values.begin());
        set.MoveFirst();
        set.Edit();
        set.SetField(0, 1e300);
        set.Update();
        values.front() = 1e300;
        prove();
    }

    void EditKeepsTheFieldsThatAreNotSet()
    {
        Fixture f;
        f.table.MoveLast();
        f.table.Edit();
        f.table.SetField(1, std::string_view("vier"));
        f.table.Update();
        QCOMPARE(f.table.Number(0), 4.0);
        InAnotherCopy(f.path, {}, Numbers, [](RecordSet& theirs) {
            QCOMPARE(After(theirs, "L"), QString("4"));
            QCOMPARE(theirs.Text(1), std::string_view("vier"));
        });
    }

    void ChangeByAnotherCopyIsSeenAtTheNextFirstOrLastRow()
    {
        Fixture f;
        QCOMPARE(f.table.Count(), 4);
        InAnotherCopy(f.path, {}, Numbers, [](RecordSet& theirs) { Add(theirs, theirs.NextNumber(), "five"); });
        f.table.MoveNext();
        QCOMPARE(f.table.Count(), 4);
        QCOMPARE(f.table.NextNumber(), std::int64_t{6});
        InAnotherCopy(f.path, {}, Numbers, [](RecordSet& theirs) { theirs.Delete(); });
        QCOMPARE(Walk(f.table), QString("2 3 4 5"));
        QCOMPARE(Walk(f.list), QString("5 4 3 2"));
    }

    void RowThatAnotherCopyDeletedIsNotChangedByMistake()
    {
        Fixture f;
        f.table.MoveLast();
        InAnotherCopy(f.path, {}, Numbers, [](RecordSet& theirs) {
            After(theirs, "L D");
            Add(theirs, 9, "nine");
        });
        f.table.Edit();
        f.table.SetField(1, std::string_view("mine"));
        QCOMPARE(ReasonOf([&] { f.table.Update(); }),
                 QString("another copy of the program has deleted the row meanwhile"));
        f.table.Delete();
        QCOMPARE(Walk(f.table), QString("1 2 3 9"));
    }

    void TransactionIsAllOrNothing()
    {
        Fixture f;
        After(f.table, "F N");
        for (const auto& [steps, row] : {std::pair("P D N", 2.0), std::pair("F D L P D", 4.0)}) {
            {
                const Transaction transaction(f.database, "nothing");
                f.table.Edit();
                f.table.SetField(1, std::string_view("zwei"));
                f.table.Update();
                Add(f.table, 9, "nine");
                f.list.Requery();
                After(f.table, steps);
            }
            QCOMPARE(f.table.Number(0), row);
            QCOMPARE(Walk(f.table), QString("1 2 3 4"));
            f.list.Requery();
            QCOMPARE(Walk(f.list), QString("4 3 2 1"));
            After(f.table, "F N");
            QCOMPARE(f.table.Text(1), std::string_view("two"));
        }
        Transaction transaction(f.database, "all");
        Add(f.table, 5, "five");
        transaction.Commit();
        QCOMPARE(Walk(f.table), QString("1 2 3 4 5"));
    }

    void FullDiskStoresNothingAndTheSetStaysTrue()
    {
        Fixture f;
        QString reason;
        {
            const FullDisk full(static_cast<rlim_t>(QFileInfo(QString::fromStdString(f.path)).size()));
            reason = ReasonOf([&] {
                Transaction transaction(f.database, "The rows could not be stored");
                for (int row = 0; row < 3000; ++row)
                    Add(f.table, row, "a word that takes some room");
                transaction.Commit();
            });
        }
        QVERIFY2(reason.contains("disk"), qPrintable(reason));
        QCOMPARE(Walk(f.table), QString("1 2 3 4"));
        Add(f.table, f.table.NextNumber(), "five");
        QCOMPARE(Walk(f.table), QString("1 2 3 4 5"));
    }

    void LockedFileIsToldAfterAWhile()
    {
        Fixture f;
        Database other;
        other.Open(f.path);
        const Transaction theirs(other, "theirs");
        QCOMPARE(ReasonOf([&] { const Transaction mine(f.database, "mine"); }),
                 QString("another program is using the file"));
    }

    void FileThatAnotherToolChangesIsNotReplaced()
    {
        const std::string five = "INSERT INTO numbers VALUES (5, hex(zeroblob(30000)));";
        for (const auto& [begin, end] : {std::pair("BEGIN;" + five, "COMMIT"),
                                         std::pair("PRAGMA journal_mode = WAL;" + five, "PRAGMA wal_checkpoint")}) {
            Fixture f;
            f.database.Close();
            sqlite3* tool = nullptr;
            sqlite3_open(f.path.c_str(), &tool);
            Execute(tool, begin, "");
            QVERIFY(ReasonOf([&] { HeldFile(f.path, {}, "doing").Compact(); }) != "");
            Execute(tool, end, "");
            sqlite3_close(tool);
            HeldFile(f.path, {}, "doing").Compact();
            f.database.Open(f.path);
            f.table.Open(f.database, Numbers);
            QCOMPARE(Walk(f.table), QString("1 2 3 4 5"));
            QVERIFY(!QFile::exists(QString::fromStdString(f.path + "-wal")));
        }
    }

    void OpenProvesKeyKindAndColumns()
    {
        const Fixture f(Connect);
        Database database;
        QVERIFY(ReasonOf([&] { database.Open(f.path, ";pwd=Secret"); }) != "");
        QVERIFY(ReasonOf([&] { database.Open(f.path); }) != "");
        QCOMPARE(ReasonOf([&] { database.Open(f.path + "x", Connect); }), QString("the file is not there"));
        database.Open(f.path, Connect);
        RecordSet set;
        const auto reasonFor = [&](TableLayout layout, const char* name, std::vector<ColumnLayout> columns) {
            layout.name = name;
            layout.columns = std::move(columns);
            return ReasonOf([&] { set.Open(database, layout); });
        };
        const QString missing = "it is missing in the file";
        const QString other = "its columns are not as this program made them";
        QCOMPARE(reasonFor(Numbers, "letters", Numbers.columns), missing);
        QCOMPARE(reasonFor(Numbers, "numberslist", Numbers.columns), missing);
        QCOMPARE(reasonFor(NumbersDownwards, "numbers", Numbers.columns), missing);
        QCOMPARE(reasonFor(Numbers, "numbers", {{"Word", "TEXT"}, {"Number", "INTEGER"}}), other);
        QCOMPARE(reasonFor(Numbers, "numbers", {{"Number", "INTEGER"}}), other);
        QCOMPARE(reasonFor(Numbers, "numbers", {{"Number", ""}, {"Word", ""}, {"More", ""}}), other);
        set.Open(database, Numbers);
        QCOMPARE(set.Count(), 4);
    }

    void CompactionKeepsRowsOrderKeyMarksAndMode()
    {
        Fixture f(Connect);
        After(f.table, "F D N D");
        Add(f.table, 2, "two again");
        f.database.Close();
        RunSql(f.path, Connect, "PRAGMA user_version = 7");
        const std::string compacted = f.path + ".compacted";
        const TemporaryFile kept(compacted);
        CompactDatabase(f.path, compacted, Connect);
        QFile file(QString::fromStdString(compacted));
        QVERIFY(file.open(QIODevice::ReadOnly) && !file.read(15).startsWith("SQLite format 3"));
        // Any tool opens both with no more than the password.
        for (const std::string& path : {f.path, compacted})
            RunSql(path, Connect,
                   "CREATE TEMP TABLE t(mark CHECK (mark = 7)); INSERT INTO t SELECT user_version FROM "
                   "pragma_user_version");
        f.database.Open(compacted, Connect);
        f.table.Open(f.database, Numbers);
        f.list.Open(f.database, NumbersDownwards);
        QCOMPARE(Walk(f.table), QString("3 4 2"));
        QCOMPARE(Walk(f.list), QString("4 3 2"));
        f.database.Close();
        // Only root may give a file away.
        const bool isRoot = ::geteuid() == 0;
        QVERIFY(::chmod(f.path.c_str(), 0640) == 0 && (!isRoot || ::chown(f.path.c_str(), 65534, 65533) == 0));
        HeldFile(f.path, Connect, "doing").Compact();
        struct stat rights = {};
        QVERIFY(::stat(f.path.c_str(), &rights) == 0 && (rights.st_mode & 0777) == 0640);
        QVERIFY(!isRoot || (rights.st_uid == 65534 && rights.st_gid == 65533));
    }
};

TAVENOR_TEST(RecordSetTest)
#include "record_set_test.moc"
