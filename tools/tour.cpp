// Walks the real program through its pages and writes a picture of each: tour STARTER-FOLDER PICTURE-FOLDER [dark]

#include "platform/style.h"
#include "platform/theme.h"
#include "shell/main_window.h"
#include "shell/open_databases.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>

namespace {

struct Stop
{
    const char* picture;
    int group;
    int suboption;
};

constexpr Stop Stops[] = {
    {"start", 0, 0},   {"group_1", 1, 0},  {"group_2", 2, 0},         {"group_3", 3, 0},      {"group_4", 4, 0},
    {"group_5", 5, 0}, {"add_main", 1, 1}, {"add_thunderball", 1, 2}, {"user_details", 3, 1},
};

/// Presses a button that opens a modal window, takes that window's picture, does the same with a button of that window,
/// if one is named, and closes it.
void TakeModalWindow(QWidget& window, const QString& button, const QDir& pictures, const QString& innerButton = {})
{
    QTimer::singleShot(0, &window, [pictures, button, innerButton] {
        auto* modal = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        QApplication::processEvents();
        modal->grab().save(pictures.filePath(button + QStringLiteral(".png")));
        if (!innerButton.isEmpty())
            TakeModalWindow(*modal, innerButton, pictures);
        modal->reject();
    });
    window.findChild<QPushButton*>(button)->click();
}

} // namespace

int main(int count, char** arguments)
{
    if (count < 3) {
        std::fputs("Usage: tour STARTER-FOLDER PICTURE-FOLDER [dark]\n", stderr);
        return 2;
    }
    QApplication application(count, arguments);
    QApplication::setStyle(new Style);
    if (count > 3)
        SetAppearance(Appearance::Dark);
    const QTemporaryDir folder;
    const QDir starter(QString::fromLocal8Bit(arguments[1]));
    for (const char* name : {"drawdata.tv3", "userdata.tv3"})
        QFile::copy(starter.filePath(QLatin1String(name)), folder.filePath(QLatin1String(name)));
    SetProgramDir(folder.path().toStdString());
    OpenDatabaseFiles();
    MainWindow window;
    window.show();
    const QDir pictures(QString::fromLocal8Bit(arguments[2]));
    pictures.mkpath(QStringLiteral("."));
    for (const Stop& stop : Stops) {
        if (stop.group == 0)
            window.ShowStartPage();
        else
            window.ChooseMenu(stop.group, stop.suboption);
        QApplication::processEvents();
        window.grab().save(pictures.filePath(QLatin1String(stop.picture) + QStringLiteral(".png")));
    }
    window.ShowStartPage();
    window.findChild<QPushButton*>(QStringLiteral("F0links"))->click();
    QApplication::processEvents();
    window.grab().save(pictures.filePath(QStringLiteral("links.png")));
    window.findChild<QPushButton*>(QStringLiteral("F25back"))->click();
    TakeModalWindow(window, QStringLiteral("advanced"), pictures, QStringLiteral("exportdraw"));
    return 0;
}
