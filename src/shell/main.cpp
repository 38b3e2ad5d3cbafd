#include "platform/style.h"
#include "shell/main_window.h"
#include "shell/open_databases.h"
#include "shell/splash_window.h"
#include "shell/start_up.h"

#include <QApplication>

#include <filesystem>
#include <memory>

int main(int count, char** arguments)
{
    QApplication application(count, arguments);
    QApplication::setStyle(new Style);
    QApplication::setApplicationName(QStringLiteral("tavenor3"));
    SetProgramDir(std::filesystem::current_path());
    {
        SplashWindow frmsplash;
        frmsplash.ShowAtOnce();
        OpenDatabasesAtStart();
    }
    MainWindow frmmain;
    frmmain.show();
    return QApplication::exec();
}
