#include "walk.h"

#include "analysis/charts.h"
#include "analysis/graph_window.h"
#include "draws/draw_prompt.h"
#include "platform/page_frame.h"
#include "shell/main_window.h"
#include "shell/splash_window.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QPointer>
#include <QTest>
#include <QTimer>

namespace {

/// A page of the menu (group 0 is the start page), and the buttons that are pressed on it.
struct Stop
{
    const char* picture;
    int group;
    int suboption;
    const char* press = nullptr;
    const char* thenPress = nullptr;
};

constexpr Stop Stops[] = {
    {"group_1", 1, 0},
    {"group_2", 2, 0},
    {"group_3", 3, 0},
    {"group_4", 4, 0},
    {"group_5", 5, 0},
    {"add_thunderball", 1, 2},
    {"latest_draw", 2, 1},
    {"draw_browser", 2, 2},
    {"all_draws", 2, 3},
    {"main_draw", 2, 3, "F10mainviewbutton"},
    {"thunderball_draw", 2, 3, "F10thunderviewbutton"},
    {"edit_main_draw", 2, 3, "F10maineditbutton"},
    {"edit_thunderball_draw", 2, 3, "F10thundereditbutton"},
    {"entries", 3, 3},
    {"view_entry", 3, 3, "F13view"},
    {"edit_entry", 3, 3, "F13edit"},
    {"view_thunderball_entry", 3, 3, "F13typethunder", "F13view"},
    {"edit_thunderball_entry", 3, 3, "F13typethunder", "F13edit"},
    {"analysis_main", 5, 1},
    {"analysis_thunderball", 5, 2},
    {"ball_data_main", 5, 1, "F21screen_7"},
    {"ball_data_thunderball", 5, 2, "F22screen_5"},
    {"links", 0, 0, "F0links"},
};

/// The one control of that name that can be seen; a page may have a second one of it beneath another page.
QWidget* FindIn(const QWidget& shown, const QString& name)
{
    for (auto* found : shown.findChildren<QWidget*>(name))
        if (found->isVisible())
            return found;
    qFatal("There is no %s to be seen", qPrintable(name));
}

void PressIn(const QWidget& shown, const QString& name)
{
    QTest::mouseClick(FindIn(shown, name), Qt::LeftButton);
}

} // namespace

void Walk::MainJob() const
{
    window.ShowStartPage();
    Show(QStringLiteral("start"));
    AddDraw();
    AddUserAndEntries();
    GenerateEntries();
    window.ChooseMenu(3, 4);
    Press(QStringLiteral("F12check"));
    Show(QStringLiteral("check_entries"));
    window.ChooseMenu(5, 1);
    Foresee(QStringLiteral("chart_1"));
    Press(QStringLiteral("F21screen_1"));
}

void Walk::AddDraw() const
{
    window.ChooseMenu(1, 1);
    Show(QStringLiteral("add_main_empty"));
    const QStringList balls{"3", "15", "22", "38", "41", "44"};
    for (int ball = 0; ball < balls.size(); ++ball)
        Type(ElementName(QStringLiteral("F6MBall1"), ball + 1), balls[ball]);
    Type(QStringLiteral("F6MBall1_0"), QStringLiteral("7"));
    Choose(QStringLiteral("F6Mmachine"), 2);
    Choose(QStringLiteral("F6Mballset"), 3);
    Show(QStringLiteral("add_main"));
    Foresee(QStringLiteral("draw_stored"));
    Press(QStringLiteral("F6Store"));
}

void Walk::AddUserAndEntries() const
{
    window.ChooseMenu(3, 1);
    Type(QStringLiteral("F11seluser"), QStringLiteral("Ann"));
    Type(QStringLiteral("F11spend"), QStringLiteral("60"));
    Show(QStringLiteral("new_user"));
    Press(QStringLiteral("F11storenu"));
    QTest::keyClick(Find(QStringLiteral("F11list")), Qt::Key_Down);
    Show(QStringLiteral("user_details"));
    const QList<QStringList> lines{{"3", "15", "22", "30", "36", "49"}, {"5", "9", "17", "23", "34", "14"}};
    for (int game = 0; game < lines.size(); ++game) {
        window.ChooseMenu(3, 2);
        Choose(QStringLiteral("F18type"), game);
        for (int ball = 0; ball < lines[game].size(); ++ball)
            Type(ElementName(QStringLiteral("F18ent"), ball + 1), lines[game][ball]);
        Press(QStringLiteral("F18selallday"));
        Show(game == 0 ? QStringLiteral("add_entries") : QStringLiteral("add_thunderball_entries"));
        Foresee({});
        Press(QStringLiteral("F18store"));
    }
}

