#include "walk.h"

#include "analysis/charts.h"
#include "analysis/graph_window.h"
#include "controls/label.h"
#include "controls/page_frame.h"
#include "draws/draw_prompt.h"
#include "shell/main_window.h"
#include "shell/splash_window.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QListWidget>
#include <QPointer>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

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

void GoTo(MainWindow& window, const Stop& stop)
{
    window.activateWindow();
    if (stop.group == 0)
        window.ShowStartPage();
    else
        window.ChooseMenu(stop.group, stop.suboption);
    QApplication::processEvents();
    if (auto* list = window.findChild<QListWidget*>(u"F11list"_s); list != nullptr && list->isVisible())
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
    for (const char* name : {stop.press, stop.thenPress})
        if (name != nullptr)
            PressIn(window, QLatin1String(name));
    QApplication::processEvents();
}

void Walk::MainJob() const
{
    AddDraw();
    AddUserAndEntries();
    GenerateEntries();
    window.ChooseMenu(3, 4);
    Press(u"F12check"_s);
    Show(u"check_entries"_s);
    window.ChooseMenu(5, 1);
    Foresee(u"chart_1"_s);
    Press(u"F21screen_1"_s);
}

void Walk::AddDraw() const
{
    window.ChooseMenu(1, 1);
    const QStringList balls{"3", "15", "22", "38", "41", "44"};
    for (int ball = 0; ball < balls.size(); ++ball)
        Type(ElementName(u"F6MBall1"_s, ball + 1), balls[ball]);
    Type(u"F6MBall1_0"_s, u"7"_s);
    Choose(u"F6Mmachine"_s, 2);
    Choose(u"F6Mballset"_s, 3);
    Show(u"add_main"_s);
    Foresee(u"draw_stored"_s);
    Press(u"F6Store"_s);
}

void Walk::AddUserAndEntries() const
{
    window.ChooseMenu(3, 1);
    Type(u"F11seluser"_s, u"Ann"_s);
    Type(u"F11spend"_s, u"60"_s);
    Show(u"new_user"_s);
    Press(u"F11storenu"_s);
    const QList<QStringList> lines{{"3", "15", "22", "30", "36", "49"}, {"5", "9", "17", "23", "34", "14"}};
    for (int game = 0; game < lines.size(); ++game) {
        window.ChooseMenu(3, 2);
        Choose(u"F18type"_s, game);
        for (int ball = 0; ball < lines[game].size(); ++ball)
            Type(ElementName(u"F18ent"_s, ball + 1), lines[game][ball]);
        Press(u"F18selallday"_s);
        Show(game == 0 ? u"add_entries"_s : u"add_thunderball_entries"_s);
        Foresee({});
        Press(u"F18store"_s);
    }
}

void Walk::GenerateEntries() const
{
    window.ChooseMenu(4, 1);
    Show(u"generator_opened"_s);
    Choose(u"F26combo_0"_s, 0);
    Choose(u"F26combo_1"_s, 2);
    Choose(u"F26combo_2"_s, 1);
    Foresee(u"number_window"_s, u"store"_s, [](QDialog& dialog) {
        for (const int number : {3, 7, 12, 18, 22, 25, 31, 36, 40, 44})
            PressIn(dialog, ElementName(u"n"_s, number));
    });
    Press(u"F26choose"_s);
    Foresee(u"generator_description"_s);
    Press(u"F26go"_s);
    Show(u"generator"_s);
    Foresee(u"draw_days"_s, u"store"_s, [this](QDialog& dialog) {
        PressIn(dialog, u"selall"_s);
        Foresee({});
    });
    Press(u"F26store"_s);
}

void Walk::EverythingElse() const
{
    for (const Stop& stop : Stops()) {
        GoTo(window, stop);
        Show(QLatin1String(stop.name));
    }
    window.ChooseMenu(2, 2);
    QTest::keyClick(Find(u"F9Cal"_s)->findChild<QAbstractItemView*>(), Qt::Key_Left);
    Show(u"draw_browser_without_draws"_s);
    window.ChooseMenu(3, 4);
    Press(u"F12dateselect"_s);
    Press(u"F12check"_s);
    Show(u"check_entries_of_a_date"_s);
    OtherBuildTypes();
    Charts();
    StartPageWindows();
}

void Walk::OtherBuildTypes() const
{
    window.ChooseMenu(4, 1);
    Choose(u"F26combo_0"_s, 0);
    Choose(u"F26combo_1"_s, 0);
    Show(u"generator_random"_s);
    Type(u"F26text"_s, u"200"_s);
    Foresee({});
    Press(u"F26go"_s);
    Show(u"generator_200_lines"_s);
    Choose(u"F26combo_1"_s, 3);
    Show(u"generator_full"_s);
}

void Walk::Charts() const
{
    window.ChooseMenu(5, 1);
    Find(u"F21screen_2"_s)->setFocus(Qt::TabFocusReason);
    Show(u"analysis_main_focused"_s);
    for (const Chart& chart : AllCharts()) {
        GraphWindow frmgraph(&window);
        frmgraph.PrepareChart(chart.number);
        frmgraph.show();
        Show(u"chart_%1"_s.arg(chart.number), frmgraph);
    }
}

void Walk::StartPageWindows() const
{
    window.ShowStartPage();
    Foresee(u"about"_s);
    Press(u"about"_s);
    Foresee(u"advanced"_s, {}, [this](QDialog& advanced) {
        Foresee(u"file_dialog"_s);
        PressIn(advanced, u"exportdraw"_s);
    });
    Press(u"advanced"_s);
    Foresee(u"exit"_s);
    Press(u"Exit"_s);
    DrawPrompt frmmsgbox1(u"main"_s, &window);
    frmmsgbox1.show();
    Show(u"draw_prompt"_s, frmmsgbox1);
    SplashWindow frmsplash;
    frmsplash.ShowAtOnce();
    Show(u"splash"_s, frmsplash);
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
