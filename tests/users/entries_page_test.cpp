#include "support/grid_driver.h"
#include "support/stored_draws.h"

#include "users/user_records.h"
#include "users/user_tables.h"

#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>

namespace {

const QString Gone = QStringLiteral("An unexpected error has occured,\r\nplease try again.");
const QString Many = QStringLiteral("Are you sure you want to\r\ndelete these entries?");
const QString Stored = QStringLiteral("The changes have been stored.");
const QString SaveQuestion = QStringLiteral("Do you want to save the changes to this entry");

/// Stores two users: Ann with five Main entries, each beginning with its number and played on Monday and Sunday, and
/// one Thunderball entry; Bob with one Main entry. Opens the page, where the entries 1 to 7 are listed for their users.
void OpenWithEntries(TestWindow& window)
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
    window.Click("Button3");
    window.Click("Suboption3");
}

QStringList StoredNumbers()
{
    QStringList numbers;
    for (const QString& row : TestFolder::StoredRows("entries"))
        numbers.append(row.section(u',', 0, 0));
    return numbers;
}

QString StoredEntry(int number)
{
    for (const QString& row : TestFolder::StoredRows("entries"))
        if (row.section(u',', 0, 0) == QString::number(number))
            return row.section(u',', 1);
    return {};
}

void Edit(TestWindow& window, bool thunderball, int row)
{
    if (thunderball)
        window.Click("F13typethunder");
    GridDriver(window, "F13grid").Click(row);
    window.Click("F13edit");
}

QStringList Store(TestWindow& window)
{
    window.modals.WillPress(QMessageBox::Ok);
    window.Click("F20store");
    return window.modals.TakeTexts();
}

} // namespace

class EntriesPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void WithoutUsersTheUserPageIsShown()
    {
        TestWindow window;
        window.modals.WillPress(QMessageBox::Ok);
        window.Window().ChooseMenu(3, 3);
        QCOMPARE(window.modals.TakeTexts(),
                 QStringList{"You cannot view or edit entries until you have created a user profile."});
        QVERIFY(window.IsShown("Frame_11") && !window.IsShown("Frame_13"));
    }

    void ListsTheEntriesOfOneUserAndGame()
    {
        TestWindow window;
        OpenWithEntries(window);
        GridDriver grid(window, "F13grid");
        QVERIFY(window.Find<QRadioButton>("F13typemain")->isChecked());
        QCOMPARE(grid.Rows(), 5);
        QCOMPARE(grid.Row(4), QString("7,5,7,15,22,38,41,49"));
        QCOMPARE(grid.Selected(), QString("0-0"));
        QVERIFY(grid.view->isColumnHidden(0));
        const QModelIndex entryCell = grid.view->model()->index(1, 1);
        QCOMPARE(entryCell.data(Qt::BackgroundRole).value<QColor>(), QColor("#5B74D7"));
        QCOMPARE(entryCell.data(Qt::ForegroundRole).value<QColor>(), QColor(Qt::black));
        QCOMPARE(grid.view->model()->headerData(1, Qt::Horizontal).toString(), QString("Entry"));
        QCOMPARE(grid.view->model()->headerData(7, Qt::Horizontal).toString(), QString("Ball 6"));

        window.Click("F13typethunder");
        QCOMPARE(grid.Rows(), 1);
        QCOMPARE(grid.Row(0), QString("6,1,3,15,22,30,34,14"));
        QCOMPARE(grid.view->model()->headerData(7, Qt::Horizontal).toString(), QString("Thunder"));
        QVERIFY(grid.view->isColumnHidden(0));

        QTest::keyClick(window.Find("F13user"), Qt::Key_Down);
        QCOMPARE(window.Find<QComboBox>("F13user")->currentText(), QString("Bob"));
        QVERIFY(!window.IsShown("F13grid") && window.IsShown("F13noentries"));
        QCOMPARE(window.TextOf("F13noentries"), QString("There are no entries of this type, for this user."));
        window.Click("F13typemain");
        QCOMPARE(grid.Row(0), QString("5,1,1,2,3,4,5,6"));
        QVERIFY(window.IsShown("F13grid") && !window.IsShown("F13noentries"));
    }

    void NothingToActOnIsTold()
    {
        TestWindow window;
        OpenWithEntries(window);
        QTest::keyClick(window.Find("F13user"), Qt::Key_Down);
        window.Click("F13typethunder");
        window.modals.WillPress(QMessageBox::Ok);
        window.Click("F13view");
        window.modals.WillPress(QMessageBox::Ok);
        window.Click("F13edit");
        window.Click("F13delete");
        QCOMPARE(window.modals.TakeTexts(),
                 QStringList({"There are no entries to view", "There are no entries to edit"}));
        QVERIFY(window.modals.AllCame());
    }

    void SelectedEntriesAreDeleted_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::newRow("downwards") << "drag" << 1 << 3;
        QTest::newRow("upwards") << "drag" << 3 << 1;
        QTest::newRow("Shift with Up") << "keys" << 3 << 1;
    }

    void SelectedEntriesAreDeleted()
    {
        QFETCH(QString, way);
        QFETCH(int, from);
        QFETCH(int, to);
        TestWindow window;
        OpenWithEntries(window);
        GridDriver grid(window, "F13grid");
        grid.Select(way, from, to);
        window.modals.WillPress(QMessageBox::Ok);
        window.Click("F13view");
        QCOMPARE(window.modals.TakeTexts(), QStringList{"Select only ONE draw."});
        window.modals.WillPress(QMessageBox::Yes);
        grid.Press(Qt::Key_Delete);
        QCOMPARE(window.modals.TakeTexts(), QStringList{Many});
        QCOMPARE(StoredNumbers(), QStringList({"1", "5", "6", "7"}));
        QCOMPARE(grid.Rows(), 2);
        QCOMPARE(grid.Row(1), QString("7,2,7,15,22,38,41,49"));
        window.modals.WillPress(QMessageBox::No);
        window.modals.WillPress(QMessageBox::Ok);
        window.Click("F13delete");
        QCOMPARE(window.modals.TakeTexts(),
                 QStringList({"Are you sure you want\r\nto delete this entry?", "Data delete has been aborted."}));
        QCOMPARE(StoredNumbers().size(), 4);
    }

    void ViewShowsNumbersAndDays()
    {
        TestWindow window;
        OpenWithEntries(window);
        GridDriver(window, "F13grid").Click(2);
        GridDriver(window, "F13grid").Press(Qt::Key_Return);
        QCOMPARE(window.TextOf("F19user"), QString("Ann"));
        QCOMPARE(window.TextOf("F19type"), QString("Main"));
        QVERIFY(!window.IsShown("F19thunderlabel"));
        const QStringList numbers{"3", "15", "22", "38", "41", "49"};
        const QStringList colours{"#FFFFFF", "#80FFFF", "#FF8080", "#80FF80", "#FFFF80", "#FFFF80"};
        for (int ball = 1; ball <= 6; ++ball) {
            QCOMPARE(window.TextOf(QString("F19num_%1").arg(ball)), numbers[ball - 1]);
            QCOMPARE(window.ColourOf(QString("F19ball_%1").arg(ball), QPalette::Window), QColor(colours[ball - 1]));
        }
        for (int day = 0; day < 7; ++day)
            QCOMPARE(window.ColourOf(QString("F19day_%1").arg(day), QPalette::WindowText),
                     day == 0 || day == 6 ? QColor("#000000") : QColor("#808080"));
        window.PressFocused(Qt::Key_Escape);
        QVERIFY(!window.IsShown("Frame_19") && window.IsShown("F13grid"));

        window.Click("F13typethunder");
        window.Click("F13view");
        QCOMPARE(window.TextOf("F19type"), QString("Thunderball"));
        QVERIFY(window.IsShown("F19thunderlabel"));
        QCOMPARE(window.ColourOf("F19ball_5", QPalette::Window), QColor("#000080"));
        QCOMPARE(window.ColourOf("F19ball_6", QPalette::Window), QColor("#FF0000"));
    }

    void EditedMainEntryIsStoredInOrder()
    {
        TestWindow window;
        OpenWithEntries(window);
        Edit(window, false, 0);
        QCOMPARE(window.TextOf("F20num_2"), QString("15"));
        QCOMPARE(window.ColourOf("F20num_2", QPalette::Base), QColor("#80FFFF"));
        QVERIFY(window.Find<QCheckBox>("F20day_6")->isChecked());
        window.Type("F20num_1", "40");
        window.PressFocused(Qt::Key_Return);
        QTest::keyClicks(QApplication::focusWidget(), "3");
        window.Click("F20day_0");
        window.Click("F20day_2");
        QCOMPARE(Store(window), QStringList{Stored});
        QCOMPARE(StoredEntry(1), QString("1,1,3,22,38,40,41,49,0,0,-1,0,0,0,-1"));
        QCOMPARE(GridDriver(window, "F13grid").Row(0), QString("1,1,3,22,38,40,41,49"));
        QVERIFY(!window.IsShown("Frame_20") && window.IsShown("Frame_13"));
    }

    void EditedThunderballEntryKeepsItsThunderballApart()
    {
        TestWindow window;
        OpenWithEntries(window);
        Edit(window, true, 0);
        QVERIFY(window.IsShown("F20thunderlabel"));
        const QStringList numbers{"34", "30", "22", "15", "3", "3"};
        for (int box = 1; box <= 6; ++box)
            window.Type(QString("F20num_%1").arg(box), numbers[box - 1]);
        window.PressFocused(Qt::Key_Return);
        QCOMPARE(window.FocusedName(), QString("F20store"));
        QCOMPARE(window.ColourOf("F20ball_6", QPalette::Window), QColor("#FF0000"));
        QCOMPARE(Store(window), QStringList{Stored});
        QCOMPARE(StoredEntry(6), QString("1,2,3,15,22,30,34,3,-1,0,0,0,0,0,-1"));
        QCOMPARE(GridDriver(window, "F13grid").Rows(), 1);
        QVERIFY(window.Find<QRadioButton>("F13typethunder")->isChecked());
    }

    void EqualNumbersAreNotStored()
    {
        TestWindow window;
        OpenWithEntries(window);
        const QStringList before = TestFolder::StoredRows("entries");
        Edit(window, false, 0);
        window.Type("F20num_1", "49");
        QCOMPARE(Store(window), QStringList{"Two or more balls have the same value,\r\nplease retry."});
        QVERIFY(window.IsShown("Frame_20"));
        window.modals.WillPress(QMessageBox::No);
        window.Click("F20back");
        Edit(window, true, 0);
        window.modals.TakeTexts();
        window.Type("F20num_1", "34");
        QCOMPARE(Store(window).value(0), QString("Two or more main balls have the same value,\r\nplease retry."));
        QCOMPARE(TestFolder::StoredRows("entries"), before);
    }

    void EmptyBoxIsStoredAsNothing()
    {
        TestWindow window;
        OpenWithEntries(window);
        Edit(window, false, 1);
        window.Type("F20num_6", "");
        QCOMPARE(Store(window), QStringList{Stored});
        QCOMPARE(StoredEntry(2), QString("1,1,0,2,15,22,38,41,-1,0,0,0,0,0,-1"));
    }

    void RefusedNumberIsToldEmptiedAndFocused_data()
    {
        QTest::addColumn<bool>("thunderball");
        QTest::addColumn<int>("box");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("message");
        QTest::newRow("50") << false << 6 << "50"
                            << "Ball values must be between 1 and 49";
        QTest::newRow("a Thunderball number of 35") << true << 2 << "35"
                                                    << "Main ball values must be between 1 and 34";
        QTest::newRow("a thunderball of 15") << true << 6 << "15"
                                             << "Main ball values must be between 1 and 14";
        QTest::newRow("half a thunderball") << true << 6 << "0.5"
                                            << "Main ball values must be between 1 and 14";
    }

    void RefusedNumberIsToldEmptiedAndFocused()
    {
        QFETCH(bool, thunderball);
        QFETCH(int, box);
        QFETCH(QString, typed);
        QFETCH(QString, message);
        TestWindow window;
        OpenWithEntries(window);
        Edit(window, thunderball, 0);
        const QString name = QString("F20num_%1").arg(box);
        window.Type(name, typed);
        window.modals.WillPress(QMessageBox::Ok);
        window.Press(name, Qt::Key_Tab);
        QCOMPARE(window.modals.TakeTexts(), QStringList{message});
        QCOMPARE(window.TextOf(name), QString());
        QCOMPARE(window.FocusedName(), name);
        QCOMPARE(window.ColourOf(name, QPalette::Base), QColor("#404040"));
    }

    void BackAsksWhetherToSave_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("answer");
        QTest::addColumn<QString>("first");
        QTest::addColumn<bool>("stays");
        QTest::newRow("yes") << QMessageBox::Yes << "13" << false;
        QTest::newRow("no") << QMessageBox::No << "1" << false;
        QTest::newRow("cancel") << QMessageBox::Cancel << "1" << true;
    }

    void BackAsksWhetherToSave()
    {
        QFETCH(QMessageBox::StandardButton, answer);
        QFETCH(QString, first);
        QFETCH(bool, stays);
        TestWindow window;
        OpenWithEntries(window);
        Edit(window, false, 0);
        window.Type("F20num_1", "13");
        window.modals.WillPress(answer);
        if (answer == QMessageBox::Yes)
            window.modals.WillPress(QMessageBox::Ok);
        window.Click("F20back");
        const QStringList said = window.modals.TakeTexts();
        QCOMPARE(said, answer == QMessageBox::Yes ? QStringList({SaveQuestion, Stored}) : QStringList{SaveQuestion});
        QCOMPARE(StoredEntry(1).section(u',', 2, 2), first);
        QCOMPARE(window.IsShown("Frame_20"), stays);
        QVERIFY(window.modals.AllCame());
    }

    void EntryDeletedByAnotherCopyIsNotChanged()
    {
        TestWindow window;
        OpenWithEntries(window);
        Edit(window, false, 1);
        const auto deleteEntry = [](std::int64_t number) {
            InAnotherCopy(UserDataPath, {}, EntriesTable(), [number](RecordSet& table) {
                FindRecord(table, number);
                table.Delete();
            });
        };
        deleteEntry(2);
        QVERIFY(Store(window).value(0).startsWith("The changes could not be stored, because another copy"));
        QVERIFY(window.IsShown("Frame_20"));
        window.modals.WillPress(QMessageBox::No);
        window.Click("F20back");
        deleteEntry(1);
        GridDriver(window, "F13grid").Click(0);
        window.modals.TakeTexts();
        window.modals.WillPress(QMessageBox::Ok);
        window.Click("F13view");
        QCOMPARE(window.modals.TakeTexts(), QStringList{Gone});
        QCOMPARE(StoredNumbers(), QStringList({"3", "4", "5", "6", "7"}));
    }
};

TAVENOR_TEST_MAIN(EntriesPageTest)
#include "entries_page_test.moc"
