#include "support/grid_driver.h"
#include "support/raw_file.h"

#include "controls/month_calendar.h"

#include <QTableView>

namespace {

/// The page of single draws, on which a date is chosen.
class Browser : public TestWindow
{
public:
    void ChooseDate(QDate date)
    {
        OpenPage(2, 2);
        auto* calendar = Find<MonthCalendar>("F9Cal");
        calendar->setSelectedDate(date);
        Q_EMIT calendar->clicked(date);
    }

    /// What is shown of each game: the first ball of its draw, or "-" where it says that there is none, and the arrows.
    QString Shown() const
    {
        QString shown;
        for (const QString game : {"F9M", "F9T"})
            shown += (IsShown(game + "frame") ? TextOf(game + "ballnum_1") : QString()) +
                     (IsShown(game + "nodraw") ? "-" : "") + (IsShown(game + "back") ? "<" : "") +
                     (IsShown(game + "forward") ? ">" : "");
        return shown;
    }
};

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
        QVERIFY(window.IsShown("Label4") && !window.IsShown("Label5"));
        QVERIFY(!window.IsShown("F8Mnumber_1") && window.IsShown("F8Tnumber_1"));
        QCOMPARE(window.TextsOf({"Label4", "Label5", "F8Tdate"}),
                 QString("There are no main draws stored.|There are no thunderball draws stored.|"
                         "Saturday, 5 February 2000"));
        StoreDraws(MainGame, {"2026-11-21,3,15,22,38,41,49,9,ARTHUR,4", "2026-11-18,1,2,3,4,5,6,7,MERLIN,1"});
        window.OpenPage(2, 1);
        QVERIFY(!window.IsShown("Label4"));
        QCOMPARE(window.TextOf("F8Mmachine"), QString("Machine: ARTHUR"));
        QCOMPARE(window.Find("F8Mbox")->size(), room);
    }

    /// The first ball is the number of the draw; neighbours in the list carry other dates.
    void BrowserStepsThroughTheDrawsOfADate()
    {
        for (const auto& [game, draws, clicks, expected] : {std::tuple(&MainGame, 0, "", "--"),
                                                            {&MainGame, 1, "", "1-"},
                                                            {&ThunderballGame, 2, "><", "-1> -2< -1>"},
                                                            {&MainGame, 3, ">><<", "1>- 2<>- 3<- 2<>- 1>-"}}) {
            Browser window;
            for (int ball = 1; ball <= draws; ++ball)
                StoreDraws(*game, {QString("2026-11-21,%1,11,12,13,14,10,16,,").arg(ball)});
            StoreDraws(*game, {"2026-11-20,30,31,32,33,34,10,12,,", "2026-11-22,30,31,32,33,34,10,12,,"});
            window.ChooseDate({2026, 11, 21});
            QStringList seen{window.Shown()};
            for (const char* click = clicks; *click != '\0'; ++click) {
                const QString arrow = QString("F9%1%2").arg(game->name.left(1));
                const QString clicked = arrow.arg(*click == '>' ? "forward" : "back");
                window.Click(clicked);
                QCOMPARE(window.FocusedName(),
                         window.IsShown(clicked) ? clicked : arrow.arg(*click == '>' ? "back" : "forward"));
                seen.append(window.Shown());
            }
            QCOMPARE(seen.join(u' '), QString(expected));
        }
    }

    void BrowserShowsEachGameByItself()
    {
        Browser window;
        StoreDraws(MainGame, {"2026-11-21,3,15,22,38,41,49,9,ARTHUR,4"});
        StoreDraws(ThunderballGame, {"2026-11-20,1,2,3,4,5,14"});
        window.ChooseDate({2026, 11, 21});
        QCOMPARE(window.Shown(), QString("3-"));
        auto* calendar = window.Find<MonthCalendar>("F9Cal");
        QTest::keyClick(calendar->findChild<QTableView*>(), Qt::Key_Left);
        QCOMPARE(window.Shown(), QString("-1"));
        window.OpenPage(2, 2);
        QCOMPARE(calendar->selectedDate(), QDate::currentDate());
        QCOMPARE(window.Shown(), QString("--"));
    }

    /// A foreign tool may have left anything in a row; it is shown as well as possible, and in one way on all pages.
    void OddRowsAreShownAndHarmNothing()
    {
        for (const auto& [date, words, shortly, found] :
             {std::tuple("soon", "soon", "soon", "--"), {"2024-1-9", "Tuesday, 9 January 2024", "09/01/2024", "77-"}}) {
            Browser window;
            RunSql(
                DrawDataPath, DrawConnect,
                QString("INSERT INTO ukmain (Date, Ball1, Ball2) VALUES ('%1', 77, 'seven')").arg(date).toStdString());
            window.OpenPage(2, 1);
            QCOMPARE(window.TextOf("F8Mdate"), QString(words));
            QCOMPARE(window.TextsOf("F8Mnumber", "1234560"), QString("77 0 0 0 0 0 0"));
            QCOMPARE(window.ColourOf("F8Mball_1", QPalette::Window), QColor("#404040"));
            window.ChooseDate({2024, 1, 9});
            QCOMPARE(window.Shown(), QString(found));
            window.OpenPage(2, 3);
            QCOMPARE(GridDriver(window, "F10Grid1").Row(0), shortly + QString(",,77,0,0,0,0,0,0"));
        }
    }
};

TAVENOR_TEST(ShowDrawsTest)
#include "show_draws_test.moc"
