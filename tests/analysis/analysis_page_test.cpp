#include "support/test_window.h"

#include <QLabel>

namespace {

const QString CountOption =
    "\r\nYou have the option to count main balls only, bonus balls only or both main AND bonus balls.";
const QString TypedBall = "After entering any ball number, you will be shown how often that ball has appeared and when "
                          "it appeared, as a main "
                          "ball or ";

/// What a screen says when it is pointed at, behind "This shows you how many ", and its chart behind "This is a bar
/// chart, showing how many "; without a chart the whole description.
struct Screen
{
    const char* title;
    QString shows;
    QString chart = {};
};

const QList<Screen> MainScreens{
    {"Ball Frequency", "times each lottery ball has been drawn from the main lottery draw." + CountOption,
     "times each lottery ball has been drawn in the main lottery draw."},
    {"Colour Frequency",
     "times each lottery ball colour (and it's associated number range) has been drawn from the main lottery draw." +
         CountOption,
     "times each different colour of lottery ball has been drawn in the main lottery draw."},
    {"Odd/Even Numbers",
     "times each drawn lottery ball from the main lottery draw has been either an odd or even number." + CountOption,
     "times the lottery balls have been either odd, or even, in the main lottery draw."},
    {"How Long Since ?",
     "draws have taken place since each lottery ball was last drawn in the main lottery draw.\r\nYou have the option "
     "to stop the count at the first main ball, bonus ball or either found.",
     "draws have taken place since each ball has been drawn."},
    {"Lottery Machine", "times each lottery machine has been used for the main lottery draw.",
     "times each lottery machine has been used for the main draw."},
    {"Ball Sets", "times each set of balls has been used for the main lottery draw.",
     "times each set of balls has been used for the main draw."},
    {"Individual Ball Data", TypedBall + "bonus ball."}};
const QList<Screen> ThunderballScreens{
    {"Main Ball Frequency", "times each lottery ball has been drawn as a main ball in the thunderball lottery draw.",
     "times each main lottery ball has been drawn in the thunderball draw."},
    {"How Long Since ?",
     "draws have taken place since each lottery ball was last drawn as a main ball in the thunderball lottery draw.",
     "draws have taken place since each ball has been drawn as a main ball in the thunderball draw."},
    {"Thunderball Frequency",
     "times each lottery ball has been drawn as the thunderball in the thunderball lottery draw.",
     "times each lottery ball has been drawn as the thunderball, in the thunderball draw."},
    {"How Long Since ?",
     "draws have taken place since each lottery ball was last drawn as the thunderball in the thunderball lottery "
     "draw.",
     "draws have taken place since each ball has been drawn as a thunderball in the thunderball draw."},
    {"Individual Ball Data", TypedBall + "thunderball."}};

/// One of the two analysis menus in the main window.
class Menu : public TestWindow
{
public:
    explicit Menu(int menuPage, TestFolder::Content content = TestFolder::Content::Empty)
        : TestWindow(content), page(menuPage)
    {
        Open();
    }

