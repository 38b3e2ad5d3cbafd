// Walks the real program through its main job, its pages and its windows, and writes a picture of each:
// tour STARTER-FOLDER PICTURE-FOLDER [dark] [large] [WIDTHxHEIGHT]

#include "look/style.h"
#include "look/theme.h"
#include "shell/main_window.h"
#include "store/open_databases.h"
#include "walk.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QTemporaryDir>

#include <cstdio>

using namespace Qt::StringLiterals;

int main(int count, char** arguments)
{
    QApplication application(count, arguments);
    const QStringList given = QApplication::arguments();
    if (given.size() < 3) {
        std::fputs("Usage: tour STARTER-FOLDER PICTURE-FOLDER [dark] [large] [WIDTHxHEIGHT]\n", stderr);
        return 2;
    }
    QApplication::setStyle(new Style);
    if (given.contains("dark"_L1))
        SetDesktopPrefersDark(true);
    // The size of most desktops, where a screen without a display has a smaller one.
    QFont desktop = QApplication::font();
    desktop.setPointSizeF(given.contains("large"_L1) ? 10.5 * 1.5 : 10.5);
    QApplication::setFont(desktop);
    const QTemporaryDir folder;
    for (const char* name : {"drawdata.tv3", "userdata.tv3"})
        QFile::copy(QDir(given[1]).filePath(QLatin1String(name)), folder.filePath(QLatin1String(name)));
    SetProgramDir(folder.path().toStdString());
    OpenDatabaseFiles();
    const QDir pictures(given[2]);
    pictures.mkpath(u"."_s);
    MainWindow window;
    for (const QString& word : given.mid(3))
        if (const QStringList sides = word.split(u'x'); sides.size() == 2)
            window.resize(sides[0].toInt(), sides[1].toInt());
    window.show();
    const Walk walk(window, [&pictures](const QString& name, QWidget& shown) {
        // It is the toolkit's own, and shows the folders of the computer.
        if (qobject_cast<QFileDialog*>(&shown) != nullptr)
            return;
        // The smallest files that the format can have.
        shown.grab().save(pictures.filePath(name + u".png"_s), "PNG", 0);
    });
    walk.MainJob();
    walk.EverythingElse();
    return 0;
}
