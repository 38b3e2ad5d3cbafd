#include "support/stored_draws.h"
#include "support/test_window.h"

#include "users/draw_day_window.h"
#include "users/user_records.h"
#include "users/user_tables.h"

#include <QCheckBox>
#include <QComboBox>

namespace {

const QString Refused =
    QStringLiteral("Error detected in the data that you entered.\r\nPlease re-check and press 'Store' again.");
const QString UpToLimit =
    QStringLiteral("This user is up to the spend limit.\r\nGo to 'User Details' to change the spend "
                   "limit, or choose another user.");
const QString NotStored =
    QStringLiteral("This user is up to the spend limit, so this entry has NOT been stored.\r\nGo to 'User Details' to "
                   "change the spend limit, or choose another user.");
const QString Stored = QStringLiteral("This entry has been stored.");
const QString NoDay = QStringLiteral("You must specify at least ONE draw day. Please retry.");

/// Stores users with their limits and opens the page.
void Open(TestWindow& window, const QList<std::pair<QString, int>>& newUsers = {})
{
    for (const auto& [name, limit] : newUsers)
        AddUser(users, name, limit);
    window.OpenPage(3, 2);
}

void Choose(TestWindow& window, const QString& list, int item)
{
    auto* combo = window.Find<QComboBox>(list);
    combo->setFocus();
    for (int steps = item - combo->currentIndex(); steps != 0; steps += steps < 0 ? 1 : -1)
        QTest::keyClick(combo, steps > 0 ? Qt::Key_Down : Qt::Key_Up);
}

QStringList Numbers(const TestWindow& window)
{
    QStringList numbers;
    for (int box = 1; box <= 6; ++box)
        numbers.append(window.TextOf(QString("F18ent_%1").arg(box)));
    return numbers;
}

void CompareColours(const TestWindow& window, const QStringList& colours)
{
    for (int box = 1; box <= 6; ++box) {
        QCOMPARE(window.ColourOf(QString("F18ent_%1").arg(box), QPalette::Base), QColor(colours[box - 1]));
        QCOMPARE(window.ColourOf(QString("F18ball_%1").arg(box), QPalette::Window), QColor(colours[box - 1]));
    }
}

} // namespace

class AddEntriesPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void WithoutUsersTheUserPageOpens()
    {
        TestWindow window;
        window.modals.WillPress(QMessageBox::Ok);
        Open(window);
        const QList<SeenBox> seen = window.modals.TakeSeen();
        QCOMPARE(seen.size(), 1);
        QCOMPARE(seen[0].text, QString("You cannot store entries until you have created a user profile."));
        QCOMPARE(seen[0].title, QString("Tavenor 3"));
        QCOMPARE(seen[0].icon, QMessageBox::NoIcon);
        QVERIFY(window.IsShown("F11storenu") && !window.IsShown("Frame_18"));
    }

    void EntryIsStoredSorted_data()
    {
        QTest::addColumn<QStringList>("numbers");
        QTest::addColumn<QString>("row");
        QTest::addColumn<QStringList>("colours");
        QTest::newRow("Main") << QStringList{"40", "3", "17", "25", "9", "33"}
                              << "1,1,1,3,9,17,25,33,40,-1,0,0,0,0,0,-1"
                              << QStringList{"#FFFFFF", "#FFFFFF", "#80FFFF", "#FF8080", "#80FF80", "#FFFF80"};
        QTest::newRow("Thunderball") << QStringList{"30", "2", "15", "7", "21", "2"}
                                     << "1,1,2,2,7,15,21,30,2,-1,0,0,0,0,0,-1"
                                     << (QStringList(5, "#000080") << "#FF0000");
    }

    void EntryIsStoredSorted()
    {
        QFETCH(QStringList, numbers);
        QFETCH(QString, row);
        QFETCH(QStringList, colours);
        const int type = row.section(',', 2, 2).toInt() - 1;
        TestWindow window;
        Open(window, {{"Ann", 10}});
        QCOMPARE(window.TextOf("F18userdata_0"), QString("This user has no entries stored."));
        QCOMPARE(window.TextOf("F18userdata_1"), QString("Your limit is 10 entries."));
        QCOMPARE(window.TextOf("F18userdata_2"), QString("To alter limit, goto \"User Details\""));
        Choose(window, "F18type", type);
        QCOMPARE(window.TextOf("F18blab_6"), type == 0 ? QString("Ball 6") : QString("Thunderball"));
        window.TypeInTurn("F18ent_1", numbers);
        QCOMPARE(window.FocusedName(), QString("F18store"));
        QCOMPARE(window.Click("F18store", {QMessageBox::Ok}), QStringList{NoDay});
        QCOMPARE(Numbers(window).join(','), row.section(',', 3, 8));
        CompareColours(window, colours);
        window.Find<QCheckBox>("F18day_0")->click();
        window.Find<QCheckBox>("F18day_6")->click();
        QCOMPARE(window.Click("F18store", {QMessageBox::Ok}), QStringList{Stored});
        QCOMPARE(TestFolder::StoredRows("entries"), QStringList{row});
        QCOMPARE(Numbers(window), QStringList(6, QString()));
        CompareColours(window, QStringList(6, "#404040"));
        QVERIFY(!window.Find<QCheckBox>("F18day_6")->isChecked());
        QCOMPARE(window.Find<QComboBox>("F18type")->currentIndex(), type);
        QCOMPARE(window.TextOf("F18userdata_0"), QString("This user has 1 entries stored."));
    }

    /// A box that is refused says so when it is left, all others when they are stored.
    void RefusedNumbersAreTold_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QStringList>("numbers");
        QTest::addColumn<QStringList>("boxMessage");
        const auto row = [](const char* name, int type, const QStringList& numbers,
                            const QStringList& boxMessage = {}) {
            QTest::newRow(name) << type << numbers << boxMessage;
        };
        row("two equal numbers", 0, {"1", "2", "3", "4", "5", "5"});
        row("an empty box", 0, {"1", "2", "3", "4", "5", ""});
        row("50", 0, {"1", "2", "3", "4", "5", "50"}, {"Ball values must be between 1 and 49"});
        row("two equal Thunderball numbers", 1, {"1", "2", "3", "4", "4", "5"});
        row("half a thunderball", 1, {"1", "2", "3", "4", "5", "0.5"});
        row("a main number of 35", 1, {"1", "2", "3", "4", "35"}, {"Main ball values must be between 1 and 34"});
        row("15", 1, {"1", "2", "3", "4", "5", "15"}, {"Thunderball value must be between 1 and 14"});
    }

    void RefusedNumbersAreTold()
    {
        QFETCH(int, type);
        QFETCH(QStringList, numbers);
        QFETCH(QStringList, boxMessage);
        TestWindow window;
        Open(window, {{"Ann", 10}});
        Choose(window, "F18type", type);
        if (!boxMessage.isEmpty())
            window.modals.WillPress(QMessageBox::Ok);
        window.TypeInTurn("F18ent_1", numbers);
        QCOMPARE(window.modals.TakeTexts(), boxMessage);
        const QString last = QString("F18ent_%1").arg(numbers.size());
        QCOMPARE(window.FocusedName(), boxMessage.isEmpty() ? "F18store" : last);
        QCOMPARE(window.TextOf(last), boxMessage.isEmpty() ? numbers.last() : QString());
        window.Click("F18selallday");
        QCOMPARE(window.Click("F18store", {QMessageBox::Ok}), QStringList{Refused});
        QCOMPARE(window.TextOf("F18ent_1"), QString("1"));
        QCOMPARE(TestFolder::StoredRows("entries"), QStringList());
    }

    void LimitIsKept()
    {
        TestWindow window;
        Open(window, {{"Ann", 1}, {"Bob", 5}});
        window.TypeInTurn("F18ent_1", {"1", "2", "3", "4", "5", "6"});
        window.Click("F18selallday");
        QCOMPARE(window.Click("F18store", {QMessageBox::Ok, QMessageBox::Ok}), (QStringList{Stored, UpToLimit}));
        window.TypeInTurn("F18ent_1", {"1", "2", "3", "4", "5", "7"});
        window.Click("F18selallday");
        QCOMPARE(window.Click("F18store", {QMessageBox::Ok}), QStringList{NotStored});
        QCOMPARE(Numbers(window), (QStringList{"1", "2", "3", "4", "5", "7"}));
        Choose(window, "F18user", 1);
        QCOMPARE(window.Click("F18store", {QMessageBox::Ok}), QStringList{Stored});
        QCOMPARE(TestFolder::StoredRows("entries"),
                 (QStringList{"1,1,1,1,2,3,4,5,6,-1,-1,-1,-1,-1,-1,-1", "2,2,1,1,2,3,4,5,7,-1,-1,-1,-1,-1,-1,-1"}));
        window.modals.WillPress(QMessageBox::Ok);
        Choose(window, "F18user", 0);
        QCOMPARE(window.modals.TakeTexts(), QStringList{UpToLimit});
    }

    /// What another copy does to the users meanwhile never leads an entry to the wrong user, to nobody, or over a
    /// limit.
    void AnotherCopysChangesAreNoticed()
    {
        TestWindow window;
        Open(window, {{"Ann", 10}, {"Bob", 10}});
        Choose(window, "F18user", 1);
        window.TypeInTurn("F18ent_1", {"1", "2", "3", "4", "5", "6"});
        window.Click("F18selallday");
        for (const bool deletes : {false, true}) {
            InAnotherCopy(UserDataPath, {}, UsersTable(), [deletes](RecordSet& table) {
                table.MoveLast();
                deletes ? table.Delete() : ChangeUser(table, "Bob", 0);
            });
            const QString told = window.Click("F18store", {QMessageBox::Ok}).value(0);
            QVERIFY(told.startsWith(deletes ? "The entry could not be stored, because another copy"
                                            : "The entry could not be stored, because the user's spend limit"));
        }
        QCOMPARE(TestFolder::StoredRows("entries"), QStringList());
        QCOMPARE(Numbers(window).join(' '), QString("1 2 3 4 5 6"));
        Choose(window, "F18user", 0);
        window.modals.WillPress(QMessageBox::Ok);
        Choose(window, "F18user", 1);
        QVERIFY(window.modals.TakeTexts().value(0).startsWith("The user could not be chosen, because another copy"));
        QCOMPARE(window.Find<QComboBox>("F18user")->currentText(), QString("Ann"));
    }

    void OtherGameEmptiesTheBoxes()
    {
        TestWindow window;
        Open(window, {{"Ann", 10}});
        const QStringList typed{"1", "2", "3", "4", "5", "6"};
        window.TypeInTurn("F18ent_1", typed);
        window.Click("F18selallday");
        window.Find<QComboBox>("F18type")->activated(0);
        QCOMPARE(Numbers(window), typed);
        QVERIFY(window.Find<QCheckBox>("F18day_3")->isChecked());
        Open(window);
        QCOMPARE(Numbers(window), typed);
        QVERIFY(!window.Find<QCheckBox>("F18day_3")->isChecked());
        Choose(window, "F18type", 1);
        QCOMPARE(Numbers(window), QStringList(6, QString()));
        window.TypeInTurn("F18ent_1", typed);
        window.Click("F18reset");
        QCOMPARE(Numbers(window), QStringList(6, QString()));
        QCOMPARE(window.FocusedName(), QString("F18ent_1"));
        window.TypeInTurn("F18ent_1", typed);
        Open(window);
        QCOMPARE(Numbers(window), QStringList(6, QString()));
        QCOMPARE(window.TextOf("F18blab_6"), QString("Ball 6"));
    }

    void DrawDayWindowOffersStoreWithADayOnly()
    {
        DaySet days{true, false, false, false, false, false, false};
        DrawDayWindow frmday(days, nullptr);
        frmday.show();
        auto* store = frmday.findChild<QWidget*>("store");
        auto* tuesday = frmday.findChild<QCheckBox*>("check1_1");
        QCOMPARE(frmday.windowTitle(), QString("Tavenor 3 --- Select Draw Day"));
        QVERIFY(!store->isVisible());
        tuesday->click();
        QVERIFY(store->isVisible());
        tuesday->click();
        QVERIFY(!store->isVisible());
        PressIn(frmday, "selall");
        frmday.reject();
        QCOMPARE(days, (DaySet{true, false, false, false, false, false, false}));
        frmday.show();
        PressIn(frmday, "store");
        QCOMPARE(days, (DaySet{true, true, true, true, true, true, true}));
    }
};

TAVENOR_TEST_MAIN(AddEntriesPageTest)
#include "add_entries_page_test.moc"
