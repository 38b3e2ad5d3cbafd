#include "platform/guard.h"
#include "platform/style.h"
#include "platform/traceless_start.h"
#include "shell/main_window.h"
#include "shell/open_databases.h"
#include "shell/shut_down.h"
#include "shell/splash_window.h"
#include "shell/start_up.h"
#include "shell/termination_watch.h"

#include <QApplication>
#include <QDir>
#include <QFontDatabase>

#include <csignal>
#include <filesystem>
#include <optional>
#include <system_error>

int main(int count, char** arguments)
{
    // Beyond a limit of the system on the size of files a write fails, and is told, instead of ending the program.
    std::signal(SIGXFSZ, SIG_IGN);
    std::optional<TracelessStart> tracelessStart(std::in_place, QDir::currentPath());
    QApplication application(count, arguments);
    QFontDatabase::families();
    tracelessStart.reset();
    QApplication::setStyle(new Style);
    QApplication::setApplicationName(QStringLiteral("tavenor3"));
    // By this name the desktop finds the window's icon.
    QApplication::setDesktopFileName(QStringLiteral("tavenor3"));
    // In a folder that is gone meanwhile the files are missing like in any other.
    std::error_code gone;
    SetProgramDir(std::filesystem::current_path(gone));
    {
        SplashWindow frmsplash;
        frmsplash.ShowAtOnce();
        OpenDatabasesAtStart();
    }
    const TerminationWatch termination;
    MainWindow frmmain;
    ConnectGuarded(&termination, &TerminationWatch::TerminationAsked, &frmmain, [] { CloseAndCompact(); });
    frmmain.show();
    return QApplication::exec();
}
