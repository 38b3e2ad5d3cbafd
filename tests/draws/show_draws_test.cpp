#include "support/grid_driver.h"

#include "controls/month_calendar.h"

#include <QTableView>

namespace {

const QDate DrawDay(2026, 11, 21);

void ChooseDate(const TestWindow& window, QDate date)
{
    auto* calendar = window.Find<MonthCalendar>("F9Cal");
    calendar->setSelectedDate(date);
    Q_EMIT calendar->clicked(date);
}

/// What a browser section shows: the first ball of its draw, or "-", and the arrows.
QString State(const TestWindow& window, const QString& game)
{
    return (window.IsShown("F9" + game + "frame") ? window.TextOf("F9" + game + "ballnum_1") : "-") +
           (window.IsShown("F9" + game + "back") ? "<" : "") + (window.IsShown("F9" + game + "forward") ? ">" : "");
}

} // namespace

class ShowDrawsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void LatestDrawIsTheNewestOfEachGame()
    {
        TestWindow window;
        window.OpenPage(2, 1);
        const QSize room = window.Find("F8Mbox")->size();
        StoreDraws(ThunderballGame, {"2000-02-05,1,2,3,4,5,14", "1999-06-12,6,7,8,9,10,11"});
        window.OpenPage(2, 1);
        QVERIFY(window.IsShown("blankshapem") && window.IsShown("Label4") && !window.IsShown("Label5"));
        QCOMPARE(window.TextsOf({"Label4", "Label5", "F8Tdate"}),
                 QString("There are no main draws stored.|There are no thunderball draws stored.|"
                         "Saturday, 5 February 2000"));
        QCOMPARE(window.TextsOf("F8Tnumber", "123450"), QString("1 2 3 4 5 14"));
        QCOMPARE(window.ColoursOf("F8Tball", "50", QPalette::Window), QString("#000080 #FF0000"));

        StoreDraws(MainGame, {"2026-11-21,3,15,22,38,41,49,9,ARTHUR,4", "2026-11-18,1,2,3,4,5,6,7,MERLIN,1"});
        window.OpenPage(2, 1);
        QVERIFY(!window.IsShown("blankshapem") && !window.IsShown("Label4"));
        QCOMPARE(window.TextsOf("F8Mnumber", "1234560"), QString("3 15 22 38 41 49 9"));
        QCOMPARE(window.TextsOf({"F8Mdate", "F8Mmachine", "F8Mballset"}),
                 QString("Saturday, 21 November 2026|Machine: ARTHUR|Set of balls: 4"));
        QCOMPARE(window.ColoursOf("F8Mball", "1234560", QPalette::Window),
                 QString("#FFFFFF #80FFFF #FF8080 #80FF80 #FFFF80 #FFFF80 #FFFFFF"));
        QCOMPARE(window.Find("F8Mbox")->size(), room);
    }

    void BrowserStepsThroughTheDrawsOfADate()
    {
        // The first ball is the number of the draw; neighbours in the list carry other dates.
        for (const auto& [draws, clicks, expected] :
             {std::tuple(0, "", "-"), {1, "", "1"}, {2, "><", "1> 2< 1>"}, {3, ">><<", "1> 2<> 3< 2<> 1>"}})
            for (const Game* game : {&MainGame, &ThunderballGame}) {
                TestWindow window;
                for (int ball = 1; ball <= draws; ++ball)
                    StoreDraws(*game, {QString("2026-11-21,%1,11,12,13,14,10,16,,").arg(ball)});
                StoreDraws(*game, {"2026-11-20,30,31,32,33,34,10,12,,", "2026-11-22,30,31,32,33,34,10,12,,"});
                window.Window().ChooseMenu(2, 2);
                ChooseDate(window, DrawDay);
                const QString letter = game->name.left(1);
                QStringList seen{State(window, letter)};
                for (const char* click = clicks; *click != '\0'; ++click) {
                    const QStringList arrows{"F9" + letter + "back", "F9" + letter + "forward"};
                    const QString& clicked = arrows[*click == '>' ? 1 : 0];
                    window.Click(clicked);
                    QCOMPARE(window.FocusedName(), window.IsShown(clicked) ? clicked : arrows[*click == '>' ? 0 : 1]);
                    seen.append(State(window, letter));
                }
                QCOMPARE(seen.join(u' '), QString(expected));
                QCOMPARE(window.IsShown("F9" + letter + "nodraw"), draws == 0);
            }
    }

    void BrowserShowsEachGameByItself()
    {
        TestWindow window;
        StoreDraws(MainGame, {"2026-11-21,3,15,22,38,41,49,9,ARTHUR,4"});
        StoreDraws(ThunderballGame, {"2026-11-20,1,2,3,4,5,14"});
        window.Window().ChooseMenu(2, 2);
        ChooseDate(window, DrawDay);
        QCOMPARE(window.TextsOf("F9Mballnum", "1234560"), QString("3 15 22 38 41 49 9"));
        QCOMPARE(window.TextsOf({"F9Mmachine", "F9Msetofballs"}), QString("Machine:  ARTHUR|Set of balls:  4"));
        QCOMPARE(window.ColourOf("F9Mball_2", QPalette::Window), QColor("#80FFFF"));
        QVERIFY(!window.IsShown("F9Tframe"));
        QCOMPARE(window.TextOf("F9Tnodraw"), QString("There was no thunderball draw on this date."));
        auto* calendar = window.Find<MonthCalendar>("F9Cal");
        QTest::keyClick(calendar->findChild<QTableView*>(), Qt::Key_Left);
        QCOMPARE(window.TextsOf("F9Tballnum", "123450"), QString("1 2 3 4 5 14"));
        QCOMPARE(window.ColourOf("F9Tball_0", QPalette::Window), QColor("#FF0000"));
        QVERIFY(!window.IsShown("F9Mframe"));
        QCOMPARE(window.TextOf("F9Mnodraw"), QString("There was no main draw on this date."));
        calendar->showPreviousYear();
        window.Window().ChooseMenu(2, 2);
        QCOMPARE(calendar->selectedDate(), QDate::currentDate());
        QCOMPARE(calendar->yearShown(), QDate::currentDate().year());
        QVERIFY(!window.IsShown("F9Tframe"));
    }

    /// A foreign tool may have left anything in a row; it is shown as well as possible.
    void OddRowsAreShownAndHarmNothing()
    {
        TestWindow window;
        InAnotherCopy(DrawDataPath, DrawConnect, DrawTable(MainGame), [](RecordSet& table) {
            const std::string wide(200, 'w');
            table.AddNew();
            table.SetField(DrawField::Date, "soon");
            table.SetField(DrawField::FirstBall, 77);
            table.SetField(DrawField::FirstBall + 1, "seven");
            table.SetField(DrawField::Machine, wide);
            table.Update();
        });
        window.Window().ChooseMenu(2, 1);
        QCOMPARE(window.TextOf("F8Mdate"), QString("soon"));
        QCOMPARE(window.TextsOf("F8Mnumber", "1234560"), QString("77 0 0 0 0 0 0"));
        QCOMPARE(window.ColourOf("F8Mball_1", QPalette::Window), QColor("#404040"));
        window.Window().ChooseMenu(2, 3);
        QCOMPARE(GridDriver(window, "F10Grid1").Row(0), QString("soon,,77,0,0,0,0,0,0"));
        window.Click("F10mainviewbutton");
        QCOMPARE(window.TextOf("F14date"), QString("soon"));
        QCOMPARE(window.Window().width(), 1024);
    }
};

TAVENOR_TEST(ShowDrawsTest)
#include "show_draws_test.moc"
