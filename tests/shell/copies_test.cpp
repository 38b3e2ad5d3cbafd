#include "support/forked.h"
#include "support/test_window.h"

#include "records/file_lock.h"

#include <random>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Called before a file that has just been opened and locked is looked at.
std::function<void()> BeforeTheNextLook;

/// One copy of the program: it opens, stores and ends again and again, and says which rows were stored.
void UseFolder(unsigned seed, const Say& say)
{
    // No copy that another one forked has the time limit of that one.
    ::alarm(60);
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
        say(CloseAndCompactFiles());
        ::usleep(random() % 3000);
    }
    say(u"ended %1"_s.arg(seed));
}

} // namespace

extern "C" int fstat(int file, struct stat* attributes) noexcept
{
    if (BeforeTheNextLook)
        std::exchange(BeforeTheNextLook, nullptr)();
    return static_cast<int>(::syscall(SYS_fstat, file, attributes));
}

class CopiesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void NoRowIsLostNoNumberGivenTwiceAndTheLastOneOutCompacts()
    {
        for (const unsigned copies : {2U, 3U}) {
            const TestFolder folder(TestFolder::Content::Empty);
            // The key is derived once, before the copies part.
            OpenDatabaseFiles();
            CloseDatabaseFiles();
            const std::filesystem::path old = ProgramDir / "old";
            std::filesystem::create_hard_link(UserDataPath, old);
            Forked run = RunForked([&](const Say& say) {
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
            run.lines.sort();
            found.sort();
            QCOMPARE(found, run.lines);
            QVERIFY(found.size() > 40 && !std::filesystem::equivalent(UserDataPath, old));
            for (const char* table : {"users", "entries", "ukmain"})
                QCOMPARE(TestFolder::StoredNumbers(table).split(' ').removeDuplicates(), 0);
            QCOMPARE(folder.Files(), (QStringList{"drawdata.tv3", "old", "userdata.tv3"}));
            qInfo("%u copies: %d rows acknowledged and found", copies, static_cast<int>(found.size() - copies));
        }
    }

    void FileThatIsReplacedBeforeItIsLockedIsOpenedAnew()
    {
        const TestFolder folder(TestFolder::Content::Empty);
        const std::string next = folder.Path("next.tv3").toStdString();
        std::filesystem::copy_file(UserDataPath, next);
        BeforeTheNextLook = [&] { std::filesystem::rename(next, UserDataPath); };
        FileLock lock;
        lock.Share(UserDataPath, "The file could not be opened");
        const std::string locked = "/proc/self/fd/" + std::to_string(lock.Number());
        QVERIFY(!BeforeTheNextLook && std::filesystem::equivalent(locked, UserDataPath));
    }
};

TAVENOR_TEST(CopiesTest)
#include "copies_test.moc"
