// Walks the real program through its pages and writes a picture of each: tour STARTER-FOLDER PICTURE-FOLDER [dark]

#include "analysis/charts.h"
#include "analysis/graph_window.h"
#include "analysis/screen_button.h"
#include "platform/dates.h"
#include "platform/month_calendar.h"
#include "platform/page_frame.h"
#include "platform/style.h"
#include "platform/theme.h"
#include "shell/main_window.h"
#include "shell/open_databases.h"
#include "users/draw_day_window.h"
#include "users/user_records.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <tuple>

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
    {"add_entries", 3, 2},
    {"check_entries", 3, 4, "F12check"},
    {"analysis_main", 5, 1},
    {"analysis_thunderball", 5, 2},
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

class Tour
{
public:
    Tour(MainWindow& mainWindow, const QString& pictureFolder) : window(mainWindow), pictures(pictureFolder) {}

    void Picture(const QString& name, QWidget& widget) const
    {
        QApplication::processEvents();
        widget.grab().save(pictures.filePath(name + QStringLiteral(".png")));
    }

    void EntryGenerator() const
    {
        window.ChooseMenu(4, 1);
        Picture(QStringLiteral("generator_1_opened"), window);
        Choose(0, 0);
        Choose(1, 0);
        Picture(QStringLiteral("generator_2_random"), window);
        Find<QLineEdit>("F26text")->setText(QStringLiteral("200"));
        Find<QWidget>("F26combo_1")->setFocus();
        InModal("generator_3_description", "", [](QDialog&) {});
        Find<QAbstractButton>("F26go")->click();
        Picture(QStringLiteral("generator_4_200_lines"), window);
        Choose(1, 3);
        Picture(QStringLiteral("generator_5_full"), window);
        Choose(1, 2);
        Choose(2, 1);
        Picture(QStringLiteral("generator_6_wheel"), window);
        InModal("number_window", "store", [](QDialog& dialog) {
            dialog.findChild<QAbstractButton*>(QStringLiteral("random"))->click();
            dialog.findChild<QWidget*>(QStringLiteral("n_25"))->setFocus();
        });
        Find<QAbstractButton>("F26choose")->click();
        InModal("generator_7_description", "", [](QDialog&) {});
        Find<QAbstractButton>("F26go")->click();
        Picture(QStringLiteral("generator_8_wheel_built"), window);
        DaySet days{};
        DrawDayWindow frmday(days, &window);
        frmday.show();
        frmday.findChild<QAbstractButton*>(QStringLiteral("check1_2"))->click();
        Picture(QStringLiteral("draw_days"), frmday);
    }

    void Analysis() const
    {
        for (const auto& [suboption, page, name] :
             {std::tuple(1, 23, "ball_data_main"), std::tuple(2, 24, "ball_data_thunderball")}) {
            window.ChooseMenu(5, suboption);
            window.Page(page)->Prepare();
            Picture(QLatin1String(name), window);
        }
        window.ChooseMenu(5, 1);
        // Without a window manager nobody gives the window its focus back after a dialog.
        window.activateWindow();
        QApplication::processEvents();
        Find<QWidget>("F21screen_2")->setFocus(Qt::TabFocusReason);
        Picture(QStringLiteral("analysis_main_focused"), window);
        Q_EMIT Find<ScreenButton>("F21screen_6")->PointedAt();
        Picture(QStringLiteral("analysis_main_pointed_at"), window);
        for (const Chart& chart : AllCharts()) {
            GraphWindow frmgraph(&window);
            frmgraph.PrepareChart(chart.number);
            frmgraph.show();
            Picture(QStringLiteral("chart_%1").arg(chart.number), frmgraph);
        }
    }

    void StartPageButtons() const
    {
        window.ShowStartPage();
        Find<QAbstractButton>("F0links")->click();
        Picture(QStringLiteral("links"), window);
        window.ShowStartPage();
        InModal("about", "back", [](QDialog&) {});
        Find<QAbstractButton>("about")->click();
        InModal("advanced", "back", [this](QDialog& advanced) {
            QTimer::singleShot(100, &advanced, [this] {
                auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                Picture(QStringLiteral("file_dialog"), *dialog);
                dialog->reject();
            });
            advanced.findChild<QAbstractButton*>(QStringLiteral("exportdraw"))->click();
        });
        Find<QAbstractButton>("advanced")->click();
    }

private:
    template <typename Type>
    Type* Find(const char* name) const
    {
        return window.findChild<Type*>(QLatin1String(name));
    }

    void Choose(int list, int item) const
    {
        auto* combo = window.findChild<QComboBox*>(QStringLiteral("F26combo_%1").arg(list));
        combo->setCurrentIndex(item);
        Q_EMIT combo->activated(item);
    }

    /// The next modal window is pictured, after something was done in it, and left by the button of that name; a
    /// message box by its default.
    template <typename Action>
    void InModal(const char* name, const char* leavingButton, Action action) const
    {
        QTimer::singleShot(100, &window, [this, name, leavingButton, action] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr)
                return;
            action(*dialog);
            Picture(QLatin1String(name), *dialog);
            if (auto* button = dialog->findChild<QAbstractButton*>(QLatin1String(leavingButton)))
                button->click();
            else
                dialog->accept();
        });
    }

    MainWindow& window;
    QDir pictures;
};

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
    const Tour tour(window, pictures.path());
    for (const Stop& stop : Stops) {
        if (stop.group == 0)
            window.ShowStartPage();
        else
            window.ChooseMenu(stop.group, stop.suboption);
        QApplication::processEvents();
        for (const char* name : {stop.press, stop.thenPress})
            if (name != nullptr)
                Press(window, name);
        tour.Picture(QLatin1String(stop.picture), window);
    }
    tour.EntryGenerator();
    tour.Analysis();
    tour.StartPageButtons();
    return 0;
}
