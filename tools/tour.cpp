// Walks the real program through its pages and writes a picture of each: tour STARTER-FOLDER PICTURE-FOLDER [dark]

#include "analysis/charts.h"
#include "analysis/graph_window.h"
#include "platform/page_frame.h"
#include "platform/style.h"
#include "platform/theme.h"
#include "shell/main_window.h"
#include "shell/open_databases.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

namespace {

struct Stop
{
    const char* picture;
    int group;
    int suboption;
};

constexpr Stop Stops[] = {
    {"start", 0, 0},
    {"group_1", 1, 0},
    {"group_2", 2, 0},
    {"group_3", 3, 0},
    {"group_4", 4, 0},
    {"group_5", 5, 0},
    {"add_main", 1, 1},
    {"add_thunderball", 1, 2},
    {"user_details", 3, 1},
    {"analysis_main", 5, 1},
    {"analysis_thunderball", 5, 2},
};

/// The pages that lie over the page of another menu choice.
struct LaidOver
{
    const char* picture;
    int group;
    int suboption;
    int page;
};

constexpr LaidOver PagesLaidOver[] = {
    {"ball_data_main", 5, 1, 23},
    {"ball_data_thunderball", 5, 2, 24},
};

void Save(QWidget& shown, const QDir& pictures, const QString& picture)
{
    QApplication::processEvents();
    shown.grab().save(pictures.filePath(picture + QStringLiteral(".png")));
}

void VisitCharts(MainWindow& window, const QDir& pictures)
{
    for (const Chart& chart : AllCharts()) {
        GraphWindow frmgraph(&window);
        frmgraph.PrepareChart(chart.number);
        frmgraph.show();
        Save(frmgraph, pictures, QStringLiteral("chart_%1").arg(chart.number));
    }
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
        Save(window, pictures, QLatin1String(stop.picture));
    }
    for (const LaidOver& page : PagesLaidOver) {
        window.ChooseMenu(page.group, page.suboption);
        window.Page(page.page)->Prepare();
        Save(window, pictures, QLatin1String(page.picture));
    }
    window.ChooseMenu(5, 1);
    window.findChild<QWidget*>(QStringLiteral("F21screen_2"))->setFocus(Qt::TabFocusReason);
    Save(window, pictures, QStringLiteral("analysis_main_pointed_at"));
    VisitCharts(window, pictures);
    return 0;
}
