// Ahead of the test framework, which brings a Display of its own.
#include "look/theme.h"

#include "support/test_window.h"

#include "analysis/bar_chart.h"
#include "analysis/graph_window.h"

#include <QChartView>
#include <QClipboard>
#include <QGraphicsSimpleTextItem>
#include <QLabel>
#include <QPushButton>
#include <QToolTip>

#include <algorithm>

namespace {

/// A chart window as the menus show it, over the real history.
class ShownChart
{
public:
    explicit ShownChart(int chart) : folder(TestFolder::Content::Starter), window((OpenDatabaseFiles(), nullptr))
    {
        window.PrepareChart(chart);
        window.show();
        QApplication::processEvents();
    }

    template <typename Type = QWidget>
    Type* Find(const char* name) const
    {
        return window.findChild<Type*>(name);
    }
    QChartView* Graph() const { return Find<QChartView>("graph"); }
    QStringList Bars() const { return Graph()->accessibleDescription().split(u'\n'); }
    void Choose(const QString& type)
    {
        Find<QComboBox>("balltype")->setCurrentText(type);
        QApplication::processEvents();
    }
    /// The texts of one part of the chart, from left to right, or from the bottom upwards on the axis.
    QList<QGraphicsSimpleTextItem*> Texts(ChartText part) const
    {
        QList<QGraphicsSimpleTextItem*> texts;
        for (QGraphicsItem* item : Graph()->scene()->items())
            if (auto* text = dynamic_cast<QGraphicsSimpleTextItem*>(item))
                if (text->data(0) == static_cast<int>(part))
                    texts.append(text);
        const auto place = [part](const QGraphicsItem* text) {
            const QRectF rect = text->sceneBoundingRect();
            return part == ChartText::AxisNumber ? -rect.top() : rect.left();
        };
        std::sort(texts.begin(), texts.end(), [&](auto* first, auto* second) { return place(first) < place(second); });
        return texts;
    }
    /// The middle of a bar's foot, in the coordinates of the chart.
    QPoint FootOf(int bar) const
    {
        const qreal base = Texts(ChartText::AxisNumber).first()->sceneBoundingRect().center().y();
        return {qRound(Texts(ChartText::Label)[bar]->sceneBoundingRect().center().x()), qRound(base) - 6};
    }

    TestFolder folder;
    GraphWindow window;
};

} // namespace

class GraphWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { SetAppearance(Appearance::FromDesktop); }

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
            QCOMPARE(shown.Find<QComboBox>("balltype")->count(), 3);
            QCOMPARE(shown.Find<QLabel>("typelabel")->text(), QString("Ball type to count"));
            const QStringList types{"Main balls only", "Bonus balls only", "All balls"};
            for (const int type : {2, 0, 1, 2}) {
                shown.Choose(types[type]);
                QVERIFY(shown.Find<QLabel>("description")->text().contains(phrases[type]));
                QCOMPARE(shown.Bars().first(), firstBars[type]);
            }
        }
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
            LookAtTexts(chart.number);
    }

    void BarsAndTextsCanBeSeen()
    {
        ShownChart shown(2);
        for (const Appearance appearance : {Appearance::Light, Appearance::Dark}) {
            // The theme changes while the window is open.
            SetAppearance(appearance);
            QApplication::processEvents();
            const QRect graph(shown.Graph()->mapTo(&shown.window, QPoint()), shown.Graph()->size());
            const QImage picture = shown.window.grab(graph).toImage();
            QStringList colours;
            for (int bar = 0; bar < 5; ++bar)
                colours.append(picture.pixelColor(shown.FootOf(bar)).name().toUpper());
            QCOMPARE(colours, (QStringList{"#FFFFFF", "#8CC8F5", "#F28B82", "#8EDB9A", "#F5E27A"}));
            const QColor card = picture.pixelColor(2, picture.height() / 2);
            QCOMPARE(card, CurrentTheme().card);
            for (const ChartText part : {ChartText::Label, ChartText::Figure, ChartText::AxisNumber})
                for (const QGraphicsSimpleTextItem* text : shown.Texts(part))
                    QVERIFY(qAbs(text->brush().color().lightness() - card.lightness()) > 110);
            // The edge of the white bar, looked for from outside at half its height.
            const QPoint foot = shown.FootOf(0);
            int darkest = 255;
            for (int x = foot.x(); x > foot.x() - 100; --x)
                darkest = qMin(darkest, picture.pixelColor(x, foot.y()).lightness());
            QVERIFY(darkest < 180);
        }
    }

    void PointingAtABarTellsItsLabelAndFigure()
    {
        const ShownChart shown(2);
        for (const int bar : {0, 4, 2}) {
            QTest::mouseMove(shown.Graph()->viewport(), shown.FootOf(bar));
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
        for (const char* name : {"balltype", "graph", "back", "balltype", "graph"}) {
            QCOMPARE(QApplication::focusWidget()->objectName(), QString(name));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        for (const char* name : {"balltype", "graph", "back"}) {
            QTest::keyClick(shown.Find(name), Qt::Key_Escape);
            QVERIFY(!shown.window.isVisible());
            shown.window.show();
        }
        shown.window.PrepareChart(5);
        QVERIFY(!shown.Find("balltype")->isVisible() && !shown.Find("typelabel")->isVisible());
        QCOMPARE(shown.Find<QPushButton>("back")->text(), QString("BACK"));
        QTest::mouseClick(shown.Find("back"), Qt::LeftButton);
        QVERIFY(!shown.window.isVisible());
    }

private:
    static void LookAtTexts(int chart)
    {
        ShownChart shown(chart);
        for (const QSize size : {shown.window.size(), QSize(1600, 1000)}) {
            shown.window.resize(size);
            QApplication::processEvents();
            const auto labels = shown.Texts(ChartText::Label);
            const auto figures = shown.Texts(ChartText::Figure);
            QStringList lines;
            for (int bar = 0; bar < labels.size(); ++bar)
                lines.append(labels[bar]->text() + ": " + figures[bar]->text());
            QCOMPARE(lines, shown.Bars());
            const auto numbers = shown.Texts(ChartText::AxisNumber);
            for (int number = 0; number < numbers.size(); ++number)
                QCOMPARE(numbers[number]->text(), QString::number(number * numbers[1]->text().toInt()));
            const QRectF room(shown.Graph()->viewport()->rect());
            for (const auto& part : {labels, figures, numbers}) {
                QRectF before;
                for (const QGraphicsSimpleTextItem* text : part) {
                    const QRectF place = text->sceneBoundingRect();
                    QVERIFY2(room.contains(place) && !place.intersects(before), qPrintable(text->text()));
                    QVERIFY2(text->isVisible() && text->font().pointSizeF() > 6, "too small to be read");
                    before = place;
                }
            }
            // Without the lines of the grid every figure looks the same.
            const auto picture = [&shown](bool withLines) {
                for (QGraphicsItem* item : shown.Graph()->scene()->items())
                    if (dynamic_cast<QGraphicsLineItem*>(item) != nullptr)
                        item->setVisible(withLines);
                return shown.Graph()->viewport()->grab().toImage();
            };
            const QImage withLines = picture(true);
            const QImage withoutLines = picture(false);
            for (const QGraphicsSimpleTextItem* figure : figures) {
                const QFontMetricsF metrics(figure->font());
                const QRectF digits(0, metrics.ascent() - metrics.capHeight(), figure->boundingRect().width(),
                                    metrics.capHeight());
                const QRect place = figure->mapRectToScene(digits).toAlignedRect();
                QVERIFY2(withLines.copy(place) == withoutLines.copy(place), qPrintable(figure->text()));
            }
        }
    }
};

TAVENOR_TEST(GraphWindowTest)
#include "graph_window_test.moc"
