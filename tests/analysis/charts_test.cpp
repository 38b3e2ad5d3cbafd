#include "support/test_window.h"

#include "analysis/draw_history.h"
#include "game/game.h"
#include "store/draw_records.h"

#include <cmath>
#include <random>

using namespace Qt::StringLiterals;

namespace {

/// What may stand in a ball's field of a file that another hand has written.
const Value OddBalls[] = {Value(), NumberField(0),          NumberField(77),        NumberField(-4),
                          3.5,     std::string_view("abc"), std::string_view("9x"), 49.5,
                          1e300};
const QStringList Machines{"ARTHUR", "GUINEVERE", "LANCELOT", "MERLIN", "Merlin", "MERLIN ", ""};
const QStringList BallSets{"1", "2", "3", "4", "5", "6", "7", "8", "", "0", "9", "A", "2.5", " 3", "-1", "8b"};

/// Fills both games with draws on dates that often meet; some fields of an odd history hold no ball.
void StoreRandomHistory(unsigned seed, int draws, bool odd)
{
    std::mt19937 random(seed);
    const auto below = [&](qsizetype end) { return static_cast<int>(random() % static_cast<unsigned>(end)); };
    Transaction transaction(DrawDb, "The draws could not be stored");
    for (const Game* game : {&MainGame, &ThunderballGame}) {
        RecordSet& table = DrawsOf(*game);
        for (int draw = 0; draw < draws; ++draw) {
            EnteredDraw entered{QDate(2000, 1, 1).addDays(below(draws)), {}, Machines[below(Machines.size())], {}};
            entered.ballSet = BallSets[below(BallSets.size())];
            for (int slot = 0; slot < game->BallCount(); ++slot)
                entered.balls.at(static_cast<size_t>(slot)) = 1 + below(game->Highest(slot));
            AddDraw(table, *game, entered);
            if (!odd || below(2) == 0)
                continue;
            table.MoveLast();
            table.Edit();
            table.SetField(DrawField::FirstBall + below(game->BallCount()), OddBalls[below(std::ssize(OddBalls))]);
            table.Update();
        }
    }
    transaction.Commit();
    ukmainlist.Requery();
    ukthunderlist.Requery();
}

double Number(QString text)
{
    while (!text.isEmpty() && text.back().isLetter())
        text.chop(1);
    return text.toDouble();
}

/// The counted balls of a draw; `type` is the choice of the ball-type list, or 0 and 1 for the Thunderball charts.
QList<double> CountedBalls(const QStringList& draw, bool isMain, int type)
{
    QList<double> balls;
    const int mainBalls = isMain ? 6 : 5;
    for (int slot = 0; slot <= mainBalls; ++slot)
        if (!(type == 1 && slot < mainBalls) && !(type == 0 && slot == mainBalls))
            balls.append(Number(draw[3 + slot]));
    return balls;
}

/// One bar counted on its own, by walking all draws for it.
int PlainBar(int chart, int bar, const QList<QStringList>& draws, int type)
{
    const bool since = chart == 4 || chart == 22 || chart == 24;
    int value = 0;
    for (const QStringList& draw : draws) {
        if (chart == 5 || chart == 6) {
            const QString names[] = {"ARTHUR", "GUINEVERE", "LANCELOT", "MERLIN"};
            value += chart == 5 ? draw[10] == names[bar - 1] : !draw[11].isEmpty() && Number(draw[11]) == bar;
            continue;
        }
        const QList<double> balls = CountedBalls(draw, chart < 20, type);
        if (since && balls.contains(bar))
            break;
        value += since ? 1 : 0;
        for (const double ball : since ? QList<double>() : balls) {
            if (chart == 2)
                value += (bar == 1 || ball >= 10 * (bar - 1)) && (bar == 5 || ball < 10 * bar);
            else if (chart == 3)
                value += (std::fmod(ball, 2) == 0) == (bar == 2);
            else
                value += ball == bar;
        }
    }
    return value;
}

const QString BarText = u"%1: %2 in colour %3"_s;

/// What the table of the charts must say of one of them.
struct Expected
{
    int chart;
    int bars;
    QString source;
    QList<int> types;
    /// Empty for the bars' own numbers.
    QStringList labels;
    /// Used in turn; empty for the bands of the balls.
    QList<int> colours;
};
const Expected ExpectedCharts[] = {
    {1, 49, "ukmain", {0, 1, 2}, {}, {}},
    {2, 5, "ukmain", {0, 1, 2}, {"1 - 9", "10 - 19", "20 - 29", "30 - 39", "40 - 49"}, {15, 9, 12, 10, 14}},
    {3, 2, "ukmain", {0, 1, 2}, {"Odd", "Even"}, {9, 12}},
    {4, 49, "ukmainlist", {0, 1, 2}, {}, {}},
    {5, 4, "ukmain", {2}, {"Arthur", "Guinevere", "Lancelot", "Merlin"}, {15, 9, 12, 10}},
    {6, 8, "ukmain", {2}, {"Set 1", "Set 2", "Set 3", "Set 4", "Set 5", "Set 6", "Set 7", "Set 8"}, {15, 9, 12, 10}},
    {21, 34, "ukthunder", {0}, {}, {9}},
    {22, 34, "ukthunderlist", {0}, {}, {9}},
    {23, 14, "ukthunder", {1}, {}, {12}},
    {24, 14, "ukthunderlist", {1}, {}, {12}},
};

QStringList PlainBars(const Expected& chart, int type)
{
    QList<QStringList> draws;
    for (const QString& row : TestFolder::StoredRows(chart.source))
        draws.append(row.split(u','));
    QStringList bars;
    for (int bar = 1; bar <= chart.bars; ++bar) {
        const QString label = chart.labels.isEmpty() ? QString::number(bar) : chart.labels[bar - 1];
        const int band = bar < 10 ? 15 : bar < 20 ? 9 : bar < 30 ? 12 : bar < 40 ? 10 : 14;
        const int colour = chart.colours.isEmpty() ? band : chart.colours[(bar - 1) % chart.colours.size()];
        bars.append(BarText.arg(label).arg(PlainBar(chart.chart, bar, draws, type)).arg(colour));
    }
    return bars;
}

QStringList CountedBars(const ChartCount& count, int type)
{
    QStringList bars;
    for (const ChartBar& bar : count.Bars(static_cast<BallType>(type)))
        bars.append(BarText.arg(bar.label).arg(bar.value).arg(static_cast<int>(bar.colour)));
    return bars;
}

} // namespace

class ChartsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryBarIsWhatAPlainCountFinds()
    {
        unsigned seed = 0;
        // The real history; few draws, so that many balls never came; many; and, below 0, fields that hold no ball.
        for (const int draws : {0, 1, 6, 600, -200, -12}) {
            const TestFolder folder(draws == 0 ? TestFolder::Content::Starter : TestFolder::Content::Empty);
            OpenDatabaseFiles();
            StoreRandomHistory(seed++, qAbs(draws), draws < 0);
            for (const Expected& expected : ExpectedCharts) {
                const Chart& chart = FindChart(expected.chart);
                const ChartCount count = CountChart(chart);
                QCOMPARE(static_cast<int>(chart.ballType), expected.types.last());
                for (const int type : expected.types)
                    QCOMPARE(QStringList(QString::number(expected.chart)) + CountedBars(count, type),
                             QStringList(QString::number(expected.chart)) + PlainBars(expected, type));
            }
        }
    }
};

TAVENOR_TEST_MAIN(ChartsTest)
#include "charts_test.moc"
