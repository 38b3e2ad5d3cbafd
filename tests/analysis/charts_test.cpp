// Ahead of the test framework, which brings a Display of its own.
#include "look/theme.h"

#include "support/test_window.h"

#include "analysis/chart_layout.h"
#include "analysis/charts.h"
#include "analysis/graph_window.h"

#include <QClipboard>
#include <QToolTip>

namespace {

/// The bars that differ from the most frequent value, each with its value and colour: "Odd 5/9, Even 2/12".
QString BarsBut(int usual, const Chart& chart)
{
    QStringList bars;
    for (const ChartBar& bar : CountBars(chart, chart.ballType))
        if (bar.value != usual)
            bars.append(QString("%1 %2/%3").arg(bar.label).arg(bar.value).arg(static_cast<int>(bar.colour)));
    return bars.join(", ");
}

/// A chart window as the menus show it, over the real history.
class ShownChart
{
public:
    explicit ShownChart(int number) : folder(TestFolder::Content::Starter), window((OpenDatabaseFiles(), nullptr))
    {
        window.PrepareChart(number);
        window.show();
        window.activateWindow();
        QApplication::processEvents();
    }

    QWidget* Graph() const { return window.findChild<QWidget*>("graph"); }
    QComboBox* BallTypes() const { return window.findChild<QComboBox*>("balltype"); }
    QStringList Bars() const { return Graph()->accessibleDescription().split(u'\n'); }

    TestFolder folder;
    GraphWindow window;
};

/// How far the lightness of any point of the place is from that of the card.
int StrongestIn(const QImage& picture, const QRect& place)
{
    int strongest = 0;
    for (int x = place.left(); x <= place.right(); ++x)
        for (int y = place.top(); y <= place.bottom(); ++y)
            strongest = qMax(strongest, qAbs(picture.pixelColor(x, y).lightness() - CurrentTheme().card.lightness()));
    return strongest;
}

} // namespace

class ChartsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Counted by hand; the figures of the real history are compared with all that the chart windows show.
    void OddHistoryIsCounted()
    {
        const TestFolder folder(TestFolder::Content::Empty);
        OpenDatabaseFiles();
        for (const Chart& chart : AllCharts())
            QVERIFY(CountBars(chart, chart.ballType).empty());
        // The newest draws stand first in the tables, so that tables and lists go different ways.
        StoreDraws(MainGame, {"2000-01-15,3,15,22,31,40,49,9,MERLIN,8", "2000-01-12,0,77,-4,3.5,8,49.5,50,Merlin,8b",
                              "2000-01-08,1,2,3,4,5,6,40,ARTHUR, 3"});
        StoreDraws(ThunderballGame, {"2000-01-14,1,2,3,4,34,14", "2000-01-07,2,3,4,5,6,1"});
        ukmain.MoveLast();
        ukmain.Edit();
        for (const auto& [ball, odd] : {std::pair(0, ""), {1, "abc"}, {2, "9x"}})
            ukmain.SetField(DrawField::FirstBall + ball, odd);
        ukmain.SetField(DrawField::FirstBall + 3, 1e300);
        ukmain.Update();
        for (const auto& [number, usual, bars] :
             {std::tuple(1, 0, "3 1/15, 5 1/15, 6 1/15, 8 1/15, 9 2/15, 15 1/9, 22 1/12, 31 1/10, 40 2/14, 49 1/14"),
              {2, 1, "1 - 9 11/15, 40 - 49 7/14"},
              {3, 0, "Odd 10/9, Even 11/12"},
              {4, 3, "3 0/15, 5 2/15, 6 2/15, 8 1/15, 9 0/15, 15 0/9, 22 0/12, 31 0/10, 40 0/14, 49 0/14"},
              {5, 0, "Arthur 1/15, Merlin 1/10"},
              {6, 0, "Set 3 1/12, Set 8 2/10"},
              {21, 0, "1 1/9, 2 2/9, 3 2/9, 4 2/9, 5 1/9, 6 1/9, 34 1/9"},
              {24, 2, "1 1/12, 14 0/12"}})
            QCOMPARE(QString("%1: %2").arg(number).arg(BarsBut(usual, FindChart(number))),
                     QString("%1: %2").arg(number).arg(bars));
    }

    void BallTypeChoosesPhraseAndCount()
    {
        // What the words on the chart say of the chosen balls, and the first bar.
        for (const auto& [chart, phrases, firstBars] :
             {std::tuple(1, QStringList{" drawn as a main ball, in", " drawn as a bonus ball, in", " drawn in"},
                         QStringList{"1: 234", "1: 43", "1: 277"}),
              {3,
               {" the main balls have been ", " the bonus ball has been ", " the lottery balls have been "},
               {"Odd: 6354", "Odd: 1065", "Odd: 7419"}},
              {4, {" drawn as a main ball.", " drawn as a bonus ball.", " drawn."}, {"1: 19", "1: 25", "1: 19"}}}) {
            const ShownChart shown(chart);
            QCOMPARE(shown.window.focusWidget(), shown.BallTypes());
            for (const int type : {0, 1, 2}) {
                shown.BallTypes()->setCurrentIndex(type);
                QVERIFY(shown.window.findChild<QLabel*>("description")->text().contains(phrases[type]));
                QCOMPARE(shown.Bars().first(), firstBars[type]);
            }
        }
    }

    void BarsAreAsHighAsTheirValuesAndEveryTextStandsFree()
    {
        const TestFolder folder(TestFolder::Content::Starter);
        OpenDatabaseFiles();
        std::vector<std::vector<ChartBar>> charts{std::vector<ChartBar>(49, {"1", {}, 2263})};
        for (const int highest : {1, 7, 8, 70})
            charts.push_back({{"a", {}, highest}, {"b", {}, 0}});
        for (const Chart& chart : AllCharts())
            charts.push_back(CountBars(chart, chart.ballType));
        for (const std::vector<ChartBar>& chart : charts)
            for (const QSizeF size : {QSizeF(900, 400), QSizeF(1500, 800)}) {
                const ChartLayout layout = LayOutChart(chart, size);
                const int axisEnd = layout.axisNumbers.back().text.toInt();
                const qreal unit = (layout.lines.front() - layout.lines.back()) / axisEnd;
                for (size_t bar = 0; bar < chart.size(); ++bar) {
                    const auto& [label, colour, value] = chart[bar];
                    QCOMPARE(layout.labels[bar].text + layout.figures[bar].text, label + QString::number(value));
                    // A bar is a whole number of pixels high.
                    QVERIFY(value <= axisEnd && qAbs(layout.bars[bar].height() - value * unit) < 1.5);
                }
                for (const auto& part : {layout.labels, layout.figures, layout.axisNumbers}) {
                    QRectF before;
                    for (const ChartText& text : part) {
                        const QRectF place = text.Place();
                        QVERIFY2(QRectF(QPointF(), size).contains(place) && !place.intersects(before),
                                 qPrintable(text.text));
                        before = place;
                    }
                }
            }
    }

    void BarsAndTextsCanBeSeenCopiedAndPointedAt()
    {
        ShownChart shown(2);
        const ChartLayout layout = LayOutChart(CountBars(FindChart(2), BallType::AllBalls), shown.Graph()->size());
        std::vector<QPoint> feet;
        for (const QRectF& bar : layout.bars)
            feet.emplace_back(qRound(bar.center().x()), qRound(bar.bottom()) - 6);
        QTest::keyClick(shown.BallTypes(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), shown.Bars().join('\n').replace(": ", "\t") + '\n');
        const QPoint place = shown.Graph()->mapTo(&shown.window, QPoint());
        const QImage window = shown.window.grab({place, shown.Graph()->size()}).toImage();
        for (const QImage& picture : {window, QApplication::clipboard()->image()}) {
            QStringList colours{picture.pixelColor(2, picture.height() / 2).name()};
            for (const QPoint foot : feet)
                colours.append(picture.pixelColor(foot).name());
            QCOMPARE(colours,
                     (QStringList{CurrentTheme().card.name(), "#ffffff", "#8cc8f5", "#f28b82", "#8edb9a", "#f5e27a"}));
            for (const auto& part : {layout.labels, layout.figures, layout.axisNumbers})
                for (const ChartText& text : part)
                    QVERIFY2(StrongestIn(picture, text.Place().toRect()) > 110, qPrintable(text.text));
        }
        for (const int bar : {0, 4, 2}) {
            QTest::mouseMove(shown.Graph(), feet[static_cast<size_t>(bar)]);
            QTRY_COMPARE(QToolTip::text(), shown.Bars()[bar]);
        }
    }
};

TAVENOR_TEST(ChartsTest)
#include "charts_test.moc"
