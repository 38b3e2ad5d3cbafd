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

void Open(TestWindow& window)
{
    window.Click("Button3");
    window.Click("Suboption2");
}

void Choose(TestWindow& window, const QString& list, int item)
{
    auto* combo = window.Find<QComboBox>(list);
    combo->setFocus();
    for (int steps = item - combo->currentIndex(); steps != 0; steps += steps < 0 ? 1 : -1)
        QTest::keyClick(combo, steps > 0 ? Qt::Key_Down : Qt::Key_Up);
}

void TypeNumbers(TestWindow& window, const QStringList& numbers)
{
    window.Type("F18ent_1", numbers.first());
    for (const QString& number : numbers.mid(1)) {
        window.PressFocused(Qt::Key_Return);
        QTest::keyClicks(QApplication::focusWidget(), number);
    }
    window.PressFocused(Qt::Key_Return);
}

QStringList Numbers(const TestWindow& window)
{
    QStringList numbers;
    for (int box = 1; box <= 6; ++box)
        numbers.append(window.TextOf(QString("F18ent_%1").arg(box)));
    return numbers;
}

void Store(TestWindow& window, const QStringList& messages)
{
    for (int box = 0; box < messages.size(); ++box)
        window.modals.WillPress(QMessageBox::Ok);
    window.Click("F18store");
    QCOMPARE(window.modals.TakeTexts(), messages);
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
        QCOMPARE(window.modals.TakeTexts(),
                 QStringList{"You cannot store entries until you have created a user profile."});
        QVERIFY(window.IsShown("Frame_11"));
        QVERIFY(!window.IsShown("Frame_18"));
        QVERIFY(window.IsShown("F11storenu"));
    }

    void EntryIsStoredSorted_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QStringList>("numbers");
        QTest::addColumn<QString>("row");
        QTest::newRow("Main") << 0 << QStringList{"40", "3", "17", "25", "9", "33"}
                              << "1,1,1,3,9,17,25,33,40,-1,0,0,0,0,0,-1";
        QTest::newRow("Thunderball") << 1 << QStringList{"30", "2", "15", "7", "21", "2"}
                                     << "1,1,2,2,7,15,21,30,2,-1,0,0,0,0,0,-1";
    }

    void EntryIsStoredSorted()
    {
        QFETCH(int, type);
        QFETCH(QStringList, numbers);
        QFETCH(QString, row);
        TestWindow window;
        AddUser(users, "Ann", 10);
        Open(window);
        QCOMPARE(window.TextOf("F18userdata_0"), QString("This user has no entries stored."));
        QCOMPARE(window.TextOf("F18userdata_1"), QString("Your limit is 10 entries."));
        QCOMPARE(window.TextOf("F18userdata_2"), QString("To alter limit, goto \"User Details\""));
        Choose(window, "F18type", type);
        QCOMPARE(window.TextOf("F18blab_6"), type == 0 ? QString("Ball 6") : QString("Thunderball"));
        TypeNumbers(window, numbers);
        QCOMPARE(window.FocusedName(), QString("F18store"));
        Store(window, {NoDay});
        QStringList sorted = row.split(',').mid(3, 6);
        QCOMPARE(Numbers(window), sorted);
        QCOMPARE(window.ColourOf("F18ent_6", QPalette::Base), type == 0 ? QColor("#FFFF80") : QColor("#FF0000"));
        QCOMPARE(window.ColourOf("F18ball_1", QPalette::Window), type == 0 ? QColor("#FFFFFF") : QColor("#000080"));
        window.Click("F18day_0");
        window.Find<QCheckBox>("F18day_6")->click();
        window.Find<QCheckBox>("F18day_0")->setChecked(true);
        Store(window, {Stored});
        QCOMPARE(TestFolder::StoredRows("entries"), QStringList{row});
        QCOMPARE(Numbers(window), QStringList(6, QString()));
        QCOMPARE(window.ColourOf("F18ent_1", QPalette::Base), QColor("#404040"));
        QVERIFY(!window.Find<QCheckBox>("F18day_6")->isChecked());
        QCOMPARE(window.Find<QComboBox>("F18type")->currentIndex(), type);
        QCOMPARE(window.TextOf("F18userdata_0"), QString("This user has 1 entries stored."));
    }

    void StoreRefusesWhatIsNoEntry_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QStringList>("numbers");
        QTest::newRow("two equal numbers") << 0 << QStringList{"1", "2", "3", "4", "5", "5"};
        QTest::newRow("an empty box") << 0 << QStringList{"1", "2", "3", "4", "5", ""};
        QTest::newRow("a fraction") << 0 << QStringList{"1", "2", "3", "4", "5", "6.5"};
        QTest::newRow("two equal Thunderball numbers") << 1 << QStringList{"1", "2", "3", "4", "4", "5"};
        QTest::newRow("no thunderball") << 1 << QStringList{"1", "2", "3", "4", "5", ""};
        QTest::newRow("half a thunderball") << 1 << QStringList{"1", "2", "3", "4", "5", "0.5"};
    }

    void StoreRefusesWhatIsNoEntry()
    {
        QFETCH(int, type);
        QFETCH(QStringList, numbers);
        TestWindow window;
        AddUser(users, "Ann", 10);
        Open(window);
        Choose(window, "F18type", type);
        TypeNumbers(window, numbers);
        window.Click("F18selallday");
        Store(window, {Refused});
        QCOMPARE(Numbers(window), numbers);
        QCOMPARE(TestFolder::StoredRows("entries"), QStringList());
    }

    void RefusedBoxIsToldByItsGame_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("message");
        QTest::newRow("Main") << 0 << "F18ent_6"
                              << "50"
                              << "Ball values must be between 1 and 49";
        QTest::newRow("Thunderball main") << 1 << "F18ent_5"
                                          << "35"
                                          << "Main ball values must be between 1 and 34";
        QTest::newRow("thunderball") << 1 << "F18ent_6"
                                     << "15"
                                     << "Thunderball value must be between 1 and 14";
    }

    void RefusedBoxIsToldByItsGame()
    {
        QFETCH(int, type);
        QFETCH(QString, box);
        QFETCH(QString, typed);
        QFETCH(QString, message);
        TestWindow window;
        AddUser(users, "Ann", 10);
        Open(window);
        Choose(window, "F18type", type);
        window.Type(box, typed);
        window.modals.WillPress(QMessageBox::Ok);
        window.Press(box, Qt::Key_Tab);
        QCOMPARE(window.modals.TakeTexts(), QStringList{message});
        QCOMPARE(window.TextOf(box), QString());
        QCOMPARE(window.FocusedName(), box);
    }

    void LimitIsKept()
    {
        TestWindow window;
        AddUser(users, "Ann", 1);
        AddUser(users, "Bob", 5);
        Open(window);
        TypeNumbers(window, {"1", "2", "3", "4", "5", "6"});
        window.Click("F18selallday");
        Store(window, {Stored, UpToLimit});
        TypeNumbers(window, {"1", "2", "3", "4", "5", "7"});
        window.Click("F18selallday");
        Store(window, {NotStored});
        QCOMPARE(Numbers(window), (QStringList{"1", "2", "3", "4", "5", "7"}));
        Choose(window, "F18user", 1);
        Store(window, {Stored});
        QCOMPARE(TestFolder::StoredRows("entries"),
                 (QStringList{"1,1,1,1,2,3,4,5,6,-1,-1,-1,-1,-1,-1,-1", "2,2,1,1,2,3,4,5,7,-1,-1,-1,-1,-1,-1,-1"}));
        window.modals.WillPress(QMessageBox::Ok);
        Choose(window, "F18user", 0);
        QCOMPARE(window.modals.TakeTexts(), QStringList{UpToLimit});
    }

    /// What another copy does to the users meanwhile never leads an entry to the wrong user, to nobody, or over a
    /// limit.
    void AnotherCopysChangesAreNoticed_data()
    {
        QTest::addColumn<QString>("change");
        QTest::addColumn<bool>("choosesAgain");
        QTest::addColumn<QString>("message");
        QTest::newRow("chosen user deleted")
            << "delete" << true << "The user could not be chosen, because another copy";
        QTest::newRow("user of the entry deleted")
            << "delete" << false << "The entry could not be stored, because another copy";
        QTest::newRow("limit lowered") << "lower" << false
                                       << "The entry could not be stored, because the user's spend limit";
    }

    void AnotherCopysChangesAreNoticed()
    {
        QFETCH(QString, change);
        QFETCH(bool, choosesAgain);
        QFETCH(QString, message);
        TestWindow window;
        AddUser(users, "Ann", 10);
        AddUser(users, "Bob", 10);
        Open(window);
        if (!choosesAgain)
            Choose(window, "F18user", 1);
        TypeNumbers(window, {"1", "2", "3", "4", "5", "6"});
        window.Click("F18selallday");
        InAnotherCopy(UserDataPath, {}, UsersTable(), [&change](RecordSet& table) {
            table.MoveLast();
            if (change == "delete")
                table.Delete();
            else
                ChangeUser(table, "Bob", 0);
        });
        window.modals.WillPress(QMessageBox::Ok);
        if (choosesAgain)
            Choose(window, "F18user", 1);
        else
            window.Click("F18store");
        QVERIFY(window.modals.TakeTexts().value(0).startsWith(message));
        QCOMPARE(TestFolder::StoredRows("entries"), QStringList());
        if (choosesAgain)
            QCOMPARE(window.Find<QComboBox>("F18user")->currentText(), QString("Ann"));
        else
            QCOMPARE(Numbers(window).join(' '), QString("1 2 3 4 5 6"));
    }

    void OtherGameEmptiesTheBoxes()
    {
        TestWindow window;
        AddUser(users, "Ann", 10);
        Open(window);
        const QStringList typed{"1", "2", "3", "4", "5", "6"};
        TypeNumbers(window, typed);
        window.Click("F18selallday");
        window.Find<QComboBox>("F18type")->activated(0);
        QCOMPARE(Numbers(window), typed);
        QVERIFY(window.Find<QCheckBox>("F18day_3")->isChecked());
        Open(window);
        QCOMPARE(Numbers(window), typed);
        QVERIFY(!window.Find<QCheckBox>("F18day_3")->isChecked());
        Choose(window, "F18type", 1);
        QCOMPARE(Numbers(window), QStringList(6, QString()));
        TypeNumbers(window, typed);
        window.Click("F18reset");
        QCOMPARE(Numbers(window), QStringList(6, QString()));
        QCOMPARE(window.FocusedName(), QString("F18ent_1"));
        TypeNumbers(window, typed);
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
