#include "support/test_window.h"

#include "analysis/charts.h"

namespace {

/// The bars that differ from the most frequent value, each with its value and colour: "Odd 5/9, Even 2/12".
QString BarsBut(int usual, const Chart& chart, BallType type)
{
    QStringList bars;
    for (const ChartBar& bar : CountBars(chart, type))
        if (bar.value != usual)
            bars.append(QString("%1 %2/%3").arg(bar.label).arg(bar.value).arg(static_cast<int>(bar.colour)));
    return bars.join(", ");
}

struct Counted
{
    int chart;
    BallType type;
    int usual;
    const char* bars;
};

/// Some charts of the open database, counted by hand.
void Compare(const std::initializer_list<Counted>& rows)
{
    for (const auto& [number, type, usual, bars] : rows)
        QCOMPARE(QString("%1: %2").arg(number).arg(BarsBut(usual, FindChart(number), type)),
                 QString("%1: %2").arg(number).arg(bars));
}

} // namespace

class ChartsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryChartOfAFewDraws()
    {
        const TestFolder folder(TestFolder::Content::Empty);
        OpenDatabaseFiles();
        for (const Chart& chart : AllCharts())
            QVERIFY(CountBars(chart, chart.ballType).empty());
        // The newest draws stand first in the tables, so that tables and lists go different ways.
        StoreDraws(MainGame, {"2000-01-15,3,15,22,31,40,49,9,MERLIN,8", "2000-01-12,3,9,19,20,30,41,15,Merlin,0",
                              "2000-01-08,1,2,3,4,5,6,40,ARTHUR,2", "2000-01-05,1,2,3,4,5,6,7,LANCELOT,9"});
        StoreDraws(ThunderballGame, {"2000-01-14,1,2,3,4,34,14", "2000-01-07,2,3,4,5,6,1"});
        constexpr auto mainBalls = BallType::MainBalls;
        constexpr auto extraBall = BallType::ExtraBall;
        constexpr auto allBalls = BallType::AllBalls;
        Compare({{1, mainBalls, 0,
                  "1 2/15, 2 2/15, 3 4/15, 4 2/15, 5 2/15, 6 2/15, 9 1/15, 15 1/9, 19 1/9, 20 1/12, 22 1/12, 30 1/10, "
                  "31 1/10, 40 1/14, 41 1/14, 49 1/14"},
                 {1, extraBall, 0, "7 1/15, 9 1/15, 15 1/9, 40 1/14"},
                 {2, allBalls, 0, "1 - 9 17/15, 10 - 19 3/9, 20 - 29 2/12, 30 - 39 2/10, 40 - 49 4/14"},
                 {2, extraBall, 0, "1 - 9 2/15, 10 - 19 1/9, 40 - 49 1/14"},
                 {3, allBalls, 0, "Odd 17/9, Even 11/12"},
                 {3, mainBalls, 0, "Odd 14/9, Even 10/12"},
                 {4, allBalls, 4,
                  "1 2/15, 2 2/15, 3 0/15, 4 2/15, 5 2/15, 6 2/15, 7 3/15, 9 0/15, 15 0/9, 19 1/9, 20 1/12, 22 0/12, "
                  "30 1/10, 31 0/10, 40 0/14, 41 1/14, 49 0/14"},
                 {4, extraBall, 4, "7 3/15, 9 0/15, 15 1/9, 40 2/14"},
                 {5, allBalls, 0, "Arthur 1/15, Lancelot 1/12, Merlin 1/10"},
                 {6, allBalls, 0, "Set 2 1/9, Set 8 1/10"},
                 {21, mainBalls, 0, "1 1/9, 2 2/9, 3 2/9, 4 2/9, 5 1/9, 6 1/9, 34 1/9"},
                 {22, mainBalls, 2, "1 0/9, 2 0/9, 3 0/9, 4 0/9, 5 1/9, 6 1/9, 34 0/9"},
                 {23, extraBall, 0, "1 1/12, 14 1/12"},
                 {24, extraBall, 2, "1 1/12, 14 0/12"}});
    }

    void FieldsThatHoldNoBall()
    {
        const TestFolder folder(TestFolder::Content::Empty);
        OpenDatabaseFiles();
        StoreDraws(MainGame, {"2000-01-05,0,77,-4,3.5,8,49.5,50,MERLIN ,8b", "2000-01-08,1,2,3,4,5,6,7,, 3"});
        ukmain.MoveLast();
        ukmain.Edit();
        int field = DrawField::FirstBall;
        for (const char* odd : {"", "abc", "9x"})
            ukmain.SetField(field++, odd);
        ukmain.SetField(field, 1e300);
        ukmain.Update();
        ukmainlist.Requery();
        constexpr auto allBalls = BallType::AllBalls;
        Compare({{1, allBalls, 0, "5 1/15, 6 1/15, 7 1/15, 8 1/15, 9 1/15"},
                 {2, allBalls, 0, "1 - 9 10/15, 40 - 49 4/14"},
                 {3, allBalls, 0, "Odd 6/9, Even 8/12"},
                 {4, allBalls, 2, "5 0/15, 6 0/15, 7 0/15, 8 1/15, 9 0/15"},
                 {5, allBalls, 0, ""},
                 {6, allBalls, 0, "Set 3 1/12, Set 8 1/10"}});
    }
};

TAVENOR_TEST(ChartsTest)
#include "charts_test.moc"
