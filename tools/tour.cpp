// Walks the real program through its pages and writes a picture of each: tour STARTER-FOLDER PICTURE-FOLDER [dark]

#include "platform/dates.h"
#include "platform/month_calendar.h"
#include "platform/style.h"
#include "platform/theme.h"
#include "shell/main_window.h"
#include "shell/open_databases.h"
#include "users/user_records.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

namespace {

/// A page of the menu, and the buttons that are pressed on it before the picture is taken.
struct Stop
{
    const char* picture;
    int group;
    int suboption;
    const char* press = nullptr;
    const char* thenPress = nullptr;
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
    {"latest_draw", 2, 1},
    {"draw_browser_without_draws", 2, 2},
    {"draw_browser", 2, 2, "F9Cal"},
    {"all_draws", 2, 3},
    {"main_draw", 2, 3, "F10mainviewbutton"},
    {"thunderball_draw", 2, 3, "F10thunderviewbutton"},
    {"edit_main_draw", 2, 3, "F10maineditbutton"},
    {"edit_thunderball_draw", 2, 3, "F10thundereditbutton"},
    {"user_details", 3, 1},
    {"entries", 3, 3},
    {"view_entry", 3, 3, "F13view"},
    {"edit_entry", 3, 3, "F13edit"},
    {"view_thunderball_entry", 3, 3, "F13typethunder", "F13view"},
    {"edit_thunderball_entry", 3, 3, "F13typethunder", "F13edit"},
};

/// A user with a handful of entries.
void AddEntries()
{
    Transaction transaction(UserDb, "The entries could not be stored");
    AddUser(users, QStringLiteral("Ann"), 50);
    for (int i = 0; i < 24; ++i) {
        const double first = 1 + i % 9;
        AddEntry(entries, {entries.NextNumber(),
                           1,
                           1,
                           {first, first + 9, first + 13, first + 21, first + 30, first + 40},
                           {false, false, true, false, false, i % 2 == 0, false}});
    }
    AddEntry(entries, {entries.NextNumber(), 1, 2, {4, 9, 17, 23, 34, 14}, {}});
    transaction.Commit();
}

void Press(const MainWindow& window, const char* name)
{
    auto* control = window.findChild<QWidget*>(QLatin1String(name));
    if (auto* button = qobject_cast<QAbstractButton*>(control))
        button->click();
    ukmainlist.MoveFirst();
    auto* calendar = qobject_cast<MonthCalendar*>(control);
    if (calendar == nullptr || ukmainlist.IsEmpty())
        return;
    const QDate newest = DateFromIso(ukmainlist.Text(1));
    calendar->setSelectedDate(newest);
    Q_EMIT calendar->clicked(newest);
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
    AddEntries();
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
        for (const char* name : {stop.press, stop.thenPress})
            if (name != nullptr)
                Press(window, name);
        QApplication::processEvents();
        window.grab().save(pictures.filePath(QLatin1String(stop.picture) + QStringLiteral(".png")));
    }
    return 0;
}
