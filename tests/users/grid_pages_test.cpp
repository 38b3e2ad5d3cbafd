#include "support/grid_driver.h"
#include "support/raw_file.h"

#include <QClipboard>
#include <QScrollBar>

namespace {

/// A grid of draws or entries, with the pages on which its rows are shown and edited.
struct GridPage
{
    /// The group of the menu; the page is its third.
    int group;
    QString grid;
    /// The names of the buttons, with "%1" for what they do, and that of the label in place of an empty grid.
    QString buttons;
    QString none;
    QString table;
    /// The arrays of the numbers on the page of details and in the editor, the editor's last one, and its button.
    QString shown;
    QString edited;
    QString save;
    /// What is asked before one row is deleted, and before several.
    QString one;
    QString many;
    /// What has the focus when the grid was emptied.
    QString next;

    QString Button(const char* action) const { return buttons.arg(action); }
    bool OfDraws() const { return group == 2; }
    void Run(const QString& sql) const
    {
        RunSql(OfDraws() ? DrawDataPath : UserDataPath, OfDraws() ? DrawConnect : "", sql.arg(table).toStdString());
    }
};

const QString Sure = u"Are you sure you want to\r\ndelete %1?"_s;
const GridPage Pages[] = {{2, "F10Grid1", "F10main%1button", "Label_0", "ukmain", "F14number_1", "F16number_0",
                           "F16save", Sure.arg("this main draw"), Sure.arg("these main draws"), "F10Grid2"},
                          {2, "F10Grid2", "F10thunder%1button", "Label_1", "ukthunder", "F15number_1", "F17number_0",
                           "F17save", Sure.arg("this thunderball draw"), Sure.arg("these thunderball draws"),
                           "Frame_10"},
                          {3, "F13grid", "F13%1", "F13noentries", "entries", "F19num_1", "F20num_6", "F20store",
                           "Are you sure you want\r\nto delete this entry?", Sure.arg("these entries"), "F13delete"}};

/// The window with five draws of each game, a week apart, and five entries. The first number of row r of each grid is
/// 5 - r, the last one 10 or 11.
class GridWindow : public TestWindow
{
public:
    GridWindow()
    {
        AddUser(users, "Ann", 10);
        for (int number = 1; number <= 5; ++number) {
            const QString date = QDate(2026, 1, 3).addDays(qint64{7} * number).toString(Qt::ISODate);
            StoreDraws(MainGame, {QString("%1,%2,6,7,8,9,10,11,ARTHUR,%2").arg(date).arg(number)});
            StoreDraws(ThunderballGame, {QString("%1,%2,6,7,8,9,10").arg(date).arg(number)});
            AddEntry(entries, {number, 1, 1, {6.0 - number, 6, 7, 8, 9, 10}, {true}});
        }
    }

    GridDriver Open(const GridPage& page)
    {
        OpenPage(page.group, 3);
        return {*this, page.grid};
    }

    /// Presses the Delete key and answers; what was said comes back.
    QString Delete(const GridPage& page)
    {
        modals.WillPress(QMessageBox::Yes);
        if (page.OfDraws())
            modals.WillPress(QMessageBox::Ok);
        Press(page.grid, Qt::Key_Delete);
        return modals.TakeTexts().join(u'|');
    }

    /// The first numbers of the stored rows, in ascending order, with a star where the last one has become 12.
    static QString Stored(const GridPage& page)
    {
        QStringList numbers;
        for (const QString& row : TestFolder::StoredRows(page.table))
            numbers.append(row.section(u',', 3, 3) + (row.contains(",12") ? "*" : ""));
        numbers.sort();
        return numbers.join(u' ');
    }
};

} // namespace

class GridPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ColumnsShareTheWidth()
    {
        GridWindow window;
        window.Open(Pages[0]);
        window.Window().resize(1131, 720);
        QApplication::processEvents();
        for (const auto& [name, last, lastPart] : {std::tuple("F10Grid1", 8, 9.3), {"F10Grid2", 7, 4.65}}) {
            const auto* view = window.Find<GridView>(name);
            const double available = view->contentsRect().width() - view->verticalScrollBar()->sizeHint().width();
            for (const auto& [column, part] : {std::pair(0, 7.0), {1, 11.3}, {2, 9.2}, {last, lastPart}})
                QVERIFY(qAbs(view->columnWidth(column) - available / part) <= 1);
        }
    }

    /// The focus of an emptied grid stays on the page: in the menu Enter would leave it.
    void SelectedRowsAreDeleted()
    {
        for (const auto& [way, from, to, left] :
             {std::tuple("click", 1, 3, "1 5"), {"drag", 3, 2, "1 4 5"}, {"keys", 4, 0, ""}}) {
            GridWindow window;
            for (const GridPage& page : Pages) {
                GridDriver grid = window.Open(page);
                grid.Select(way, from, to);
                QCOMPARE(window.Delete(page), page.many + (page.OfDraws() ? "|Deleted" : ""));
                QCOMPARE(GridWindow::Stored(page), QString(left));
                const bool empty = *left == '\0';
                QCOMPARE(grid.Selected(), QString(empty ? "-1--1" : "0-0"));
                QCOMPARE(window.FocusedName(), empty ? page.next : page.grid);
                QVERIFY(window.IsShown(page.grid) != empty && window.IsShown(page.none) == empty);
                for (const char* action : {"view", "edit", "delete"})
                    QCOMPARE(window.Find(page.Button(action))->isEnabled(), !empty || !page.OfDraws());
            }
        }
    }

    void GridIsWorkedByMouseAndKeys()
    {
        GridWindow window;
        for (const GridPage& page : Pages) {
            GridDriver grid = window.Open(page);
            QCOMPARE(grid.Selected(), QString("0-0"));
            grid.Click(3);
            QVERIFY(grid.view->selectionModel()->isRowSelected(3));
            QTest::mouseDClick(grid.view->viewport(), Qt::LeftButton, Qt::NoModifier, grid.Middle(3));
            QCOMPARE(window.TextOf(page.shown), QString("2"));
            window.PressFocused(Qt::Key_Escape);
            grid.Click(1);
            grid.Press(Qt::Key_Return);
            QCOMPARE(window.TextOf(page.shown), QString("4"));
            window.PressFocused(Qt::Key_Escape);
            QCOMPARE(grid.Selected() + window.FocusedName(), "1-1" + page.grid);
            grid.Drag(4, 3);
            for (const char* action : {"view", "edit"})
                QCOMPARE(window.Click(page.Button(action), {QMessageBox::Ok}), {"Select only ONE draw."});
            // A click beside the rows leaves them selected.
            QTest::mouseClick(grid.view->viewport(), Qt::LeftButton, Qt::NoModifier,
                              QPoint(30, grid.view->viewport()->height() - 2));
            grid.Press(Qt::Key_C, Qt::ControlModifier);
            const int fromColumn = page.OfDraws() ? 0 : 1;
            QCOMPARE(QApplication::clipboard()->text().replace(u'\t', u','),
                     grid.Row(3, fromColumn) + u'\n' + grid.Row(4, fromColumn) + u'\n');
            grid.Press(Qt::Key_Home);
            QCOMPARE(window.Click(page.Button("delete"), {QMessageBox::No, QMessageBox::Ok}),
                     QStringList({page.one, "Data delete has been aborted."}));
            grid.Press(Qt::Key_End, Qt::ShiftModifier);
            QCOMPARE(grid.Selected(), QString("0-4"));
            // A tool for assistance takes the selection away.
            grid.view->clearSelection();
            QCOMPARE(window.Click(page.Button("delete"), {}), QStringList());
            if (!page.OfDraws())
                window.modals.WillPress(QMessageBox::Ok);
            window.Click(page.Button("view"));
            QCOMPARE(window.modals.TakeTexts(), QStringList(page.OfDraws() ? 0 : 1, "There are no entries to view"));
            QCOMPARE(GridWindow::Stored(page), QString("1 2 3 4 5"));
        }
    }

    /// A row is the row that was chosen, also where another tool has given three rows one number, taken those of the
    /// others away, and deleted rows meanwhile.
    void ChosenRowIsTheOneThatIsUsed()
    {
        GridWindow window;
        for (const GridPage& page : Pages) {
            page.Run(QString("UPDATE %1 SET %2 = CASE WHEN Ball1 > 3 THEN NULL ELSE 7 END")
                         .arg("%1", page.OfDraws() ? "DrawId" : "EntryId"));
            GridDriver grid = window.Open(page);
            page.Run("DELETE FROM %1 WHERE Ball1 = 2");
            for (const int row : {0, 1, 2}) {
                grid.Click(row);
                window.Click(page.Button("view"));
                QCOMPARE(window.TextOf(page.shown).toInt(), 5 - row);
                window.PressFocused(Qt::Key_Escape);
            }
            grid.Click(3);
            const QString told = window.Click(page.Button("view"), {QMessageBox::Ok}).value(0);
            QVERIFY(told.contains(page.OfDraws() ? "another copy" : "An unexpected error"));
            QCOMPARE(window.IsShown(page.shown), !page.OfDraws());
            window.OpenPage(page.group, 3);
            for (const int row : {1, 0}) {
                grid.Click(row);
                window.Click(page.Button("edit"));
                window.Type(page.edited, "12");
                if (row == 0)
                    page.Run("DELETE FROM %1 WHERE Ball1 = 5");
                if (page.OfDraws())
                    window.modals.WillPress(QMessageBox::Yes);
                const QString stored = window.Click(page.save, {QMessageBox::Ok}).last();
                QCOMPARE(stored.contains(" could not be "), row == 0);
                QCOMPARE(window.IsShown(page.edited), row == 0);
            }
            window.OpenPage(page.group, 3);
            QCOMPARE(GridWindow::Stored(page), QString("1 3 4*"));
            page.Run("DELETE FROM %1 WHERE Ball1 = 3");
            grid.Select("click", 1, 2);
            window.Delete(page);
            QCOMPARE(GridWindow::Stored(page), QString("4*"));
        }
    }

    void NoDrawIsChangedOrLeftWithoutAYes()
    {
        const QString lost = "All changes will be lost, are you sure you want to continue?";
        GridWindow window;
        window.Open(Pages[0]).Click(1);
        window.Click("F10maineditbutton");
        QWidget* ball = window.Find("F16number_2");
        for (const auto& [button, told, shown] :
             {std::tuple("F16reset", QString(), "6ARTHUR"),
              {"F16save",
               "Are you sure you want to replace the old data with this new data?|New data has NOT been stored", "47X"},
              {"F16back", lost, "47X"}}) {
            // However the focus comes, it selects the whole text, so that typing replaces it.
            if (told == lost)
                QTest::mouseClick(ball, Qt::LeftButton);
            else
                ball->setFocus();
            QApplication::processEvents();
            QTest::keyClicks(ball, "47");
            window.Find<QComboBox>("F16machine")->setEditText("X");
            if (!told.isEmpty())
                window.modals.WillPress(QMessageBox::No);
            if (told.contains(u'|'))
                window.modals.WillPress(QMessageBox::Ok);
            window.Click(button);
            QCOMPARE(window.modals.TakeTexts().join(u'|'), told);
            QCOMPARE(window.TextOf("F16number_2") + window.Find<QComboBox>("F16machine")->currentText(),
                     QString(shown));
            QVERIFY(window.IsShown("Frame_16") && window.IsShown("Frame_10"));
        }
        window.modals.WillPress(QMessageBox::Yes);
        window.PressFocused(Qt::Key_Escape);
        QCOMPARE(window.modals.TakeTexts(), {lost});
        QVERIFY(!window.IsShown("Frame_16"));
        QCOMPARE(GridWindow::Stored(Pages[0]), QString("1 2 3 4 5"));
    }
};

TAVENOR_TEST(GridPagesTest)
#include "grid_pages_test.moc"
