#include "support/grid_driver.h"
#include "support/raw_file.h"

#include "base/dates.h"

#include <QClipboard>
#include <QHeaderView>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace {

const QString ManyMain = u"Are you sure you want to\r\ndelete these main draws?"_s;

/// The page with five draws of each game, a week apart. Draw n carries n as its first ball, so that grid rows 0 to 4
/// show draws 5 to 1.
class FiveDraws : public TestWindow
{
public:
    FiveDraws()
    {
        for (int draw = 1; draw <= 5; ++draw) {
            const QString date = QDate(2026, 1, 3).addDays(qint64{7} * draw).toString(Qt::ISODate);
            StoreDraws(MainGame, {QString("%1,%2,11,22,33,44,49,40,ARTHUR,%2").arg(date).arg(draw)});
            StoreDraws(ThunderballGame, {QString("%1,%2,11,22,33,34,14").arg(date).arg(draw)});
        }
        OpenPage(2, 3);
    }

    GridDriver MainGrid() { return {*this, "F10Grid1"}; }
    GridDriver ThunderballGrid() { return {*this, "F10Grid2"}; }
};

} // namespace

class DrawGridsPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void GridsListDrawsNewestFirst()
    {
        FiveDraws window;
        const GridDriver grid = window.MainGrid();
        QCOMPARE(grid.Rows(), 5);
        QCOMPARE(grid.Row(0), ShortDate(QDate(2026, 2, 7)) + ",Sat,5,11,22,33,44,49,40");
        QCOMPARE(grid.Row(4, 1), QString("Sat,1,11,22,33,44,49,40"));
        QCOMPARE(grid.Selected(), QString("0-0"));
        QCOMPARE(window.ThunderballGrid().Row(0, 1), QString("Sat,5,11,22,33,34,14"));
        QCOMPARE(window.ThunderballGrid().Headings(),
                 QString("Date,Day,Ball 1,Ball 2,Ball 3,Ball 4,Ball 5,Thunderball"));
        QCOMPARE(grid.view->model()->index(0, 0).data(Qt::TextAlignmentRole).value<Qt::Alignment>(),
                 Qt::AlignRight | Qt::AlignVCenter);
        QVERIFY(!window.IsShown("Label_0") && !window.IsShown("Label_1"));
    }

    void ColumnsShareTheWidthAtEverySize()
    {
        FiveDraws window;
        for (const int width : {1024, 1500, 1131}) {
            window.Window().resize(width, 720);
            QApplication::processEvents();
            for (const auto& [name, last, lastPart] : {std::tuple("F10Grid1", 8, 9.3), {"F10Grid2", 7, 4.65}}) {
                const auto* grid = window.Find<GridView>(name);
                const double available = grid->contentsRect().width() - grid->verticalScrollBar()->sizeHint().width();
                for (const auto& [column, part] : {std::pair(0, 7.0), {1, 11.3}, {2, 9.2}, {last, lastPart}})
                    QVERIFY(qAbs(grid->columnWidth(column) - available / part) <= 1);
                QVERIFY(grid->horizontalHeader()->length() <= available && !grid->horizontalScrollBar()->isVisible());
            }
        }
    }

    void SelectedRowsAreDeleted()
    {
        for (const auto& [way, from, to, left] :
             {std::tuple("click", 1, 3, "1 5"), {"drag", 3, 2, "1 4 5"}, {"keys", 4, 0, ""}}) {
            FiveDraws window;
            GridDriver grid = window.MainGrid();
            grid.Select(way, from, to);
            QCOMPARE(window.Click("F10maindeletebutton", {QMessageBox::Yes, QMessageBox::Ok}),
                     QStringList({ManyMain, "Deleted"}));
            QCOMPARE(TestFolder::StoredNumbers("ukmain"), QString(left));
            QCOMPARE(grid.Rows(), 4 - qAbs(from - to));
            QCOMPARE(grid.Selected(), grid.Rows() == 0 ? QString("-1--1") : QString("0-0"));
            QCOMPARE(TestFolder::StoredNumbers("ukthunder"), QString("1 2 3 4 5"));
        }
    }

    /// The focus goes to the other grid, then to the page, but never to the menu, where Enter would leave the page.
    void FocusStaysOnThePageWhenAGridIsEmptied()
    {
        FiveDraws window;
        for (const auto& [name, next] : {std::pair("F10Grid1", "F10Grid2"), {"F10Grid2", "Frame_10"}}) {
            GridDriver grid(window, name);
            grid.Select("keys", 0, 4);
            window.modals.WillPress(QMessageBox::Yes);
            window.modals.WillPress(QMessageBox::Ok);
            grid.Press(Qt::Key_Delete);
            window.modals.TakeTexts();
            QCOMPARE(window.FocusedName(), QString(next));
        }
    }

    void SelectionIsKeptUntilAnotherIsMade()
    {
        FiveDraws window;
        GridDriver grid = window.ThunderballGrid();
        grid.Drag(4, 3);
        for (const char* button : {"F10thunderviewbutton", "F10thundereditbutton"})
            QCOMPARE(window.Click(button, {QMessageBox::Ok}), QStringList{"Select only ONE draw."});
        QVERIFY(window.Window().findChild<QWidget*>("Frame_15") == nullptr);
        QTest::mouseClick(grid.view->viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(30, grid.view->viewport()->height() - 2));
        QCOMPARE(grid.Selected(), QString("3-4"));
        grid.Press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), ShortDate(QDate(2026, 1, 17)) + "\tSat\t2\t11\t22\t33\t34\t14\n" +
                                                        ShortDate(QDate(2026, 1, 10)) +
                                                        "\tSat\t1\t11\t22\t33\t34\t14\n");
        grid.Press(Qt::Key_Home);
        window.modals.WillPress(QMessageBox::No);
        window.modals.WillPress(QMessageBox::Ok);
        grid.Press(Qt::Key_Delete);
        const QList<SeenBox> seen = window.modals.TakeSeen();
        QCOMPARE(seen.value(0).text, QString("Are you sure you want to\r\ndelete this thunderball draw?"));
        QCOMPARE(seen[0].defaultButton, QMessageBox::No);
        QCOMPARE(seen.value(1).text, QString("Data delete has been aborted."));
        QCOMPARE(grid.Selected(), QString("0-0"));
        grid.Press(Qt::Key_End, Qt::ShiftModifier);
        QCOMPARE(grid.Selected(), QString("0-4"));
        QCOMPARE(grid.Rows(), 5);
    }

    void GridWithoutDrawsGivesWayToItsLabel()
    {
        TestWindow window;
        StoreDraws(ThunderballGame, {"2026-11-21,1,2,3,4,5,14"});
        window.Window().ChooseMenu(2, 3);
        QCOMPARE(window.TextOf("Label_0"), QString("There are no main draws stored."));
        QVERIFY(window.IsShown("Label_0") && !window.IsShown("F10Grid1") && window.IsShown("F10Grid2"));
        window.Click("F10thunderdeletebutton", {QMessageBox::Yes, QMessageBox::Ok});
        QCOMPARE(window.TextOf("Label_1"), QString("There are no Thunderball draws stored."));
        QVERIFY(window.IsShown("Label_1") && !window.IsShown("F10Grid2"));
        for (const char* button : {"mainview", "mainedit", "maindelete", "thunderview", "thunderedit", "thunderdelete"})
            QVERIFY(!window.Find(QString("F10%1button").arg(button))->isEnabled());
        QCOMPARE(TestFolder::StoredRows("ukthunder"), QStringList());
    }

    void ViewShowsTheSelectedDrawUntilBack()
    {
        FiveDraws window;
        GridDriver grid = window.MainGrid();
        grid.Click(2);
        QTest::mouseDClick(grid.view->viewport(), Qt::LeftButton, {}, grid.Middle(2));
        QCOMPARE(window.TextOf("F14ballset"), QString("Set of balls used: 3"));
        window.PressFocused(Qt::Key_Escape);
        grid.Click(1);
        grid.Press(Qt::Key_Return);
        QVERIFY(window.IsShown("Frame_14") && window.IsShown("Frame_10"));
        QCOMPARE(window.TextsOf({"F14date", "F14number_0", "F14machine", "F14ballset"}),
                 QString("Saturday, 31 January 2026|40|Machine used: ARTHUR|Set of balls used: 4"));
        QCOMPARE(window.ColourOf("F14ball_0", QPalette::Window), QColor("#FFFF80"));
        window.PressFocused(Qt::Key_Escape);
        QVERIFY(!window.IsShown("Frame_14"));
        QCOMPARE(grid.Selected(), QString("1-1"));
        QCOMPARE(window.FocusedName(), QString("F10Grid1"));
        window.Click("F10thunderviewbutton");
        QCOMPARE(window.TextOf("F15date") + ' ' + window.TextOf("F15number_0"),
                 QString("Saturday, 7 February 2026 14"));
        window.Click("F15back");
        QVERIFY(!window.IsShown("Frame_15") && window.IsShown("F10Grid2"));
    }

    void ChosenRowIsTheOneThatIsUsed()
    {
        FiveDraws window;
        // Another tool has given three draws one number, and taken those of the others away.
        RunSql(DrawDataPath, DrawConnect, "UPDATE ukmain SET DrawId = CASE WHEN Ball1 > 3 THEN NULL ELSE 7 END");
        window.OpenPage(2, 3);
        GridDriver grid = window.MainGrid();
        for (const int row : {0, 1, 3}) {
            grid.Click(row);
            window.Click("F10mainviewbutton");
            QCOMPARE(window.TextOf("F14number_1").toInt(), 5 - row);
            window.Click("F14back");
        }
        window.Click("F10maineditbutton");
        window.Type("F16number_0", "9");
        window.Click("F16save", {QMessageBox::Yes, QMessageBox::Ok});
        const QStringList bonus = {"40", "9", "40", "40", "40"};
        for (int draw = 0; draw < 5; ++draw)
            QCOMPARE(TestFolder::StoredRows("ukmain").value(draw).section(u',', 9, 9), bonus[draw]);
        grid.Select("click", 1, 2);
        window.Click("F10maindeletebutton", {QMessageBox::Yes, QMessageBox::Ok});
        QCOMPARE(grid.Rows(), 3);
        for (const auto& [row, draw] : {std::pair(0, "5"), {1, "2"}, {2, "1"}})
            QCOMPARE(grid.Cell(row, 2), QString(draw));
    }

    /// The rows of the grid keep their meaning when another copy has changed the table under them.
    void AnotherCopysChangesHitNoOtherRow()
    {
        FiveDraws window;
        InAnotherCopy(DrawDataPath, DrawConnect, DrawTable(MainGame), [](RecordSet& table) {
            table.MoveNext();
            table.Delete();
            AddDraw(table, MainGame, {QDate(2026, 12, 5), {31, 32, 33, 34, 35, 36, 37}, "", ""});
        });
        GridDriver grid = window.MainGrid();
        grid.Click(2);
        window.Click("F10mainviewbutton");
        QCOMPARE(window.TextOf("F14number_1"), QString("3"));
        window.Click("F14back");
        grid.Click(3);
        QVERIFY(window.Click("F10mainviewbutton", {QMessageBox::Ok})
                    .value(0)
                    .startsWith("The draw could not be shown, because another copy of the program has deleted it "));
        QVERIFY(!window.IsShown("Frame_14"));
        grid.Select("click", 2, 3);
        QCOMPARE(window.Click("F10maindeletebutton", {QMessageBox::Yes, QMessageBox::Ok}),
                 QStringList({ManyMain, "Deleted"}));
        QCOMPARE(TestFolder::StoredNumbers("ukmain"), QString("1 4 5 6"));
        QCOMPARE(grid.Row(0, 2), QString("31,32,33,34,35,36,37"));
    }
};

TAVENOR_TEST(DrawGridsPageTest)
#include "draw_grids_page_test.moc"
