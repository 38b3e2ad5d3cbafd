#include "support/grid_driver.h"
#include "support/raw_file.h"

using namespace Qt::StringLiterals;

namespace {

/// The page with two users: Ann with five Main entries, each beginning with its number and played on Monday and Sunday,
/// and one Thunderball entry; Bob with one Main entry.
class Entries : public TestWindow
{
public:
    Entries()
    {
        const DaySet days{true, false, false, false, false, false, true};
        Transaction transaction(UserDb, "The entries of the test could not be stored");
        AddUser(users, "Ann", 10);
        AddUser(users, "Bob", 10);
        for (int number = 1; number <= 4; ++number)
            AddEntry(entries, {number, 1, 1, {double(number), 15, 22, 38, 41, 49}, days});
        AddEntry(entries, {5, 2, 1, {1, 2, 3, 4, 5, 6}, days});
        AddEntry(entries, {6, 1, 2, {3, 15, 22, 30, 34, 14}, days});
        AddEntry(entries, {7, 1, 1, {7, 15, 22, 38, 41, 49}, days});
        transaction.Commit();
        OpenPage(3, 3);
    }

    GridDriver Grid() { return {*this, "F13grid"}; }

    void Edit(bool thunderball, int row)
    {
        Click(thunderball ? "F13typethunder" : "F13typemain");
        Grid().Click(row);
        Click("F13edit");
    }
};

} // namespace

class EntriesPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ListsTheEntriesOfOneUserAndGame()
    {
        Entries window;
        const GridDriver grid = window.Grid();
        QCOMPARE(grid.Rows(), 5);
        QCOMPARE(grid.Row(4), QString("7,5,7,15,22,38,41,49"));
        QCOMPARE(grid.Selected(), QString("0-0"));
        window.Click("F13typethunder");
        QCOMPARE(grid.Rows(), 1);
        QCOMPARE(grid.Row(0), QString("6,1,3,15,22,30,34,14"));
        QCOMPARE(grid.Headings(6), QString("Ball 5,Thunder"));
        QVERIFY(grid.view->isColumnHidden(0));

        window.Press("F13user", Qt::Key_Down);
        QVERIFY(!window.IsShown("F13grid") && window.IsShown("F13noentries"));
        QCOMPARE(window.Click("F13view", {QMessageBox::Ok}), QStringList{"There are no entries to view"});
        QCOMPARE(window.Click("F13edit", {QMessageBox::Ok}), QStringList{"There are no entries to edit"});
        QCOMPARE(window.Click("F13delete", {}), QStringList());
        window.Click("F13typemain");
        QCOMPARE(grid.Row(0) + ' ' + grid.Headings(7), QString("5,1,1,2,3,4,5,6 Ball 6"));
        QVERIFY(window.IsShown("F13grid") && !window.IsShown("F13noentries"));
    }

    void SelectedEntriesAreDeletedAndTheFocusStaysOnThePage()
    {
        Entries window;
        GridDriver grid = window.Grid();
        grid.Drag(3, 1);
        QCOMPARE(window.Click("F13view", {QMessageBox::Ok}), QStringList{"Select only ONE draw."});
        window.modals.WillPress(QMessageBox::Yes);
        grid.Press(Qt::Key_Delete);
        QCOMPARE(window.modals.TakeTexts(), QStringList{"Are you sure you want to\r\ndelete these entries?"});
        QCOMPARE(TestFolder::StoredNumbers("entries"), QString("1 5 6 7"));
        QCOMPARE(grid.Row(1), QString("7,2,7,15,22,38,41,49"));
        QCOMPARE(window.Click("F13delete", {QMessageBox::No, QMessageBox::Ok}),
                 QStringList({"Are you sure you want\r\nto delete this entry?", "Data delete has been aborted."}));
        QCOMPARE(grid.Rows(), 2);
        grid.Select("keys", 0, 1);
        window.modals.WillPress(QMessageBox::Yes);
        grid.Press(Qt::Key_Delete);
        window.modals.TakeTexts();
        QVERIFY(window.Find("Frame_13")->isAncestorOf(QApplication::focusWidget()) && !window.IsShown("F13grid"));
    }

    void ViewShowsNumbersAndDays()
    {
        Entries window;
        GridDriver grid = window.Grid();
        grid.Click(2);
        grid.Press(Qt::Key_Return);
        QCOMPARE(window.TextsOf("F19num", "123456"), QString("3 15 22 38 41 49"));
        QCOMPARE(window.ColoursOf("F19day", "0123456", QPalette::WindowText),
                 QString("#000000 #808080 #808080 #808080 #808080 #808080 #000000"));
        window.PressFocused(Qt::Key_Escape);
        QVERIFY(!window.IsShown("Frame_19") && window.IsShown("F13grid"));
    }

    /// An empty box counts as nothing, and comes first. What was put into a box without the keys, as by a tool for
    /// assistance, is checked before it is stored.
    void BackAsksWhetherToSave()
    {
        const QString range = u"Ball values must be between 1 and 49"_s;
        for (const auto& [typed, answer, told, row] :
             {std::tuple("", QMessageBox::Cancel, QString(), "4,15,22,38,41,49"),
              {"", QMessageBox::No, {}, "4,15,22,38,41,49"},
              {"", QMessageBox::Yes, u"The changes have been stored."_s, "0,4,15,22,38,41"},
              {"-5", QMessageBox::Yes, range, "4,15,22,38,41,49"}}) {
            Entries window;
            window.Edit(false, 3);
            window.Find<QLineEdit>("F20num_6")->setText(typed);
            window.modals.WillPress(answer);
            if (!told.isEmpty())
                window.modals.WillPress(QMessageBox::Ok);
            window.Click("F20back");
            QCOMPARE(window.modals.TakeTexts().mid(1).join(u'|'), told);
            QCOMPARE(window.IsShown("Frame_20"), told == range || answer == QMessageBox::Cancel);
            QCOMPARE(TestFolder::StoredRows("entries").value(3).section(u',', 3, 8), QString(row));
            if (told == range)
                QCOMPARE(window.FocusedName() + window.TextOf("F20num_6"), QString("F20num_6"));
        }
    }

    void StoredZeroHasItsColoursAndIsLeftWithoutAWord()
    {
        Entries window;
        AddEntry(entries, {8, 1, 1, {0, 15, 22, 38, 41, 49}, {}});
        AddEntry(entries, {9, 1, 2, {0, 15, 22, 30, 34, 0}, {}});
        for (const auto& [thunderball, row, colours] :
             {std::tuple(false, 5, "#FFFFFF #FFFF80"), {true, 1, "#000080 #FF0000"}}) {
            window.Edit(thunderball, row);
            QCOMPARE(window.ColoursOf("F20ball", "16", QPalette::Window), QString(colours));
            window.Press("F20num_1", Qt::Key_Tab);
            QCOMPARE(window.ColoursOf("F20ball", "16", QPalette::Window), QString(colours));
            window.Find("F20num_1")->setFocus();
            QCOMPARE(window.Click("F20back", {QMessageBox::No}),
                     QStringList{"Do you want to save the changes to this entry"});
            window.Click("F13view");
            QCOMPARE(window.ColoursOf("F19ball", "16", QPalette::Window), QString(colours));
            window.Click("F19back");
        }
    }

    /// A row is the row that was chosen, also where another tool has given three entries one number, and taken those of
    /// the others away.
    void ChosenEntryIsTheOneThatIsUsed()
    {
        Entries window;
        RunSql(UserDataPath, {}, "UPDATE entries SET EntryId = CASE WHEN Ball1 > 3 THEN NULL ELSE 7 END");
        window.OpenPage(3, 3);
        for (const int row : {1, 3}) {
            window.Edit(false, row);
            QCOMPARE(window.TextOf("F20num_1").toInt(), row + 1);
            window.Type("F20num_6", "48");
            window.Click("F20day_0");
            window.Click("F20store", {QMessageBox::Ok});
        }
        QString last;
        for (const QString& row : TestFolder::StoredRows("entries"))
            last += row.section(u',', 8, 9) + u' ';
        QCOMPARE(last, QString("49,-1 48,0 49,-1 48,0 6,-1 14,-1 49,-1 "));
        window.Grid().Select("click", 1, 3);
        window.Click("F13delete", {QMessageBox::Yes});
        QCOMPARE(window.Grid().Rows(), 2);
        QCOMPARE(window.Grid().Cell(0, 2) + window.Grid().Cell(1, 2), QString("17"));
    }

    void WhatAnotherCopyHasDeletedIsNotTouched()
    {
        Entries window;
        const auto deleteRow = [](const TableLayout& layout, int row) {
            InAnotherCopy(UserDataPath, {}, layout, [row](RecordSet& table) {
                table.Move(row);
                table.Delete();
            });
        };
        const QStringList gone{"An unexpected error has occured,\r\nplease try again."};
        deleteRow(EntriesTable(), 0);
        QCOMPARE(window.Click("F13view", {QMessageBox::Ok}), gone);
        window.Click("F19back");
        QCOMPARE(window.Click("F13edit", {QMessageBox::Ok}), gone);
        // The editor that has not shown an entry yet can be typed in and left.
        window.Type("F20num_1", "12");
        window.Press("F20num_1", Qt::Key_Tab);
        QCOMPARE(window.ColoursOf("F20num", "13", QPalette::Base), QString("#80FFFF #404040"));
        window.Click("F20back", {QMessageBox::No});
        window.Edit(false, 0);
        deleteRow(EntriesTable(), 0);
        QVERIFY(window.Click("F20store", {QMessageBox::Ok})
                    .value(0)
                    .startsWith("The changes could not be stored, because another copy"));
        QVERIFY(window.IsShown("Frame_20"));
        QCOMPARE(TestFolder::StoredNumbers("entries"), QString("3 4 5 6 7"));
        window.Click("F20back", {QMessageBox::No});
        // The entries of the user chosen before do not stand in for those of one that is gone.
        deleteRow(UsersTable(), 1);
        window.Press("F13user", Qt::Key_Down);
        QVERIFY(!window.IsShown("F13grid") && window.IsShown("F13noentries"));
    }
};

TAVENOR_TEST(EntriesPageTest)
#include "entries_page_test.moc"
