// Ahead of the test framework, which brings a Display of its own.
#include "look/theme.h"

#include "support/test_window.h"

#include "analysis/chart_layout.h"
#include "analysis/charts.h"
#include "analysis/graph_window.h"

#include <QClipboard>
#include <QToolTip>

namespace {

/// A chart window as the menus show it, over the real history.
class ShownChart
{
public:
    explicit ShownChart(int number)
        : folder(TestFolder::Content::Starter), window((OpenDatabaseFiles(), nullptr)), chart(FindChart(number))
    {
        window.PrepareChart(number);
        window.show();
        QApplication::processEvents();
    }

    template <typename Type = QWidget>
    Type* Find(const char* name) const
    {
        return window.findChild<Type*>(name);
    }
    QWidget* Graph() const { return Find("graph"); }
    QStringList Bars() const { return Graph()->accessibleDescription().split(u'\n'); }
    void Choose(const QString& type)
    {
        Find<QComboBox>("balltype")->setCurrentText(type);
        QApplication::processEvents();
    }
    QImage Picture() { return window.grab({Graph()->mapTo(&window, QPoint()), Graph()->size()}).toImage(); }
    ChartLayout Layout() const { return LayOutChart(CountBars(chart, chart.ballType), Graph()->size()); }
    /// A place near the foot of a bar, in the coordinates of the chart.
    QPoint FootOf(int bar) const
    {
        const QRectF place = Layout().bars[static_cast<size_t>(bar)];
        return {qRound(place.center().x()), qRound(place.bottom()) - 6};
    }

    TestFolder folder;
    GraphWindow window;
    const Chart& chart;
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

class GraphWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { SetDesktopPrefersDark(false); }

    void BallTypeChoosesPhraseAndCount()
    {
        // What the words on the chart say of the chosen balls; the rest of them stays.
        const QStringList drawn{" drawn as a main ball, in", " drawn as a bonus ball, in", " drawn in"};
        for (const auto& [chart, phrases, firstBars] :
             {std::tuple(1, drawn, QStringList{"1: 234", "1: 43", "1: 277"}),
              {2, drawn, {"1 - 9: 2230", "1 - 9: 393", "1 - 9: 2623"}},
              {3,
               {" the main balls have been ", " the bonus ball has been ", " the lottery balls have been "},
               {"Odd: 6354", "Odd: 1065", "Odd: 7419"}},
              {4, {" drawn as a main ball.", " drawn as a bonus ball.", " drawn."}, {"1: 19", "1: 25", "1: 19"}}}) {
            ShownChart shown(chart);
            QCOMPARE(shown.Find<QComboBox>("balltype")->currentText(), QString("All balls"));
            const QStringList types{"Main balls only", "Bonus balls only", "All balls"};
            for (const int type : {2, 0, 1, 2}) {
                shown.Choose(types[type]);
                QVERIFY(shown.Find<QLabel>("description")->text().contains(phrases[type]));
                QCOMPARE(shown.Bars().first(), firstBars[type]);
            }
        }
        QVERIFY(ShownChart(5).Find("balltype")->isHidden() && ShownChart(5).Find("typelabel")->isHidden());
    }

    void AnotherBallTypeSeesWhatAnotherCopyHasStored()
    {
        ShownChart shown(3);
        InAnotherCopy(DrawDataPath, DrawConnect, DrawTable(MainGame), [](RecordSet& table) {
            AddDraw(table, MainGame, {QDate(2026, 11, 21), {1, 3, 5, 7, 9, 11, 13}, {}, {}});
        });
        shown.Choose("Main balls only");
        QCOMPARE(shown.Bars(), (QStringList{"Odd: 6360", "Even: 6036"}));
    }

    void EveryTextIsWholeAndStandsFree()
    {
        for (const Chart& chart : AllCharts())
            for (const QSize size : {QSize(900, 400), QSize(1500, 800)}) {
                const ShownChart shown(chart.number);
                shown.Graph()->resize(size);
                const ChartLayout layout = shown.Layout();
                QStringList lines;
                for (size_t bar = 0; bar < layout.bars.size(); ++bar)
                    lines.append(layout.labels[bar].text + ": " + layout.figures[bar].text);
                QCOMPARE(lines, shown.Bars());
                for (const auto& part : {layout.labels, layout.figures, layout.axisNumbers}) {
                    QRectF before;
                    for (const ChartText& text : part) {
                        const QRectF place = text.Place();
                        QVERIFY2(QRectF(QPointF(), size).contains(place) && !place.intersects(before),
                                 qPrintable(text.text));
                        QVERIFY2(text.font.pointSizeF() > 6, "too small to be read");
                        before = place;
                    }
                }
            }
    }

