// Walks the real program through its main job, its pages and its windows, and writes a picture of each:
// tour STARTER-FOLDER PICTURE-FOLDER [dark] [large]

#include "platform/style.h"
#include "platform/theme.h"
#include "shell/main_window.h"
#include "shell/open_databases.h"
#include "walk.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QTemporaryDir>

#include <cstdio>

int main(int count, char** arguments)
{
    QApplication application(count, arguments);
    const QStringList given = QApplication::arguments();
    if (given.size() < 3) {
        std::fputs("Usage: tour STARTER-FOLDER PICTURE-FOLDER [dark] [large]\n", stderr);
        return 2;
    }
    QApplication::setStyle(new Style);
    if (given.contains(QLatin1String("dark")))
        SetAppearance(Appearance::Dark);
    // The size of most desktops, where a screen without a display has a smaller one.
    QFont desktop = QApplication::font();
    desktop.setPointSizeF(given.contains(QLatin1String("large")) ? 10.5 * 1.5 : 10.5);
    QApplication::setFont(desktop);
    const QTemporaryDir folder;
    for (const char* name : {"drawdata.tv3", "userdata.tv3"})
        QFile::copy(QDir(given[1]).filePath(QLatin1String(name)), folder.filePath(QLatin1String(name)));
    SetProgramDir(folder.path().toStdString());
    OpenDatabaseFiles();
    const QDir pictures(given[2]);
    pictures.mkpath(QStringLiteral("."));
    MainWindow window;
    window.show();
    const Walk walk(window, [&pictures](const QString& name, QWidget& shown) {
        // It is the toolkit's own, and shows the folders of the computer.
        if (qobject_cast<QFileDialog*>(&shown) != nullptr)
            return;
        // The smallest files that the format can have.
        shown.grab().save(pictures.filePath(name + QStringLiteral(".png")), "PNG", 0);
    });
    walk.MainJob();
    walk.EverythingElse();
    return 0;
}