void Walk::GenerateEntries() const
{
    window.ChooseMenu(4, 1);
    Show(QStringLiteral("generator_opened"));
    Choose(QStringLiteral("F26combo_0"), 0);
    Choose(QStringLiteral("F26combo_1"), 2);
    Choose(QStringLiteral("F26combo_2"), 1);
    Foresee(QStringLiteral("number_window"), QStringLiteral("store"), [](QDialog& dialog) {
        PressIn(dialog, QStringLiteral("random"));
        FindIn(dialog, QStringLiteral("n_25"))->setFocus();
    });
    Press(QStringLiteral("F26choose"));
    Foresee(QStringLiteral("generator_description"));
    Press(QStringLiteral("F26go"));
    Show(QStringLiteral("generator"));
    Foresee(QStringLiteral("draw_days"), QStringLiteral("store"), [this](QDialog& dialog) {
        PressIn(dialog, QStringLiteral("selall"));
        Foresee({});
    });
    Press(QStringLiteral("F26store"));
}

void Walk::EverythingElse() const
{
    for (const Stop& stop : Stops) {
        if (stop.group == 0)
            window.ShowStartPage();
        else
            window.ChooseMenu(stop.group, stop.suboption);
        QApplication::processEvents();
        for (const char* name : {stop.press, stop.thenPress})
            if (name != nullptr)
                Press(QLatin1String(name));
        Show(QLatin1String(stop.picture));
    }
    window.ChooseMenu(2, 2);
    QTest::keyClick(Find(QStringLiteral("F9Cal"))->findChild<QAbstractItemView*>(), Qt::Key_Left);
    Show(QStringLiteral("draw_browser_without_draws"));
    window.ChooseMenu(3, 4);
    Press(QStringLiteral("F12dateselect"));
    Press(QStringLiteral("F12check"));
    Show(QStringLiteral("check_entries_of_a_date"));
    OtherBuildTypes();
    Charts();
    StartPageWindows();
}

void Walk::OtherBuildTypes() const
{
    window.ChooseMenu(4, 1);
    Choose(QStringLiteral("F26combo_0"), 0);
    Choose(QStringLiteral("F26combo_1"), 0);
    Show(QStringLiteral("generator_random"));
    Type(QStringLiteral("F26text"), QStringLiteral("200"));
    Foresee({});
    Press(QStringLiteral("F26go"));
    Show(QStringLiteral("generator_200_lines"));
    Choose(QStringLiteral("F26combo_1"), 3);
    Show(QStringLiteral("generator_full"));
}

void Walk::Charts() const
{
    window.ChooseMenu(5, 1);
    Find(QStringLiteral("F21screen_2"))->setFocus(Qt::TabFocusReason);
    Show(QStringLiteral("analysis_main_focused"));
    for (const Chart& chart : AllCharts()) {
        GraphWindow frmgraph(&window);
        frmgraph.PrepareChart(chart.number);
        frmgraph.show();
        Show(QStringLiteral("chart_%1").arg(chart.number), frmgraph);
    }
}

void Walk::StartPageWindows() const
{
    window.ShowStartPage();
    Foresee(QStringLiteral("about"), QStringLiteral("back"));
    Press(QStringLiteral("about"));
    Foresee(QStringLiteral("advanced"), QStringLiteral("back"), [this](QDialog& advanced) {
        Foresee(QStringLiteral("file_dialog"));
        PressIn(advanced, QStringLiteral("exportdraw"));
    });
    Press(QStringLiteral("advanced"));
    Foresee(QStringLiteral("exit"));
    Press(QStringLiteral("Exit"));
    DrawPrompt frmmsgbox1(QStringLiteral("main"), &window);
    frmmsgbox1.show();
    Show(QStringLiteral("draw_prompt"), frmmsgbox1);
    SplashWindow frmsplash;
    frmsplash.ShowAtOnce();
    Show(QStringLiteral("splash"), frmsplash);
}

void Walk::Show(const QString& name) const
{
    // Without a window manager nobody gives the window its focus back after a dialog.
    window.activateWindow();
    Show(name, window);
}

void Walk::Show(const QString& name, QWidget& shown) const
{
    QApplication::processEvents();
    if (!name.isEmpty())
        visit(name, shown);
}

void Walk::Press(const QString& name) const
{
    window.activateWindow();
    PressIn(window, name);
    QApplication::processEvents();
}

void Walk::Type(const QString& name, const QString& text) const
{
    window.activateWindow();
    QApplication::processEvents();
    PressIn(window, name);
    QTest::keyClick(Find(name), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(Find(name), text);
    QTest::keyClick(Find(name), Qt::Key_Return);
}

void Walk::Choose(const QString& list, int item) const
{
    auto* combo = qobject_cast<QComboBox*>(Find(list));
    combo->setCurrentIndex(item);
    Q_EMIT combo->activated(item);
    QApplication::processEvents();
}

void Walk::Foresee(const QString& name, const QString& leavingButton, const Action& before) const
{
    const QPointer<QWidget> current = QApplication::activeModalWidget();
    auto* look = new QTimer(&window);
    QObject::connect(look, &QTimer::timeout, &window, [this, look, current, name, leavingButton, before] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || dialog == current || !dialog->isVisible())
            return;
        look->stop();
        look->deleteLater();
        if (before)
            before(*dialog);
        Show(name, *dialog);
        if (leavingButton.isEmpty())
            QTest::keyClick(dialog, Qt::Key_Escape);
        else
            PressIn(*dialog, leavingButton);
    });
    look->start(10);
}

QWidget* Walk::Find(const QString& name) const
{
    return FindIn(window, name);
}
