#include "support/forked.h"
#include "support/test_window.h"

#include "records/held_file.h"

#include <cstdarg>
#include <fcntl.h>
#include <memory>
#include <random>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int Rounds = 8;
std::function<void()> BeforeTheNextLock;

/// One copy of the program: it opens, stores and ends again and again, and says which rows were stored.
void UseFolder(unsigned seed, const ForkedProcess::Say& say)
{
    std::mt19937 random(seed);
    for (int round = 0; round < Rounds; ++round) {
        OpenDatabaseFiles();
        for (auto changes = random() % 6; changes > 0; --changes) {
            const QString name = u"%1 %2 %3"_s.arg(seed).arg(round).arg(changes);
            Transaction transaction(UserDb, "");
            AddUser(users, name, 5);
            EntryRow entry;
            entry.number = entries.NextNumber();
            AddEntry(entries, entry);
            transaction.Commit();
            say("user," + name);
            StoreDraws(MainGame, {"2000-01-01,1,2,3,4,5,6,7," + name});
            say("draw," + name);
            ::usleep(random() % 3000);
        }
        const QString failures = CloseAndCompactFiles();
        if (!failures.isEmpty())
            say("failed: " + failures);
        ::usleep(random() % 3000);
    }
}

/// The file's own number, which another one has after the file was compacted.
ino_t FileNumber(const std::filesystem::path& file)
{
    struct stat attributes = {};
    return ::stat(file.c_str(), &attributes) == 0 ? attributes.st_ino : 0;
}

/// No row is lost, and no number given twice.
void RunCopies(int copies)
{
    TestFolder folder(TestFolder::Content::Empty);
    // The key is derived once, before the copies part.
    OpenDatabaseFiles();
    CloseDatabaseFiles();
    std::vector<std::unique_ptr<ForkedProcess>> processes;
    processes.reserve(static_cast<size_t>(copies));
    for (int copy = 0; copy < copies; ++copy)
        processes.push_back(std::make_unique<ForkedProcess>(
            [&](const ForkedProcess::Say& say) { UseFolder(static_cast<unsigned>(10 * copies + copy), say); }));
    QStringList said;
    for (const auto& process : processes) {
        const Forked copy = process->Wait();
        QVERIFY2(copy.signal == 0 && copy.code == 0, qPrintable(copy.Text()));
        said += copy.lines;
    }
    QStringList found;
    for (const QString& user : TestFolder::StoredRows("users"))
        found.append("user," + user.section(u',', 1, 1));
    for (const QString& draw : TestFolder::StoredRows("ukmain"))
        found.append("draw," + draw.section(u',', 10, 10));
    for (const char* table : {"users", "entries", "ukmain"})
        QCOMPARE(TestFolder::StoredNumbers(table).split(' ').removeDuplicates(), 0);
    said.sort();
    found.sort();
    QCOMPARE(found, said);
    QVERIFY(said.size() > 40);
    QCOMPARE(folder.Files(), (QStringList{"drawdata.tv3", "userdata.tv3"}));
    qInfo("%d copies, %d rounds each: %d rows acknowledged, %d found", copies, Rounds, static_cast<int>(said.size()),
          static_cast<int>(found.size()));
}

} // namespace

extern "C" int fcntl(int file, int command, ...)
{
    va_list rest;
    va_start(rest, command);
    void* argument = va_arg(rest, void*);
    va_end(rest);
    if (command == F_OFD_SETLK && BeforeTheNextLock)
        std::exchange(BeforeTheNextLock, nullptr)();
    return static_cast<int>(::syscall(SYS_fcntl, file, command, argument));
}

class CopiesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void NoRowIsLostWithTwoOrThreeCopies()
    {
        RunCopies(2);
        RunCopies(3);
    }

    void LastOneOutCompacts()
    {
        const TestFolder folder(TestFolder::Content::Empty);
        std::array<Database, 2> others;
        for (Database& other : others)
            other.Open(UserDataPath);
        const ino_t before = FileNumber(UserDataPath);
        for (Database& other : others) {
            OpenDatabaseFiles();
            AddUser(users, "Ann", 1);
            QCOMPARE(CloseAndCompactFiles(), QString());
            QCOMPARE(FileNumber(UserDataPath), before);
            other.Close();
        }
        OpenDatabaseFiles();
        QCOMPARE(CloseAndCompactFiles(), QString());
        QVERIFY(FileNumber(UserDataPath) != before);
        QCOMPARE(TestFolder::StoredRows("users"), (QStringList{"1,Ann,1", "2,Ann,1"}));
    }

    void FileThatIsReplacedBeforeItIsLockedIsOpenedAnew()
    {
        const TestFolder folder(TestFolder::Content::Empty);
        const QString next = folder.Path("next.tv3");
        QFile::copy(folder.Path("userdata.tv3"), next);
        InAnotherCopy(next.toStdString(), {}, UsersTable(), [](RecordSet& theirs) { AddUser(theirs, "New", 1); });
        BeforeTheNextLock = [&] { std::filesystem::rename(next.toStdString(), UserDataPath); };
        HeldFile held(UserDataPath, {}, "The file could not be held");
        QVERIFY(!BeforeTheNextLock && held.Alone());
        held.Compact();
        QCOMPARE(TestFolder::StoredRows("users"), QStringList{"1,New,1"});
    }

    void OtherCopysChangeIsOnTheNextPage()
    {
        TestWindow window;
        AddUser(users, "Ann", 9);
        StoreDraws(MainGame, {"2000-01-01,1,2,3,4,5,6,7,ARTHUR,1"});
        window.OpenPage(3, 1);
        window.OpenPage(2, 1);
        QCOMPARE(window.Find<QListWidget>("F11list")->count(), 1);
        InAnotherCopy(UserDataPath, {}, UsersTable(), [](RecordSet& theirs) { AddUser(theirs, "Ben", 9); });
        InAnotherCopy(DrawDataPath, DrawConnect, DrawTable(MainGame), [](RecordSet& theirs) {
            AddDraw(theirs, MainGame, {QDate(2020, 1, 4), {9, 10, 11, 12, 13, 14, 15}, "MERLIN", "8"});
        });
        window.Click("Suboption1");
        QVERIFY(window.TextOf("F8Mmachine").contains("MERLIN"));
        window.OpenPage(3, 1);
        QCOMPARE(window.Find<QListWidget>("F11list")->count(), 2);
    }
};

TAVENOR_TEST(CopiesTest)
#include "copies_test.moc"