    void Open() { OpenPage(5, page - 20); }
    QString Name(const QString& part) const { return QString("F%1%2").arg(page).arg(part); }
    QString ScreenName(int screen) const { return Name(QString("screen_%1").arg(screen)); }
    QString Title() const { return TextOf(Name("title")); }
    void PointAt(int screen, QPoint place = {})
    {
        QTest::mouseMove(Find(ScreenName(screen)), place);
        QApplication::processEvents();
    }
    /// What the chart window says that an action opens.
    QString ChartOf(const std::function<void()>& action)
    {
        QString described;
        modals.WillDo([&described](QDialog& dialog) {
            described = dialog.windowTitle() + ": " + dialog.findChild<QLabel*>("title")->text() + ": " +
                        dialog.findChild<QLabel*>("description")->text();
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        action();
        return modals.AllCame() ? described : "no chart";
    }

    int page;
};

} // namespace

class AnalysisPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ScreensDescribeAndOpen()
    {
        for (const int page : {21, 22}) {
            Menu menu(page);
            StoreDraws(MainGame, {"2026-11-21,3,15,22,31,40,49,9,MERLIN,4"});
            StoreDraws(ThunderballGame, {"2026-11-21,1,2,3,4,5,6"});
            int number = 0;
            for (const Screen& screen : page == 21 ? MainScreens : ThunderballScreens) {
                QCOMPARE(menu.IsShown(menu.Name("shape")), number > 0);
                const QString control = menu.ScreenName(++number);
                menu.PointAt(number);
                QCOMPARE(menu.Title(), QString(screen.title));
                QCOMPARE(menu.TextOf(menu.Name("label")),
                         (screen.chart.isEmpty() ? QString() : "This shows you how many ") + screen.shows);
                QCOMPARE(menu.Find(menu.Name("shape"))->pos(), menu.Find(control)->pos() - QPoint(10, 10));
                if (screen.chart.isEmpty()) {
                    menu.Click(control);
                    QVERIFY(menu.IsShown(QString("Frame_%1").arg(page + 2)));
                    continue;
                }
                QCOMPARE(menu.ChartOf([&] { menu.Click(control); }),
                         QString("Tavenor 3: %1 Draw: This is a bar chart, showing how many ")
                                 .arg(page == 21 ? "Main" : "Thunderball") +
                             screen.chart);
                QVERIFY(!menu.IsShown(menu.Name("loading")));
            }
        }
    }

    void KeysTitleAndDescriptionOpenTheSelectedScreen()
    {
        Menu menu(21, TestFolder::Content::Starter);
        for (const char* label : {"F21title", "F21label"})
            menu.Click(label);
        QVERIFY(menu.modals.AllCame());
        menu.PointAt(5);
        // A button let go beside the label that it was pressed on is no click.
        QTest::mousePress(menu.Find("F21title"), Qt::LeftButton);
        QTest::mouseRelease(menu.Find("F21title"), Qt::LeftButton, {}, QPoint(5, -20));
        QVERIFY(menu.modals.AllCame());
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
        menu.Click("Suboption2");
        menu.Open();
        QCOMPARE(menu.Title(), QString("Main Draw Analysis"));
        QCOMPARE(menu.TextOf("F21label"), QString("Move the pointer over the different screenshots to see a "
                                                  "description of it, then click to go to it."));
        QVERIFY(!menu.IsShown("F21shape"));
        menu.Click("F21label");
    }

    void OnlyAnotherScreenRedraws()
    {
        Menu menu(22);
        QCOMPARE(menu.Title(), QString("Thunderball Draw Analysis"));
        menu.PointAt(1);
        menu.Find<QLabel>("F22title")->setText("as it was");
        menu.PointAt(1, QPoint(20, 20));
        QCOMPARE(menu.Title(), QString("as it was"));
        menu.PointAt(3);
        QCOMPARE(menu.Title(), QString("Thunderball Frequency"));
        menu.Window().resize(1300, 900);
        QApplication::processEvents();
        QCOMPARE(menu.Find("F22shape")->geometry(), menu.Find("F22screen_3")->geometry().adjusted(-10, -10, 10, 10));
    }

    void WithoutDrawsEveryChartSaysSoOnce()
    {
        for (const int page : {21, 22}) {
            Menu menu(page);
            // The other game's draws make no difference.
            StoreDraws(page == 21 ? ThunderballGame : MainGame, {"2026-11-21,1,2,3,4,5,6,7"});
            const int charts = page == 21 ? 6 : 4;
            for (int screen = 1; screen <= charts; ++screen) {
                menu.modals.WillPress(QMessageBox::Ok);
                menu.Click(menu.ScreenName(screen));
                QCOMPARE(menu.modals.TakeTexts(), QStringList{"There are no draws in the database."});
                QVERIFY(!menu.IsShown(menu.Name("loading")));
            }
            menu.Click(menu.ScreenName(charts + 1));
            QVERIFY(menu.IsShown(QString("Frame_%1").arg(page + 2)) && menu.modals.AllCame());
        }
    }
};

TAVENOR_TEST(AnalysisPageTest)
#include "analysis_page_test.moc"
