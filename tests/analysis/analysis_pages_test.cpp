#include "support/test_window.h"

#include "analysis/charts.h"

namespace {

/// One of the two analysis menus in the main window.
class Menu : public TestWindow
{
public:
    explicit Menu(int menuPage) : page(menuPage) { OpenPage(5, page - 20); }

    QString Name(const QString& part) const { return QString("F%1%2").arg(page).arg(part); }
    QString ScreenName(int screen) const { return Name(QString("screen_%1").arg(screen)); }
    QString Title() const { return TextOf(Name("title")); }
    void PointAt(int screen)
    {
        QTest::mouseMove(Find(ScreenName(screen)));
        QApplication::processEvents();
    }
    /// What the chart window says that an action opens; meanwhile the page tells that it loads, and nothing moves.
    QString ChartOf(const std::function<void()>& action)
    {
        QString described = "no chart";
        modals.WillDo([&, screen = Find(ScreenName(1)), place = Find(ScreenName(1))->geometry()](QDialog& dialog) {
            const bool loads = IsShown(Name("loading")) && screen->geometry() == place;
            described = loads ? dialog.findChild<QLabel*>("description")->text() : "not loading";
            PressIn(dialog, "back");
        });
        action();
        return described;
    }

    int page;
};

/// Opens the ball data page by its screen on the analysis menu.
void OpenBallData(TestWindow& window, int page)
{
    window.OpenPage(5, page - 22);
    window.Click(page == 23 ? "F21screen_7" : "F22screen_5");
}

} // namespace

class AnalysisPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// What the screens say of themselves is compared with all that the pages show.
    void EveryScreenOpensItsChart()
    {
        for (const auto& [page, charts] : {std::pair(21, QList{1, 2, 3, 4, 5, 6}), {22, {21, 22, 23, 24}}}) {
            Menu menu(page);
            // The other game's draws make no difference.
            StoreDraws(page == 21 ? ThunderballGame : MainGame, {"2026-11-21,1,2,3,4,5,6,7"});
            for (int screen = 1; screen <= charts.size(); ++screen)
                QCOMPARE(menu.Click(menu.ScreenName(screen), {QMessageBox::Ok}),
                         QStringList{"There are no draws in the database."});
            StoreDraws(page == 21 ? MainGame : ThunderballGame, {"2026-11-21,3,15,22,31,32,9,7"});
            for (int screen = 1; screen <= charts.size(); ++screen) {
                const Chart& chart = FindChart(charts[screen - 1]);
                QCOMPARE(menu.ChartOf([&] { menu.Click(menu.ScreenName(screen)); }), chart.Description(chart.ballType));
            }
            QVERIFY(!menu.IsShown(menu.Name("loading")));
            menu.Click(menu.ScreenName(static_cast<int>(charts.size()) + 1));
            QVERIFY(menu.IsShown(QString("Frame_%1").arg(page + 2)));
        }
    }

    void KeysTitleAndDescriptionOpenTheSelectedScreen()
    {
        Menu menu(21);
        StoreDraws(MainGame, {"2026-11-21,3,15,22,31,40,49,9,MERLIN,4"});
        menu.PointAt(5);
        QCOMPARE(menu.Find("F21title")->cursor().shape(), Qt::PointingHandCursor);
        for (const char* label : {"F21label", "F21title"})
            QVERIFY(menu.ChartOf([&] { menu.Click(label); }).contains("lottery machine"));
        menu.Find("F21screen_1")->setFocus();
        menu.PressFocused(Qt::Key_Tab);
        QCOMPARE(menu.FocusedName() + menu.Title(), QString("F21screen_2Colour Frequency"));
        // The pointer strays to another screen; the keys open the one that has the focus.
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
            menu.PointAt(6);
            QVERIFY(menu.ChartOf([&] { menu.PressFocused(key); }).contains("different colour"));
        }
        menu.OpenPage(5, 1);
        QCOMPARE(menu.Title(), QString("Main Draw Analysis"));
        QVERIFY(menu.TextOf("F21label").startsWith("Move the pointer over the ") && !menu.IsShown("F21shape"));
        menu.Click("F21label");
    }

    void WithoutDrawsNoBallHasBeenDrawn()
    {
        TestWindow window;
        OpenBallData(window, 24);
        const QString never = "This ball has never been drawn as ";
        QCOMPARE(window.TextsOf({"F24data_1", "F24data_2", "F24data_3", "F24data_4"}),
                 never + "a main ball.||" + never + "the thunderball.|");
        QCOMPARE(window.FocusedName(), QString("F24enter"));
    }

    void WholePartOfTheTypedNumberCounts()
    {
        TestWindow window;
        // What is no ball of the game leaves the ball 3, typed before, or that of the number's first digit.
        for (const auto& [page, rows] :
             {std::pair(24, "34=34 35=03 14=14 15=15"), {23, "49.9=49 10=10 7.9=07 0.9=03 abc=03 50=05"}})
            for (const QString& row : QString(rows).split(' ')) {
                const QString typed = row.section('=', 0, 0);
                const QString number = row.section('=', 1);
                const QString prefix = QString("F%1").arg(page);
                OpenBallData(window, page);
                window.Type(prefix + "enter", "3");
                window.Type(prefix + "enter", typed);
                for (const QString& left : {typed, QString()}) {
                    QCOMPARE(window.TextsOf({prefix + "number", prefix + "enter"}), number + '|' + left);
                    window.Press(prefix + "enter", Qt::Key_Return);
                }
                // The ball as a thunderball.
                const bool hasExtra = page == 24 && number.toInt() <= 14;
                QCOMPARE(window.IsShown("F24ball2") && window.IsShown("F24number2"), hasExtra);
                QVERIFY(!hasExtra || window.TextOf("F24number2") == number);
                QCOMPARE(window.TextOf(prefix + "data_3").isEmpty(), page == 24 && !hasExtra);
            }
    }

    void EscapeAndBackUncoverTheMenu()
    {
        TestWindow window;
        OpenBallData(window, 23);
        // The menu behind the page takes no keys.
        QVERIFY(window.IsShown("Frame_21") && !window.Find("F21screen_7")->isEnabled());
        window.PressFocused(Qt::Key_Escape);
        QVERIFY(!window.IsShown("Frame_23") && window.IsShown("Frame_21"));
        QCOMPARE(window.TextOf("F21title") + window.FocusedName(), QString("Individual Ball DataF21screen_7"));
        OpenBallData(window, 24);
        window.Click("F24back");
        QVERIFY(!window.IsShown("Frame_24"));
    }
};

TAVENOR_TEST(AnalysisPagesTest)
#include "analysis_pages_test.moc"
