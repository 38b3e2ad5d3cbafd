#include "support/forked.h"
#include "support/test_window.h"

#include "utilities/start_and_end.h"

#include <QDir>

#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

namespace {

constexpr uid_t Nobody = 65534;
time_t ClockSetBack = 0;
bool RightsRefused = false;

using Trouble = std::function<void(const QString& folder)>;

/// Changes the rights of a file or, with an empty name, of the folder. What `stranger` owns, only root can give away;
/// without root's rights the mode alone has the same effect.
Trouble Rights(const QString& name, mode_t mode, bool stranger = false)
{
    return [=](const QString& folder) {
        const QByteArray path = (name.isEmpty() ? folder : folder + u'/' + name).toLocal8Bit();
        if (stranger)
            (void)!::chown(path.constData(), 0, 0);
        QCOMPARE(::chmod(path.constData(), mode), 0);
    };
}

} // namespace

// Here the toolkit and the engine read the date.
extern "C" int gettimeofday(timeval* now, void* /*zone*/) noexcept
{
    const auto result = static_cast<int>(::syscall(SYS_gettimeofday, now, nullptr));
    now->tv_sec -= ClockSetBack;
    return result;
}

// As on a disk that holds neither owners nor rights.
extern "C" int fchmod(int file, mode_t mode) noexcept
{
    errno = EPERM;
    return RightsRefused ? -1 : static_cast<int>(::syscall(SYS_fchmod, file, mode));
}

extern "C" int chmod(const char* file, mode_t mode) noexcept
{
    errno = EPERM;
    return RightsRefused ? -1 : static_cast<int>(::syscall(SYS_fchmodat, AT_FDCWD, file, mode));
}

class FolderTroublesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void PlayerIsToldAndNothingIsLost()
    {
        const Trouble none = [](const QString&) {};
        const Trouble moved = [](const QString& folder) { QDir().rename(folder, folder + ".moved"); };
        const Trouble removed = [](const QString& folder) { QDir(folder).removeRecursively(); };
        const Trouble clockSetBack = [](const QString&) {
            ClockSetBack = 40L * 365 * 86400;
            QVERIFY(QDate::currentDate().year() < 2000);
        };
        const Trouble rightsRefused = [](const QString&) { RightsRefused = true; };
        const QString refused = "could not be changed, because the file or its folder may not be changed.";
        const bool isRoot = ::geteuid() == 0;
        // What is wrong at the start and what meanwhile, and what is told of it.
        for (const auto& [atStart, meanwhile, told] :
             {std::tuple(none, none, QString()),
              {Rights({}, 0555), none, refused},
              {none, Rights({}, 0555), refused},
              {Rights("userdata.tv3", 0444), none, refused},
              {Rights("userdata.tv3", isRoot ? 0644 : 0444, true), none, refused},
              {Rights("userdata.tv3", isRoot ? 0600 : 0, true), none, "There is a problem with the database files."},
              {none, moved, refused},
              {none, removed, refused},
              {none, clockSetBack, {}},
              {none, rightsRefused, {}}})
            StoreAUser(atStart, meanwhile, told);
    }

private:
    static void StoreAUser(const Trouble& atStart, const Trouble& meanwhile, const QString& told)
    {
        TestWindow window;
        AddUser(users, "Ann", 1);
        CloseDatabaseFiles();
        const QString folder = QFileInfo(window.files.Path("x")).path();
        for (const QString& path : {folder, window.files.Path("userdata.tv3"), window.files.Path("drawdata.tv3")})
            (void)!::chown(path.toLocal8Bit().constData(), Nobody, Nobody);
        atStart(folder);
        window.modals.WillAlwaysDo([](QDialog& dialog) { dialog.close(); });
        const Forked run = RunForked([&](const ForkedProcess::Say& say) {
            const NoPainting blank;
            // The rights of files do not bind root.
            if (::geteuid() == 0 &&
                (::setresgid(Nobody, Nobody, Nobody) != 0 || ::setresuid(Nobody, Nobody, Nobody) != 0))
                ::_exit(4);
            EndProcess = [&] {
                say(window.modals.TakeTexts().join(u'|').replace("\r\n", " "));
                ::_exit(0);
            };
            OpenDatabases();
            window.OpenPage(3, 1);
            window.Click("F11adduser");
            window.Find<QLineEdit>("F11seluser")->setText("Ben");
            meanwhile(folder);
            window.Click("F11storenu");
            window.Window().close();
        });
        QVERIFY2(run.signal == 0 && run.code == 0, qPrintable(run.Text()));
        QVERIFY2(told.isEmpty() ? run.lines.value(0).isEmpty() : run.lines.value(0).contains(told),
                 qPrintable(run.Text()));
        const bool moved = QDir().rename(folder + ".moved", folder);
        if (moved || !QFile::exists(folder))
            QVERIFY(!run.Text().contains("Nothing that you stored is lost."));
        if (!QFile::exists(folder))
            return;
        // Whoever may has the rights back, and finds all that was stored.
        Rights({}, 0700)(folder);
        Rights("userdata.tv3", 0600)(folder);
        OpenDatabases();
        QCOMPARE(TestFolder::StoredRows("users"),
                 (told.isEmpty() ? QStringList{"1,Ann,1", "2,Ben,0"} : QStringList{"1,Ann,1"}));
        QCOMPARE(CloseAndCompactFiles(), QString());
        QCOMPARE(window.files.Files(), (QStringList{"drawdata.tv3", "userdata.tv3"}));
    }
};

TAVENOR_TEST(FolderTroublesTest)
#include "folder_troubles_test.moc"