    void FiguresStandOnNoLineAndStayLegible()
    {
        ShownChart shown(1);
        const QImage picture = shown.Picture();
        const ChartLayout layout = shown.Layout();
        int crossed = 0;
        for (const ChartText& figure : layout.figures)
            for (const qreal line : layout.lines)
                if (const QPoint beside(qCeil(figure.Place().left()), qFloor(line));
                    figure.Place().adjusted(0, 2, 0, -2).contains(beside)) {
                    QVERIFY(picture.pixelColor(beside) != CurrentTheme().cardLine);
                    ++crossed;
                }
        QVERIFY(crossed > 0);
        // Where they are long they are turned, and their last digit stands at the top.
        QRect top = layout.figures.front().Place().toRect();
        top.setHeight(top.height() / 3);
        QVERIFY(layout.figures.front().turned && StrongestIn(picture, top) > 80);
        const std::vector<ChartBar> old(49, {"1", {}, 2263});
        for (const ChartText& figure : LayOutChart(old, {900, 400}).figures)
            QVERIFY(figure.turned && figure.font.pointSizeF() > 6 && figure.Place().width() < figure.Place().height());
    }

    /// Bars stand on the axis and end at their values, to half a pixel.
    void BarsAreAsHighAsTheirValues()
    {
        for (const int highest : {1, 7, 8, 70, 2263}) {
            const ChartLayout layout = LayOutChart({{"a", {}, highest}, {"b", {}, 0}}, {500, 300});
            const ChartText& top = layout.axisNumbers.back();
            const qreal unit = (layout.lines.front() - layout.lines.back()) / top.text.toInt();
            QCOMPARE(layout.axisNumbers.front().text, QString("0"));
            QVERIFY(top.text.toInt() >= highest && layout.axisNumbers.size() <= 8);
            QVERIFY(qAbs(layout.bars[0].height() - highest * unit) < 1 && layout.bars[1].height() == 0);
            QVERIFY(qAbs(layout.bars[0].bottom() - layout.lines.front()) <= 1);
        }
    }

    void BarsAndTextsCanBeSeen()
    {
        ShownChart shown(2);
        for (const bool dark : {false, true}) {
            // The theme changes while the window is open.
            SetDesktopPrefersDark(dark);
            QApplication::processEvents();
            const QImage picture = shown.Picture();
            QStringList colours;
            for (int bar = 0; bar < 5; ++bar)
                colours.append(picture.pixelColor(shown.FootOf(bar)).name().toUpper());
            QCOMPARE(colours, (QStringList{"#FFFFFF", "#8CC8F5", "#F28B82", "#8EDB9A", "#F5E27A"}));
            const QColor card = CurrentTheme().card;
            QCOMPARE(picture.pixelColor(2, picture.height() / 2), card);
            const ChartLayout layout = shown.Layout();
            for (const auto& part : {layout.labels, layout.figures, layout.axisNumbers})
                for (const ChartText& text : part)
                    QVERIFY2(StrongestIn(picture, text.Place().toRect()) > 110, qPrintable(text.text));
            // The white bar has an edge.
            const QPoint edge(qFloor(layout.bars[0].left()), shown.FootOf(0).y());
            QVERIFY(StrongestIn(picture, {edge - QPoint(1, 0), QSize(3, 1)}) > (dark ? 50 : 75));
        }
    }

    void PointingAtABarTellsItsLabelAndFigure()
    {
        const ShownChart shown(2);
        for (const int bar : {0, 4, 2}) {
            QTest::mouseMove(shown.Graph(), shown.FootOf(bar));
            QTRY_COMPARE(QToolTip::text(), shown.Bars()[bar]);
        }
    }

    void CopyingTakesThePictureAndTheBars()
    {
        ShownChart shown(2);
        shown.window.activateWindow();
        for (const char* focused : {"balltype", "graph"}) {
            QApplication::clipboard()->clear();
            QTest::keyClick(shown.Find(focused), Qt::Key_C, Qt::ControlModifier);
            QCOMPARE(QApplication::clipboard()->text(), shown.Bars().join('\n').replace(": ", "\t") + '\n');
            const QImage picture = QApplication::clipboard()->image();
            QCOMPARE(picture.pixelColor(shown.FootOf(1)).name(), QString("#8cc8f5"));
            QCOMPARE(picture.pixelColor(1, 1), CurrentTheme().card);
        }
    }

    void KeysMoveThroughTheWindowAndCloseIt()
    {
        ShownChart shown(1);
        shown.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&shown.window));
        for (const char* name : {"balltype", "graph", "back", "balltype"}) {
            QCOMPARE(QApplication::focusWidget()->objectName(), QString(name));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QTest::keyClick(shown.Graph(), Qt::Key_Escape);
        QVERIFY(!shown.window.isVisible());
        shown.window.show();
        QTest::mouseClick(shown.Find("back"), Qt::LeftButton);
        QVERIFY(!shown.window.isVisible());
    }
};

TAVENOR_TEST(GraphWindowTest)
#include "graph_window_test.moc"
