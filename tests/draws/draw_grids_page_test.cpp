#include "support/grid_driver.h"
#include "support/stored_draws.h"

#include "draws/draw_tables.h"
#include "platform/dates.h"

#include <QClipboard>
#include <QHeaderView>
#include <QScrollBar>

namespace {

const QString Aborted = QStringLiteral("Data delete has been aborted.");
const QString OnlyOne = QStringLiteral("Select only ONE draw.");
const QString OneMain = QStringLiteral("Are you sure you want to\r\ndelete this main draw?");
const QString ManyMain = QStringLiteral("Are you sure you want to\r\ndelete these main draws?");

/// Stores five draws of each game, a week apart, and opens the page. Draw n carries n as its first ball, so that grid
/// rows 0 to 4 show draws 5 to 1.
void OpenWithFiveDraws(TestWindow& window)
{
    QStringList mainDraws;
    QStringList thunderballDraws;
    for (int draw = 1; draw <= 5; ++draw) {
        const QString date = QDate(2026, 1, 3).addDays(qint64{7} * draw).toString(Qt::ISODate);
        mainDraws.append(QString("%1,%2,11,22,33,44,49,40,ARTHUR,%2").arg(date).arg(draw));
        thunderballDraws.append(QString("%1,%2,11,22,33,34,14").arg(date).arg(draw));
    }
    StoreDraws(MainGame, mainDraws);
    StoreDraws(ThunderballGame, thunderballDraws);
    window.Click("Button2");
    window.Click("Suboption3");
}

QStringList StoredNumbers(const QString& table)
{
    QStringList numbers;
    for (const QString& row : TestFolder::StoredRows(table))
        numbers.append(row.section(u',', 0, 0));
    return numbers;
}

} // namespace

class DrawGridsPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void GridsListDrawsNewestFirst()
    {
        TestWindow window;
        OpenWithFiveDraws(window);
        const GridDriver mainGrid(window, "F10Grid1");
        const GridDriver thunderballGrid(window, "F10Grid2");
        QCOMPARE(mainGrid.Rows(), 5);
        QCOMPARE(mainGrid.Row(0), ShortDate(QDate(2026, 2, 7)) + ",Sat,5,11,22,33,44,49,40");
        QCOMPARE(mainGrid.Row(4, 1), QString("Sat,1,11,22,33,44,49,40"));
        QCOMPARE(thunderballGrid.Row(0, 1), QString("Sat,5,11,22,33,34,14"));
        QCOMPARE(mainGrid.Selected(), QString("0-0"));
        QStringList headings;
        for (int column = 0; column < 8; ++column)
            headings.append(thunderballGrid.view->model()->headerData(column, Qt::Horizontal).toString());
        QCOMPARE(headings,
                 QStringList({"Date", "Day", "Ball 1", "Ball 2", "Ball 3", "Ball 4", "Ball 5", "Thunderball"}));
        QCOMPARE(mainGrid.view->model()->index(0, 0).data(Qt::TextAlignmentRole).value<Qt::Alignment>(),
                 Qt::AlignRight | Qt::AlignVCenter);
        QVERIFY(!window.IsShown("Label_0") && !window.IsShown("Label_1"));
    }

    void ColumnsShareTheWidthAtEverySize()
    {
        TestWindow window;
        OpenWithFiveDraws(window);
        for (const int width : {1024, 1500, 1131}) {
            window.Window().resize(width, 720);
            QApplication::processEvents();
            for (const QString& name : {QString("F10Grid1"), QString("F10Grid2")}) {
                auto* grid = window.Find<GridView>(name);
                const double available = grid->width() - grid->verticalScrollBar()->sizeHint().width();
                const bool isMain = name == "F10Grid1";
                const int last = isMain ? 8 : 7;
                QVERIFY(qAbs(grid->columnWidth(0) - available / 7) <= 1);
                QVERIFY(qAbs(grid->columnWidth(1) - available / 11.3) <= 1);
                QVERIFY(qAbs(grid->columnWidth(2) - available / 9.2) <= 1);
                QVERIFY(qAbs(grid->columnWidth(last) - available / (isMain ? 9.3 : 4.65)) <= 1);
                QVERIFY(grid->horizontalHeader()->length() <= available);
                QVERIFY(!grid->horizontalScrollBar()->isVisible());
            }
        }
    }

    void SelectedRowsAreDeleted_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<QStringList>("left");
        QTest::newRow("Shift-click") << "click" << 1 << 3 << QStringList{"1", "5"};
        QTest::newRow("Shift-click upwards") << "click" << 2 << 1 << QStringList{"1", "2", "5"};
        QTest::newRow("dragged downwards") << "drag" << 1 << 3 << QStringList{"1", "5"};
        QTest::newRow("dragged upwards") << "drag" << 3 << 1 << QStringList{"1", "5"};
        QTest::newRow("Shift with Down") << "keys" << 3 << 4 << QStringList{"3", "4", "5"};
        QTest::newRow("Shift with Up") << "keys" << 4 << 0 << QStringList{};
    }

    void SelectedRowsAreDeleted()
    {
        QFETCH(QString, way);
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(QStringList, left);
        TestWindow window;
        OpenWithFiveDraws(window);
        GridDriver grid(window, "F10Grid1");
        grid.Select(way, from, to);
        QCOMPARE(grid.Selected(), QString("%1-%2").arg(qMin(from, to)).arg(qMax(from, to)));
        window.modals.WillPress(QMessageBox::Yes);
        window.modals.WillPress(QMessageBox::Ok);
        window.Click("F10maindeletebutton");
        const QList<SeenBox> seen = window.modals.TakeSeen();
        QCOMPARE(seen.size(), 2);
        QCOMPARE(seen[0].text, ManyMain);
        QCOMPARE(seen[0].defaultButton, QMessageBox::No);
        QCOMPARE(seen[1].text, QString("Deleted"));
        QCOMPARE(StoredNumbers("ukmain"), left);
        QCOMPARE(grid.Rows(), left.size());
        QCOMPARE(grid.Selected(), left.isEmpty() ? QString("-1--1") : QString("0-0"));
        QCOMPARE(StoredNumbers("ukthunder").size(), 5);
    }

    void NoKeepsTheDraws()
    {
        TestWindow window;
        OpenWithFiveDraws(window);
        GridDriver grid(window, "F10Grid2");
        grid.Click(2);
        window.modals.WillPress(QMessageBox::No);
        window.modals.WillPress(QMessageBox::Ok);
        grid.Press(Qt::Key_Delete);
        QCOMPARE(window.modals.TakeTexts(),
                 QStringList({"Are you sure you want to\r\ndelete this thunderball draw?", Aborted}));
        QCOMPARE(StoredNumbers("ukthunder").size(), 5);
        QCOMPARE(grid.Selected(), QString("2-2"));
    }

    void GridWithoutDrawsGivesWayToItsLabel()
    {
        TestWindow window;
        StoreDraws(ThunderballGame, {"2026-11-21,1,2,3,4,5,14"});
        window.Window().ChooseMenu(2, 3);
        QCOMPARE(window.TextOf("Label_0"), QString("There are no main draws stored."));
        QVERIFY(window.IsShown("Label_0") && !window.IsShown("F10Grid1") && window.IsShown("F10Grid2"));
        window.modals.WillPress(QMessageBox::Yes);
        window.modals.WillPress(QMessageBox::Ok);
        window.Click("F10thunderdeletebutton");
        QCOMPARE(window.TextOf("Label_1"), QString("There are no Thunderball draws stored."));
        QVERIFY(window.IsShown("Label_1") && !window.IsShown("F10Grid2"));
        for (const char* button : {"mainview", "mainedit", "maindelete", "thunderview", "thunderedit", "thunderdelete"})
            QVERIFY(!window.Find(QString("F10%1button").arg(button))->isEnabled());
        QCOMPARE(TestFolder::StoredRows("ukthunder"), QStringList());
    }

    void ViewShowsTheSelectedDrawUntilBack()
    {
        TestWindow window;
        OpenWithFiveDraws(window);
        GridDriver grid(window, "F10Grid1");
        grid.Click(1);
        grid.Press(Qt::Key_Return);
        QVERIFY(window.IsShown("Frame_14") && window.IsShown("Frame_10"));
        QCOMPARE(window.TextOf("F14date"), QString("Saturday, 31 January 2026"));
        QCOMPARE(window.TextOf("F14number_1"), QString("4"));
        QCOMPARE(window.TextOf("F14number_0"), QString("40"));
        QCOMPARE(window.ColourOf("F14ball_0", QPalette::Window), QColor("#FFFF80"));
        QCOMPARE(window.TextOf("F14machine"), QString("Machine used: ARTHUR"));
        QCOMPARE(window.TextOf("F14ballset"), QString("Set of balls used: 4"));
        window.PressFocused(Qt::Key_Escape);
        QVERIFY(!window.IsShown("Frame_14"));
        QCOMPARE(grid.Selected(), QString("1-1"));
        QCOMPARE(window.FocusedName(), QString("F10Grid1"));
        window.Click("F10thunderviewbutton");
        QCOMPARE(window.TextOf("F15number_0"), QString("14"));
        QCOMPARE(window.TextOf("F15date"), QString("Saturday, 7 February 2026"));
        window.Click("F15back");
        QVERIFY(!window.IsShown("Frame_15") && window.IsShown("F10Grid2"));
    }

    void SeveralRowsOpenNothing()
    {
        TestWindow window;
        OpenWithFiveDraws(window);
        GridDriver grid(window, "F10Grid1");
        grid.Drag(3, 2);
        for (const char* button : {"F10mainviewbutton", "F10maineditbutton"}) {
            window.modals.WillPress(QMessageBox::Ok);
            window.Click(button);
            QCOMPARE(window.modals.TakeTexts(), QStringList{OnlyOne});
        }
        QVERIFY(window.Window().findChild<QWidget*>("Frame_14") == nullptr);
        QCOMPARE(grid.Selected(), QString("2-3"));
    }

    void ClickBesideTheRowsKeepsTheSelection()
    {
        TestWindow window;
        OpenWithFiveDraws(window);
        GridDriver grid(window, "F10Grid1");
        grid.Click(1);
        QTest::mouseClick(grid.view->viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(30, grid.view->viewport()->height() - 2));
        QCOMPARE(grid.Selected(), QString("1-1"));
        grid.Press(Qt::Key_End);
        QCOMPARE(grid.Selected(), QString("4-4"));
        grid.Press(Qt::Key_Home, Qt::ShiftModifier);
        QCOMPARE(grid.Selected(), QString("0-4"));
    }

    void CopiedRowsAreTabSeparated()
    {
        TestWindow window;
        OpenWithFiveDraws(window);
        GridDriver grid(window, "F10Grid2");
        grid.Select("keys", 4, 3);
        grid.Press(Qt::Key_C, Qt::ControlModifier);
        const QString dates = ShortDate(QDate(2026, 1, 17)) + "\tSat\t2\t11\t22\t33\t34\t14\n" +
                              ShortDate(QDate(2026, 1, 10)) + "\tSat\t1\t11\t22\t33\t34\t14\n";
        QCOMPARE(QApplication::clipboard()->text(), dates);
    }

    /// The rows of the grid keep their meaning when another copy has changed the table under them.
    void AnotherCopysChangesHitNoOtherRow()
    {
        TestWindow window;
        OpenWithFiveDraws(window);
        InAnotherCopy(DrawDataPath, DrawConnect, DrawTable(MainGame), [](RecordSet& table) {
            table.MoveNext();
            table.Delete();
            AddDraw(table, MainGame, {QDate(2026, 12, 5), {31, 32, 33, 34, 35, 36, 37}, "", ""});
        });
        GridDriver grid(window, "F10Grid1");
        grid.Click(2);
        window.Click("F10mainviewbutton");
        QCOMPARE(window.TextOf("F14number_1"), QString("3"));
        window.Click("F14back");
        grid.Click(3);
        window.modals.WillPress(QMessageBox::Ok);
        window.Click("F10mainviewbutton");
        QVERIFY(window.modals.TakeTexts().value(0).startsWith(
            "The draw could not be shown, because another copy of the program has deleted it meanwhile."));
        QVERIFY(!window.IsShown("Frame_14"));
        grid.Select("click", 2, 3);
        window.modals.WillPress(QMessageBox::Yes);
        window.modals.WillPress(QMessageBox::Ok);
        window.Click("F10maindeletebutton");
        QCOMPARE(window.modals.TakeTexts(), QStringList({ManyMain, "Deleted"}));
        QCOMPARE(StoredNumbers("ukmain"), QStringList({"1", "4", "5", "6"}));
        QCOMPARE(grid.Row(0, 2), QString("31,32,33,34,35,36,37"));
    }
};

TAVENOR_TEST_MAIN(DrawGridsPageTest)
#include "draw_grids_page_test.moc"
