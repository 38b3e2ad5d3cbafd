#include "support/failure_of.h"
#include "support/full_disk.h"
#include "support/raw_file.h"
#include "support/test_window.h"

#include "records/compaction.h"
#include "records/database_creation.h"
#include "records/held_file.h"

#include <QFile>
#include <QFileInfo>

namespace {

const TableLayout Numbers{"numbers", {{"Number", "INTEGER"}, {"Word", "TEXT"}}, {}};
const TableLayout NumbersDownwards{
    "numberslist", {{"Number", "INTEGER"}, {"Word", "TEXT"}}, "\"Number\" DESC", "numbers"};
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
    explicit Fixture(const std::string& connect = {})
        : path(folder.filePath("numbers.db").toStdString()), connectString(connect)
    {
        CreateDatabase(path, connect, {Numbers}, {{NumbersDownwards, "numbers"}});
        database.Open(path, connect);
        table.Open(database, Numbers);
        list.Open(database, NumbersDownwards);
        for (const char* word : {"one", "two", "three", "four"})
            Add(table, table.NextNumber(), word);
        list.Requery();
    }

    QTemporaryDir folder;
    std::string path;
    std::string connectString;
    Database database;
    RecordSet table;
    RecordSet list;
};

/// What another copy of the program has open on the same file.
struct OtherCopy
{
    explicit OtherCopy(const std::string& path)
    {
        database.Open(path);
        table.Open(database, Numbers);
    }

    Database database;
    RecordSet table;
};

QString ReasonOf(const std::function<void()>& action)
{
    return FailureOf(action).reason;
}

} // namespace

class RecordSetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void PositionsBehaveAtBothEnds()
    {
        Fixture f;
        f.table.MoveFirst();
        f.table.Move(-2);
        QVERIFY(f.table.Bof() && !f.table.Eof());
        f.table.MoveNext();
        QCOMPARE(f.table.Number(0), 1.0);
        f.table.Move(3);
        QCOMPARE(f.table.Number(0), 4.0);
        f.table.Move(2);
        QVERIFY(f.table.Eof() && !f.table.Bof());
        f.table.MovePrevious();
        QCOMPARE(f.table.Text(1), std::string_view("four"));
        QCOMPARE(ReasonOf([&] {
                     f.table.MoveNext();
                     (void)f.table.Field(0);
                 }),
                 QString("there is no current record"));
    }

    void EmptySetIsAtBothEnds()
    {
        Fixture f;
        for (f.table.MoveFirst(); !f.table.Eof(); f.table.MoveNext())
            f.table.Delete();
        f.table.MoveFirst();
        QVERIFY(f.table.IsEmpty());
        QCOMPARE(f.table.NextNumber(), std::int64_t{1});
        Add(f.table, 7, "seven");
        QVERIFY(!f.table.IsEmpty());
        QCOMPARE(f.table.NextNumber(), std::int64_t{8});
    }

    void DeletedRowLeavesAGapUntilTheNextMove()
    {
        Fixture f;
        f.table.MoveFirst();
        f.table.MoveNext();
        f.table.Delete();
        QVERIFY(!f.table.Eof() && !f.table.Bof());
        QCOMPARE(ReasonOf([&] { (void)f.table.Field(0); }), QString("there is no current record"));
        f.table.MoveNext();
        QCOMPARE(f.table.Number(0), 3.0);
        f.table.MovePrevious();
        QCOMPARE(f.table.Number(0), 1.0);
        f.table.Move(2);
        QCOMPARE(f.table.Number(0), 4.0);
        QCOMPARE(Walk(f.table), QString("1 3 4"));
    }

    void ListShowsOwnChangesAfterARequeryOnly()
    {
        Fixture f;
        QCOMPARE(Walk(f.list), QString("4 3 2 1"));
        Add(f.table, 5, "five");
        QCOMPARE(Walk(f.list), QString("4 3 2 1"));
        f.list.Requery();
        QCOMPARE(f.list.Number(0), 5.0);
    }

    void EditKeepsTheFieldsThatAreNotSet()
    {
        Fixture f;
        f.table.MoveLast();
        f.table.Edit();
        f.table.SetField(1, std::string_view("vier"));
        f.table.Update();
        QCOMPARE(f.table.Number(0), 4.0);
        OtherCopy other(f.path);
        RecordSet& reread = other.table;
        reread.MoveLast();
        QCOMPARE(reread.Number(0), 4.0);
        QCOMPARE(reread.Text(1), std::string_view("vier"));
    }

    void ChangeByAnotherCopyIsSeenAtTheNextFirstOrLastRow()
    {
        Fixture f;
        OtherCopy other(f.path);
        RecordSet& theirs = other.table;
        QCOMPARE(f.table.Count(), 4);
        Add(theirs, theirs.NextNumber(), "five");
        f.table.MoveNext();
        QCOMPARE(f.table.Count(), 4);
        QCOMPARE(f.table.NextNumber(), std::int64_t{6});
        theirs.MoveFirst();
        theirs.Delete();
        f.table.MoveFirst();
        QCOMPARE(f.table.Number(0), 2.0);
        f.list.MoveFirst();
        QCOMPARE(f.list.Count(), 4);
    }

    void RowThatAnotherCopyDeletedIsNotChangedByMistake()
    {
        Fixture f;
        OtherCopy other(f.path);
        RecordSet& theirs = other.table;
        f.table.MoveLast();
        theirs.MoveLast();
        theirs.Delete();
        Add(theirs, 9, "nine");
        f.table.Edit();
        f.table.SetField(1, std::string_view("mine"));
        QCOMPARE(ReasonOf([&] { f.table.Update(); }),
                 QString("another copy of the program has deleted the row meanwhile"));
        f.table.Delete();
        QCOMPARE(Walk(theirs), QString("1 2 3 9"));
    }

    void TransactionIsAllOrNothing()
    {
        Fixture f;
        f.table.MoveFirst();
        f.table.MoveNext();
        {
            Transaction transaction(f.database, "nothing");
            Add(f.table, 5, "five");
            f.table.MovePrevious();
            f.table.Delete();
            f.table.MoveNext();
        }
        QCOMPARE(f.table.Number(0), 2.0);
        {
            Transaction transaction(f.database, "nothing");
            f.table.MoveFirst();
            f.table.Delete();
            f.table.MoveLast();
            f.table.Delete();
        }
        QCOMPARE(f.table.Number(0), 4.0);
        QCOMPARE(Walk(f.table), QString("1 2 3 4"));
        Transaction transaction(f.database, "all");
        Add(f.table, 5, "five");
        transaction.Commit();
        QCOMPARE(Walk(f.table), QString("1 2 3 4 5"));
    }

    void FullDiskStoresNothingAndTheSetStaysTrue()
    {
        Fixture f;
        const auto size = QFileInfo(QString::fromStdString(f.path)).size();
        QString reason;
        {
            const FullDisk full(static_cast<rlim_t>(size));
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
        OtherCopy other(f.path);
        const Transaction theirs(other.database, "theirs");
        QElapsedTimer clock;
        clock.start();
        QCOMPARE(ReasonOf([&] { const Transaction mine(f.database, "mine"); }),
                 QString("another program is using the file"));
        QVERIFY(clock.elapsed() < 6000);
    }

    void FileThatAnotherToolChangesIsNotReplaced_data()
    {
        QTest::addColumn<QString>("begin");
        QTest::addColumn<QString>("end");
        const QString five = "INSERT INTO numbers VALUES (5, hex(zeroblob(30000)));";
        QTest::newRow("change not committed") << "BEGIN;" + five << "COMMIT";
        QTest::newRow("change in a log") << "PRAGMA journal_mode = WAL;" + five << "PRAGMA wal_checkpoint";
    }

    void FileThatAnotherToolChangesIsNotReplaced()
    {
        QFETCH(QString, begin);
        QFETCH(QString, end);
        Fixture f;
        f.database.Close();
        sqlite3* tool = nullptr;
        sqlite3_open(f.path.c_str(), &tool);
        Execute(tool, begin.toStdString(), "");
        QVERIFY(ReasonOf([&] { HeldFile(f.path, {}, "doing").Compact(); }) != "");
        Execute(tool, end.toStdString(), "");
        sqlite3_close(tool);
        HeldFile(f.path, {}, "doing").Compact();
        f.database.Open(f.path);
        f.table.Open(f.database, Numbers);
        QCOMPARE(Walk(f.table), QString("1 2 3 4 5"));
        QVERIFY(!QFile::exists(QString::fromStdString(f.path + "-wal")));
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
        const QString missing = "it is missing in the file";
        const QString other = "its columns are not as this program made them";
        const auto layoutOf = [](const TableLayout& base, const std::string& name, std::vector<ColumnLayout> columns) {
            TableLayout layout = base;
            layout.name = name;
            layout.columns = std::move(columns);
            return layout;
        };
        const auto reasonFor = [&](const TableLayout& layout) { return ReasonOf([&] { set.Open(database, layout); }); };
        QCOMPARE(reasonFor(layoutOf(Numbers, "letters", Numbers.columns)), missing);
        QCOMPARE(reasonFor(layoutOf(Numbers, "numberslist", Numbers.columns)), missing);
        QCOMPARE(reasonFor(layoutOf(NumbersDownwards, "numbers", Numbers.columns)), missing);
        QCOMPARE(reasonFor(layoutOf(Numbers, "numbers", {{"Word", "TEXT"}, {"Number", "INTEGER"}})), other);
        QCOMPARE(reasonFor(layoutOf(Numbers, "numbers", {{"Number", "INTEGER"}})), other);
        QCOMPARE(reasonFor(layoutOf(Numbers, "numbers", {{"Number", ""}, {"Word", ""}, {"More", ""}})), other);
        set.Open(database, Numbers);
        QCOMPARE(set.Count(), 4);
    }

    void DamageInTheMiddleIsNoShortTable()
    {
        Fixture f(Connect);
        {
            Transaction transaction(f.database, "many");
            for (int row = 5; row < 3000; ++row)
                Add(f.table, row, "a word that takes some room");
            transaction.Commit();
        }
        f.database.Close();
        QFile file(QString::fromStdString(f.path));
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.seek(file.size() / 2));
        file.write("X");
        file.close();
        f.database.Open(f.path, Connect);
        f.table.Open(f.database, Numbers);
        QCOMPARE(ReasonOf([&] { f.table.MoveFirst(); }),
                 QString("the file is damaged or is not one of this program's files"));
    }

    void CompactionKeepsRowsOrderKeyMarksAndMode()
    {
        Fixture f(Connect);
        for (f.table.MoveFirst(); f.table.Number(0) != 3;)
            f.table.Delete(), f.table.MoveNext();
        Add(f.table, 2, "two again");
        f.database.Close();
        QVERIFY(QFile::setPermissions(QString::fromStdString(f.path), QFile::ReadOwner | QFile::WriteOwner));
        const std::string compacted = f.path + ".compacted";
        CompactDatabase(f.path, compacted, Connect);
        QCOMPARE(QFile::permissions(QString::fromStdString(compacted)),
                 QFile::permissions(QString::fromStdString(f.path)));
        QFile file(QString::fromStdString(compacted));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(!file.read(15).startsWith("SQLite format 3"));
        // Any tool opens both with no more than the password.
        RunSql(f.path, Connect, "SELECT count(*) FROM numbers");
        RunSql(compacted, Connect, "SELECT count(*) FROM numbers");
        f.database.Open(compacted, Connect);
        f.table.Open(f.database, Numbers);
        f.list.Open(f.database, NumbersDownwards);
        QCOMPARE(Walk(f.table), QString("3 4 2"));
        QCOMPARE(Walk(f.list), QString("4 3 2"));
        QVERIFY(ReasonOf([&] { CompactDatabase(f.path, compacted, Connect); }) != "");
    }
};

TAVENOR_TEST_MAIN(RecordSetTest)
#include "record_set_test.moc"
