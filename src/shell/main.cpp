#include "controls/guard.h"
#include "look/application.h"
#include "shell/command_line.h"
#include "shell/main_window.h"
#include "shell/splash_window.h"
#include "shell/termination_watch.h"
#include "store/open_databases.h"
#include "utilities/start_and_end.h"

#include <csignal>
#include <filesystem>
#include <system_error>

int main(int count, char** arguments)
{
    // Beyond a limit of the system on the size of files a write fails, and is told, instead of ending the program.
    std::signal(SIGXFSZ, SIG_IGN);
    if (const auto code = AnswerQuestion(count, arguments))
        return *code;
    const auto application = MakeApplication(count, arguments);
    if (const auto code = EnterFolder(QApplication::arguments()))
        return *code;
    // In a folder that is gone meanwhile the files are missing like in any other.
    std::error_code gone;
    SetProgramDir(std::filesystem::current_path(gone));
    {
        SplashWindow frmsplash;
        frmsplash.ShowAtOnce();
        OpenDatabases();
    }
    const TerminationWatch termination;
    MainWindow frmmain;
    ConnectGuarded(&termination, &TerminationWatch::TerminationAsked, &frmmain, [] { CloseAndCompact(); });
    frmmain.show();
    return QApplication::exec();
}
