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

/// What a browser section shows: the first ball of its draw, or "-" where it says that there is none, and the arrows.
QString State(const TestWindow& window, const QString& game)
{
    return (window.IsShown("F9" + game + "frame") ? window.TextOf("F9" + game + "ballnum_1") : QString()) +
           (window.IsShown("F9" + game + "nodraw") ? "-" : "") + (window.IsShown("F9" + game + "back") ? "<" : "") +
           (window.IsShown("F9" + game + "forward") ? ">" : "");
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
        QVERIFY(!window.IsShown("F8Mnumber_1") && window.IsShown("F8Tnumber_1"));
        QCOMPARE(window.TextsOf({"Label4", "Label5", "F8Tdate"}),
                 QString("There are no main draws stored.|There are no thunderball draws stored.|"
                         "Saturday, 5 February 2000"));
        StoreDraws(MainGame, {"2026-11-21,3,15,22,38,41,49,9,ARTHUR,4", "2026-11-18,1,2,3,4,5,6,7,MERLIN,1"});
        window.OpenPage(2, 1);
        QVERIFY(!window.IsShown("blankshapem") && !window.IsShown("Label4"));
        QCOMPARE(window.TextOf("F8Mmachine"), QString("Machine: ARTHUR"));
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
                window.OpenPage(2, 2);
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
            }
    }

    void BrowserShowsEachGameByItself()
    {
        TestWindow window;
        StoreDraws(MainGame, {"2026-11-21,3,15,22,38,41,49,9,ARTHUR,4"});
        StoreDraws(ThunderballGame, {"2026-11-20,1,2,3,4,5,14"});
        window.OpenPage(2, 2);
        ChooseDate(window, DrawDay);
        QCOMPARE(State(window, "M") + State(window, "T"), QString("3-"));
        auto* calendar = window.Find<MonthCalendar>("F9Cal");
        QTest::keyClick(calendar->findChild<QTableView*>(), Qt::Key_Left);
        QCOMPARE(State(window, "M") + State(window, "T"), QString("-1"));
        calendar->showPreviousYear();
        window.OpenPage(2, 2);
        QCOMPARE(calendar->selectedDate(), QDate::currentDate());
        QCOMPARE(calendar->yearShown(), QDate::currentDate().year());
        QCOMPARE(State(window, "M") + State(window, "T"), QString("--"));
    }

    /// A foreign tool may have left anything in a row; it is shown as well as possible, and in one way on all pages.
    void OddRowsAreShownAndHarmNothing()
    {
        for (const auto& [date, words] : {std::pair("soon", "soon"), {"2024-1-9", "Tuesday, 9 January 2024"}}) {
            TestWindow window;
            InAnotherCopy(DrawDataPath, DrawConnect, DrawTable(MainGame), [odd = date](RecordSet& table) {
                table.AddNew();
                table.SetField(DrawField::Date, odd);
                table.SetField(DrawField::FirstBall, 77);
                table.SetField(DrawField::FirstBall + 1, "seven");
                table.SetField(DrawField::Machine, std::string(200, 'w'));
                table.Update();
            });
            window.OpenPage(2, 1);
            QCOMPARE(window.TextOf("F8Mdate"), QString(words));
            QCOMPARE(window.TextsOf("F8Mnumber", "1234560"), QString("77 0 0 0 0 0 0"));
            QCOMPARE(window.ColourOf("F8Mball_1", QPalette::Window), QColor("#404040"));
            window.OpenPage(2, 2);
            ChooseDate(window, QDate(2024, 1, 9));
            QCOMPARE(State(window, "M"), QString(*date == 's' ? "-" : "77"));
            window.OpenPage(2, 3);
            QCOMPARE(GridDriver(window, "F10Grid1").Row(0),
                     QString(*date == 's' ? "soon" : "09/01/2024") + ",,77,0,0,0,0,0,0");
            window.Click("F10mainviewbutton");
            QCOMPARE(window.TextOf("F14date"), QString(words));
            window.Click("F14back");
            window.Click("F10maineditbutton");
            QCOMPARE(window.TextOf("F16date"), QString(words));
            QCOMPARE(window.Window().width(), 1024);
        }
    }
};

TAVENOR_TEST(ShowDrawsTest)
#include "show_draws_test.moc"
