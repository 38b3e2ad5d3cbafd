#include "support/failure_of.h"
#include "support/forked.h"
#include "support/test_window.h"

#include "store/user_changes.h"

#include <QDir>

#include <cerrno>
#include <sys/stat.h>
#include <sys/syscall.h>

namespace {

constexpr uid_t Nobody = 65534;
/// What the disk does not hold is reported as refused; the rights are set all the same, so that a test can see them.
bool OwnersAndRightsRefused = false;

using Trouble = std::function<void(const QDir& folder)>;

/// Changes the rights of a file or, with an empty name, of the folder.
Trouble Rights(const QString& name, mode_t mode)
{
    return [=](const QDir& folder) { QCOMPARE(::chmod(folder.filePath(name).toLocal8Bit().constData(), mode), 0); };
}

} // namespace

extern "C" int fchown(int file, uid_t owner, gid_t group) noexcept
{
    errno = EPERM;
    return OwnersAndRightsRefused ? -1 : static_cast<int>(::syscall(SYS_fchown, file, owner, group));
}

extern "C" int fchmod(int file, mode_t mode) noexcept
{
    const auto set = static_cast<int>(::syscall(SYS_fchmod, file, mode));
    errno = EPERM;
    return OwnersAndRightsRefused ? -1 : set;
}

class FolderTroublesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void PlayerIsToldAndNothingIsLost()
    {
        const Trouble none = [](const QDir&) {};
        const Trouble removed = [](QDir folder) { folder.removeRecursively(); };
        const QString refused = "the file or its folder may not be changed";
        // What is wrong at the start and what meanwhile, and what is told of it.
        for (const auto& [atStart, meanwhile, told] : {std::tuple(none, none, QString()),
                                                       {Rights({}, 0555), none, refused},
                                                       {none, Rights({}, 0555), refused},
                                                       {Rights("userdata.tv3", 0444), none, refused},
                                                       {Rights("userdata.tv3", 0), none, "the file cannot be opened"},
                                                       {none, removed, refused}}) {
            const TestFolder files(TestFolder::Content::Empty);
            OpenDatabaseFiles();
            AddUser(users, "Ann", 1);
            CloseDatabaseFiles();
            const QDir folder = QFileInfo(files.Path("x")).dir();
            for (const QString& path : {folder.path(), files.Path("userdata.tv3"), files.Path("drawdata.tv3")})
                (void)!::chown(path.toLocal8Bit().constData(), Nobody, Nobody);
            atStart(folder);
            const Forked run = RunForked([&, change = meanwhile](const Say& say) {
                // The rights of files do not bind root.
                if (::geteuid() == 0 &&
                    (::setresgid(Nobody, Nobody, Nobody) != 0 || ::setresuid(Nobody, Nobody, Nobody) != 0))
                    ::_exit(4);
                const QString notOpened = FailureOf(OpenDatabaseFiles).reason;
                say(notOpened);
                if (!notOpened.isEmpty())
                    return;
                change(folder);
                say(FailureOf([] { StoreNewUser("Ben", 0); }).reason);
                say(CloseAndCompactFiles());
            });
            QVERIFY2(run.signal == 0 && run.code == 0 && run.lines.isEmpty() == told.isEmpty() &&
                         run.lines.value(0).contains(told),
                     qPrintable(run.Text()));
            if (!folder.exists())
                continue;
            // Whoever may has the rights back, and finds all that was stored.
            Rights({}, 0700)(folder);
            Rights("userdata.tv3", 0600)(folder);
            QCOMPARE(TestFolder::StoredRows("users"),
                     (told.isEmpty() ? QStringList{"1,Ann,1", "2,Ben,0"} : QStringList{"1,Ann,1"}));
        }
    }

    void DiskWithoutOwnersAndRightsServes()
    {
        const TestFolder folder(TestFolder::Content::Empty);
        QCOMPARE(::chmod(UserDataPath.c_str(), 0660), 0);
        OwnersAndRightsRefused = true;
        QCOMPARE(CloseAndCompactFiles(), QString());
        OwnersAndRightsRefused = false;
        // No other group has what the file's own had.
        struct stat rights = {};
        QVERIFY(::stat(UserDataPath.c_str(), &rights) == 0 && (rights.st_mode & 0777) == 0600);
    }
};

TAVENOR_TEST(FolderTroublesTest)
#include "folder_troubles_test.moc"
