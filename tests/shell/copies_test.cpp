#include "support/forked.h"
#include "support/test_window.h"

#include "records/held_file.h"

#include <cstdarg>
#include <fcntl.h>
#include <random>
#include <sys/syscall.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

std::function<void()> BeforeTheNextLock;

/// One copy of the program: it opens, stores and ends again and again, and says which rows were stored.
void UseFolder(unsigned seed, const Say& say)
{
    std::mt19937 random(seed);
    for (int round = 0; round < 8; ++round) {
        OpenDatabaseFiles();
        for (auto changes = random() % 6; changes > 0; --changes) {
            const QString name = u"%1 %2 %3"_s.arg(seed).arg(round).arg(changes);
            Transaction transaction(UserDb, "");
            AddUser(users, name, 5);
            AddEntry(entries, {entries.NextNumber(), 1, 1, {}, {}});
            transaction.Commit();
            say("user," + name);
            StoreDraws(MainGame, {"2000-01-01,1,2,3,4,5,6,7," + name});
            say("draw," + name);
            ::usleep(random() % 3000);
        }
        if (const QString failures = CloseAndCompactFiles(); !failures.isEmpty())
            say("failed: " + failures);
        ::usleep(random() % 3000);
    }
    say(u"ended %1"_s.arg(seed));
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
    void NoRowIsLostAndNoNumberGivenTwice()
    {
        for (const unsigned copies : {2U, 3U}) {
            const TestFolder folder(TestFolder::Content::Empty);
            // The key is derived once, before the copies part.
            OpenDatabaseFiles();
            CloseDatabaseFiles();
            const Forked run = RunForked([&](const Say& say) {
                unsigned copy = 1;
                while (copy < copies && ::fork() != 0)
                    ++copy;
                UseFolder(10 * copies + copy, say);
            });
            QVERIFY2(run.signal == 0 && run.code == 0, qPrintable(run.Text()));
            QStringList found;
            for (unsigned copy = 1; copy <= copies; ++copy)
                found.append(u"ended %1"_s.arg(10 * copies + copy));
            for (const QString& user : TestFolder::StoredRows("users"))
                found.append("user," + user.section(u',', 1, 1));
            for (const QString& draw : TestFolder::StoredRows("ukmain"))
                found.append("draw," + draw.section(u',', 10, 10));
            QStringList said = run.lines;
            said.sort();
            found.sort();
            QCOMPARE(found, said);
            QVERIFY(said.size() > 40);
            for (const char* table : {"users", "entries", "ukmain"})
                QCOMPARE(TestFolder::StoredNumbers(table).split(' ').removeDuplicates(), 0);
            QCOMPARE(folder.Files(), (QStringList{"drawdata.tv3", "userdata.tv3"}));
            qInfo("%u copies: %d rows acknowledged and found", copies, static_cast<int>(said.size() - copies));
        }
    }

    void LastOneOutCompacts()
    {
        const TestFolder folder(TestFolder::Content::Empty);
        Database other;
        other.Open(UserDataPath);
        const std::string before = folder.Path("before").toStdString();
        std::filesystem::create_hard_link(UserDataPath, before);
        for (const bool alone : {false, true}) {
            OpenDatabaseFiles();
            AddUser(users, "Ann", 1);
            QCOMPARE(CloseAndCompactFiles(), QString());
            QCOMPARE(std::filesystem::equivalent(UserDataPath, before), !alone);
            other.Close();
        }
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
};

TAVENOR_TEST(CopiesTest)
#include "copies_test.moc"
