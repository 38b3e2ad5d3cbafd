#include "support/grid_driver.h"
#include "support/raw_file.h"

#include "base/dates.h"

#include <QClipboard>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace {

const QString ManyMain = u"Are you sure you want to\r\ndelete these main draws?"_s;
const QString Lost = u"All changes will be lost, are you sure you want to continue?"_s;
const QString Sure = u"Are you sure you want to replace the old data with this new data?"_s;

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

    GridDriver Grid() { return {*this, "F10Grid1"}; }

    void Edit(int row)
    {
        Grid().Click(row);
        Click("F10maineditbutton");
    }
};

} // namespace

class DrawGridsPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void GridsListDrawsNewestFirstInColumnsThatShareTheWidth()
    {
        FiveDraws window;
        const GridDriver grid = window.Grid();
        QCOMPARE(grid.Rows(), 5);
        QCOMPARE(grid.Row(0, 1), QString("Sat,5,11,22,33,44,49,40"));
        QCOMPARE(grid.Row(4, 1), QString("Sat,1,11,22,33,44,49,40"));
        QCOMPARE(grid.Selected(), QString("0-0"));
        QCOMPARE(grid.view->model()->index(0, 0).data(Qt::TextAlignmentRole).value<Qt::Alignment>(),
                 Qt::AlignRight | Qt::AlignVCenter);
        for (const int width : {1500, 1131}) {
            window.Window().resize(width, 720);
            QApplication::processEvents();
            for (const auto& [name, last, lastPart] : {std::tuple("F10Grid1", 8, 9.3), {"F10Grid2", 7, 4.65}}) {
                const auto* view = window.Find<GridView>(name);
                const double available = view->contentsRect().width() - view->verticalScrollBar()->sizeHint().width();
                for (const auto& [column, part] : {std::pair(0, 7.0), {1, 11.3}, {2, 9.2}, {last, lastPart}})
                    QVERIFY(qAbs(view->columnWidth(column) - available / part) <= 1);
            }
        }
    }

    void SelectedRowsAreDeleted()
    {
        for (const auto& [way, from, to, left] :
             {std::tuple("click", 1, 3, "1 5"), {"drag", 3, 2, "1 4 5"}, {"keys", 4, 0, ""}}) {
            FiveDraws window;
            GridDriver grid = window.Grid();
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
    void EmptiedGridGivesWayToItsLabelAndKeepsTheFocusOnThePage()
    {
        FiveDraws window;
        for (const auto& [name, label, button, next] :
             {std::tuple("F10Grid1", "There are no main draws stored.", "F10main%1button", "F10Grid2"),
              {"F10Grid2", "There are no Thunderball draws stored.", "F10thunder%1button", "Frame_10"}}) {
            GridDriver grid(window, name);
            grid.Select("keys", 0, 4);
            window.modals.WillPress(QMessageBox::Yes);
            window.modals.WillPress(QMessageBox::Ok);
            grid.Press(Qt::Key_Delete);
            window.modals.TakeTexts();
            QCOMPARE(window.FocusedName(), QString(next));
            const QString none = QString(name).back() == '1' ? "Label_0" : "Label_1";
            QVERIFY(window.IsShown(none) && !window.IsShown(name));
            QCOMPARE(window.TextOf(none), QString(label));
            for (const char* action : {"view", "edit", "delete"})
                QVERIFY(!window.Find(QString(button).arg(action))->isEnabled());
        }
        StoreDraws(ThunderballGame, {"2026-11-21,1,2,3,4,5,14"});
        window.OpenPage(2, 3);
        QVERIFY(window.IsShown("Label_0") && !window.IsShown("F10Grid1") && window.IsShown("F10Grid2"));
        QVERIFY(window.Find("F10thundereditbutton")->isEnabled());
    }

    void SelectionIsKeptUntilAnotherIsMade()
    {
        FiveDraws window;
        GridDriver grid(window, "F10Grid2");
        grid.Drag(4, 3);
        for (const char* button : {"F10thunderviewbutton", "F10thundereditbutton"})
            QCOMPARE(window.Click(button, {QMessageBox::Ok}), QStringList{"Select only ONE draw."});
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
        QCOMPARE(window.modals.TakeTexts(), QStringList({"Are you sure you want to\r\ndelete this thunderball draw?",
                                                         "Data delete has been aborted."}));
        QCOMPARE(grid.Selected(), QString("0-0"));
        grid.Press(Qt::Key_End, Qt::ShiftModifier);
        QCOMPARE(grid.Selected(), QString("0-4"));
        QCOMPARE(grid.Rows(), 5);
        // A tool for assistance takes the selection away.
        grid.view->clearSelection();
        for (const char* button : {"F10thunderviewbutton", "F10thunderdeletebutton"})
            QCOMPARE(window.Click(button, {}), QStringList());
    }

    void DetailPageShowsTheSelectedDraw()
    {
        FiveDraws window;
        GridDriver grid = window.Grid();
        grid.Click(3);
        QTest::mouseDClick(grid.view->viewport(), Qt::LeftButton, Qt::NoModifier, grid.Middle(3));
        QCOMPARE(window.TextOf("F14ballset"), QString("Set of balls used: 2"));
        window.PressFocused(Qt::Key_Escape);
        grid.Click(1);
        grid.Press(Qt::Key_Return);
        QCOMPARE(window.TextOf("F14ballset"), QString("Set of balls used: 4"));
        window.PressFocused(Qt::Key_Escape);
        QVERIFY(!window.IsShown("Frame_14"));
        QCOMPARE(grid.Selected() + window.FocusedName(), QString("1-1F10Grid1"));
        window.Click("F10thunderviewbutton");
        QCOMPARE(window.TextOf("F15number_1"), QString("5"));
    }

    void EditedDrawStandsInItsPlaceWithAnyMachine()
    {
        FiveDraws window;
        window.Edit(1);
        // A click selects the whole text, so that typing replaces it; Reset brings the stored draw back.
        QTest::mouseClick(window.Find("F16number_2"), Qt::LeftButton);
        QApplication::processEvents();
        QTest::keyClicks(window.Find("F16number_2"), "47");
        QCOMPARE(window.TextOf("F16number_2"), QString("47"));
        window.Find<QComboBox>("F16machine")->setEditText("X");
        window.Click("F16reset");
        QCOMPARE(window.TextsOf({"F16date", "F16number_2", "F16number_0"}), QString("Saturday, 31 January 2026|11|40"));
        QCOMPARE(window.ColourOf("F16ball_2", QPalette::Window), QColor("#80FFFF"));
        QCOMPARE(window.Find<QComboBox>("F16machine")->currentText(), QString("ARTHUR"));
        QCOMPARE(window.Find<QComboBox>("F16ballset")->currentText(), QString("4"));
        window.Find("F16number_0")->setFocus();
        for (const char* text : {"9", "merlin", "XII"}) {
            QTest::keyClicks(QApplication::focusWidget(), text);
            window.PressFocused(Qt::Key_Return);
        }
        QCOMPARE(window.FocusedName(), QString("F16save"));
        window.Click("F16save", {QMessageBox::Yes, QMessageBox::Ok});
        QCOMPARE(TestFolder::StoredRows("ukmain").value(3), QString("4,2026-01-31,Sat,4,11,22,33,44,49,9,merlin,XII"));
        QVERIFY(!window.IsShown("Frame_16") && window.IsShown("Frame_10"));
        QCOMPARE(window.Grid().Row(1, 2), QString("4,11,22,33,44,49,9"));
    }

    void NothingIsSavedOrLostWithoutAYes()
    {
        FiveDraws window;
        window.Edit(1);
        window.Type("F16number_1", "13");
        QCOMPARE(window.Click("F16save", {QMessageBox::No, QMessageBox::Ok}),
                 QStringList({Sure, "New data has NOT been stored"}));
        QCOMPARE(window.Click("F16back", {QMessageBox::No}), QStringList{Lost});
        QVERIFY(window.IsShown("Frame_16") && window.IsShown("Frame_10"));
        QCOMPARE(window.TextOf("F16number_1"), QString("13"));
        window.modals.WillPress(QMessageBox::Yes);
        window.PressFocused(Qt::Key_Escape);
        QCOMPARE(window.modals.TakeTexts(), QStringList{Lost});
        QVERIFY(!window.IsShown("Frame_16"));
        QCOMPARE(window.Grid().Selected(), QString("1-1"));
        QCOMPARE(TestFolder::StoredRows("ukmain").value(3).section(u',', 3, 3), QString("4"));
    }

    /// A row is the row that was chosen, also where another tool has given three draws one number, and taken those of
    /// the others away.
    void ChosenDrawIsTheOneThatIsUsed()
    {
        FiveDraws window;
        RunSql(DrawDataPath, DrawConnect, "UPDATE ukmain SET DrawId = CASE WHEN Ball1 > 3 THEN NULL ELSE 7 END");
        window.OpenPage(2, 3);
        GridDriver grid = window.Grid();
        for (const int row : {0, 1, 3}) {
            grid.Click(row);
            window.Click("F10mainviewbutton");
            QCOMPARE(window.TextOf("F14number_1").toInt(), 5 - row);
            window.Click("F14back");
        }
        window.Click("F10maineditbutton");
        window.Type("F16number_0", "9");
        window.Click("F16save", {QMessageBox::Yes, QMessageBox::Ok});
        QString bonus;
        for (const QString& row : TestFolder::StoredRows("ukmain"))
            bonus += row.section(u',', 9, 9) + u' ';
        QCOMPARE(bonus, QString("40 9 40 40 40 "));
        grid.Select("click", 1, 2);
        window.Click("F10maindeletebutton", {QMessageBox::Yes, QMessageBox::Ok});
        QCOMPARE(grid.Cell(0, 2) + grid.Cell(1, 2) + grid.Cell(2, 2), QString("521"));
    }

    /// The rows of the grid keep their meaning when another copy has changed the table under them.
    void AnotherCopysChangesHitNoOtherRow()
    {
        FiveDraws window;
        InAnotherCopy(DrawDataPath, DrawConnect, DrawTable(MainGame), [](RecordSet& table) {
            table.MoveNext();
            table.Delete();
        });
        GridDriver grid = window.Grid();
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
        window.Click("F10maindeletebutton", {QMessageBox::Yes, QMessageBox::Ok});
        QCOMPARE(TestFolder::StoredNumbers("ukmain"), QString("1 4 5"));
    }
};

TAVENOR_TEST(DrawGridsPageTest)
#include "draw_grids_page_test.moc"
