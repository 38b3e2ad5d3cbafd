#include "support/test_window.h"

#include "platform/month_calendar.h"

#include <QComboBox>
#include <QToolButton>

namespace {

const QString Refused =
    QStringLiteral("Error detected in the data that you entered.\r\nPlease re-check and press 'Store' again.");
const QString MainStored = QStringLiteral("The new main draw data has been stored.");
const QString ThunderballStored = QStringLiteral("The new Thunderball draw data has been stored.");
const QString NotStored = QStringLiteral("The data has NOT been stored.");
const QDate Saturday(2026, 11, 21);

class Pages
{
public:
    explicit Pages(TestWindow& testWindow, bool thunderball) : window(testWindow)
    {
        window.Click("Button1");
        window.Click(thunderball ? "Suboption2" : "Suboption1");
        field = thunderball ? "F7TBall1_%1" : "F6MBall1_%1";
        store = thunderball ? "F7Store" : "F6Store";
        window.Find<MonthCalendar>(thunderball ? "F7cal" : "F6Cal")->setSelectedDate(Saturday);
    }

    /// Types the balls field by field in draw order (the extra ball last), as the Enter key leads.
    void TypeBalls(const QStringList& balls)
    {
        window.Type(field.arg(1), balls.first());
        for (const QString& ball : balls.mid(1)) {
            window.PressFocused(Qt::Key_Return);
            QTest::keyClicks(QApplication::focusWidget(), ball);
        }
        window.PressFocused(Qt::Key_Return);
    }

    void Store(const QString& expected)
    {
        window.modals.WillPress(QMessageBox::Ok);
        window.Click(store);
        QCOMPARE(window.modals.TakeTexts(), QStringList{expected});
    }

    TestWindow& window;
    QString field;
    QString store;
};

} // namespace

class AddDrawPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FieldTakesTheColoursOfItsBall_data()
    {
        QTest::addColumn<bool>("thunderball");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QColor>("ball");
        QTest::addColumn<QColor>("digits");
        const QColor black("#000000");
        const QColor white("#FFFFFF");
        QTest::newRow("7 is white") << false << 1 << "7" << QColor("#FFFFFF") << black;
        QTest::newRow("15 is light cyan") << false << 1 << "15" << QColor("#80FFFF") << black;
        QTest::newRow("22 is light red") << false << 1 << "22" << QColor("#FF8080") << black;
        QTest::newRow("38 is light green") << false << 1 << "38" << QColor("#80FF80") << black;
        QTest::newRow("41 is light yellow") << false << 1 << "41" << QColor("#FFFF80") << black;
        QTest::newRow("a bonus has its band") << false << 0 << "49" << QColor("#FFFF80") << black;
        QTest::newRow("a fraction above 9 is in the second band") << false << 1 << "9.5" << QColor("#80FFFF") << black;
        QTest::newRow("left empty") << false << 2 << "" << QColor("#404040") << white;
        QTest::newRow("a Thunderball main ball") << true << 1 << "34" << QColor("#000080") << white;
        QTest::newRow("a thunderball") << true << 0 << "14" << QColor("#FF0000") << black;
        QTest::newRow("half a thunderball passes the field") << true << 0 << "0.5" << QColor("#FF0000") << black;
    }

    void FieldTakesTheColoursOfItsBall()
    {
        QFETCH(bool, thunderball);
        QFETCH(int, index);
        QFETCH(QString, typed);
        QFETCH(QColor, ball);
        QFETCH(QColor, digits);
        TestWindow window;
        const Pages page(window, thunderball);
        const QString field = page.field.arg(index);
        window.Type(field, typed);
        window.Press(field, Qt::Key_Tab);
        QCOMPARE(window.ColourOf(field, QPalette::Base), ball);
        QCOMPARE(window.ColourOf(field, QPalette::Text), digits);
        QCOMPARE(
            window.ColourOf((thunderball ? QString("F7TBall_%1") : QString("F6MBall_%1")).arg(index), QPalette::Window),
            ball);
        QVERIFY(window.modals.AllCame());
    }

    void RefusedFieldIsToldEmptiedAndFocused_data()
    {
        QTest::addColumn<bool>("thunderball");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("message");
        const QString mainRange = "Ball values must be between 1 and 49";
        const QString thunderballMain = "Main ball values must be between 1 and 34";
        const QString thunderballRange = "Thunderball value must be between 1 and 14";
        QTest::newRow("50") << false << 1 << "50" << mainRange;
        QTest::newRow("0") << false << 3 << "0" << mainRange;
        QTest::newRow("letters count as 0") << false << 1 << "abc" << mainRange;
        QTest::newRow("a bonus of 50") << false << 0 << "50" << mainRange;
        QTest::newRow("49.5") << false << 6 << "49.5" << mainRange;
        QTest::newRow("a main ball of 35") << true << 5 << "35" << thunderballMain;
        QTest::newRow("a thunderball of 15") << true << 0 << "15" << thunderballRange;
        QTest::newRow("a thunderball of 0") << true << 0 << "0" << thunderballRange;
    }

    void RefusedFieldIsToldEmptiedAndFocused()
    {
        QFETCH(bool, thunderball);
        QFETCH(int, index);
        QFETCH(QString, typed);
        QFETCH(QString, message);
        TestWindow window;
        const Pages page(window, thunderball);
        const QString field = page.field.arg(index);
        window.Type(field, typed);
        window.modals.WillPress(QMessageBox::Ok);
        window.Press(field, Qt::Key_Tab);
        const QList<SeenBox> seen = window.modals.TakeSeen();
        QCOMPARE(seen.size(), 1);
        QCOMPARE(seen[0].text, message);
        QCOMPARE(seen[0].title, QString("Tavenor 3"));
        QCOMPARE(seen[0].icon, QMessageBox::NoIcon);
        QCOMPARE(window.TextOf(field), QString());
        QCOMPARE(window.FocusedName(), field);
        QCOMPARE(window.ColourOf(field, QPalette::Base), QColor("#404040"));
    }

    void RefusedFieldKeepsTheClickFromStore()
    {
        TestWindow window;
        const Pages page(window, false);
        window.Type("F6MBall1_1", "77");
        window.modals.WillPress(QMessageBox::Ok);
        window.Click("F6Store");
        QCOMPARE(window.modals.TakeTexts(), QStringList{"Ball values must be between 1 and 49"});
        QCOMPARE(window.FocusedName(), QString("F6MBall1_1"));
        QVERIFY(!window.Find<QPushButton>("F6Store")->isDown());
    }

    void EnterLeadsThroughTheFields()
    {
        TestWindow window;
        Pages mainPage(window, false);
        QCOMPARE(window.FocusedName(), QString("F6MBall1_1"));
        mainPage.TypeBalls({"1", "2", "3", "4", "5", "6", "7"});
        QCOMPARE(QApplication::focusWidget(), window.Find("F6Mmachine"));
        Pages thunderballPage(window, true);
        thunderballPage.TypeBalls({"1", "2", "3", "4", "5", "6"});
        QCOMPARE(window.FocusedName(), QString("F7Store"));
    }

    void ChosenDateLeadsToBallOne()
    {
        TestWindow window;
        const Pages page(window, false);
        auto* calendar = window.Find<MonthCalendar>("F6Cal");
        calendar->setFocus();
        Q_EMIT calendar->clicked(Saturday);
        QCOMPARE(window.FocusedName(), QString("F6MBall1_1"));
    }

    void StoreRefusesWhatIsNoDraw_data()
    {
        QTest::addColumn<bool>("thunderball");
        QTest::addColumn<QStringList>("balls");
        QTest::newRow("bonus equal to a main ball") << false << QStringList{"1", "2", "3", "4", "5", "6", "6"};
        QTest::newRow("two equal main balls") << false << QStringList{"1", "2", "3", "4", "4", "6", "7"};
        QTest::newRow("an empty ball") << false << QStringList{"1", "2", "", "4", "5", "6", "7"};
        QTest::newRow("a fraction") << false << QStringList{"1", "2", "3", "4", "5", "6", "7.5"};
        QTest::newRow("half a thunderball") << true << QStringList{"1", "2", "3", "4", "5", "0.5"};
        QTest::newRow("two equal Thunderball balls") << true << QStringList{"1", "2", "3", "3", "5", "6"};
    }

    void StoreRefusesWhatIsNoDraw()
    {
        QFETCH(bool, thunderball);
        QFETCH(QStringList, balls);
        TestWindow window;
        Pages page(window, thunderball);
        page.TypeBalls(balls);
        page.Store(Refused);
        QCOMPARE(TestFolder::StoredRows(thunderball ? "ukthunder" : "ukmain"), QStringList());
        QCOMPARE(window.TextOf(page.field.arg(2)), balls[1]);
    }

    void MainDrawIsStoredSortedAndThePageCleared()
    {
        TestWindow window;
        Pages page(window, false);
        page.TypeBalls({"40", "3", "27", "9", "33", "1", "12"});
        window.Find<QComboBox>("F6Mmachine")->setEditText("Merlin II");
        window.Find<QComboBox>("F6Mballset")->setCurrentText("4");
        page.Store(MainStored);
        QCOMPARE(TestFolder::StoredRows("ukmain"), QStringList{"1,2026-11-21,Sat,1,3,9,27,33,40,12,Merlin II,4"});
        QCOMPARE(TestFolder::StoredRows("ukmainlist").size(), 1);
        for (int index = 0; index <= 6; ++index) {
            QCOMPARE(window.TextOf(page.field.arg(index)), QString());
            QCOMPARE(window.ColourOf(page.field.arg(index), QPalette::Base), QColor("#404040"));
        }
        QCOMPARE(window.Find<QComboBox>("F6Mmachine")->currentText(), QString());
        QCOMPARE(window.Find<MonthCalendar>("F6Cal")->selectedDate(), Saturday);
        QCOMPARE(window.FocusedName(), QString("F6MBall1_1"));
        QVERIFY(window.modals.AllCame());
    }

    void ThunderballMayEqualAMainBall()
    {
        TestWindow window;
        Pages page(window, true);
        page.TypeBalls({"30", "2", "15", "7", "21", "2"});
        page.Store(ThunderballStored);
        QCOMPARE(TestFolder::StoredRows("ukthunder"), QStringList{"1,2026-11-21,Sat,2,7,15,21,30,2"});
    }

    void SameDateAsksWhatToDo_data()
    {
        QTest::addColumn<bool>("thunderball");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QStringList>("rows");
        const QString first = "1,2026-11-21,Sat,1,2,3,4,5,6,7,,";
        QTest::newRow("add") << false << "Command1" << MainStored
                             << QStringList{first, "2,2026-11-21,Sat,11,12,13,14,15,16,17,,"};
        QTest::newRow("overwrite") << false << "Command2" << MainStored
                                   << QStringList{"1,2026-11-21,Sat,11,12,13,14,15,16,17,,"};
        QTest::newRow("cancel") << false << "Command3" << NotStored << QStringList{first};
        QTest::newRow("closed by its frame") << false << QString() << NotStored << QStringList{first};
        QTest::newRow("overwrite a Thunderball draw")
            << true << "Command2" << ThunderballStored << QStringList{"1,2026-11-21,Sat,11,12,13,14,15,7"};
    }

    void SameDateAsksWhatToDo()
    {
        QFETCH(bool, thunderball);
        QFETCH(QString, button);
        QFETCH(QString, message);
        QFETCH(QStringList, rows);
        TestWindow window;
        Pages page(window, thunderball);
        QStringList balls{"1", "2", "3", "4", "5", "6", "7"};
        QStringList others{"16", "15", "14", "13", "12", "11", "17"};
        if (thunderball) {
            balls.removeLast();
            others = {"15", "14", "13", "12", "11", "7"};
        }
        page.TypeBalls(balls);
        page.Store(thunderball ? ThunderballStored : MainStored);
        page.TypeBalls(others);
        QString question;
        window.modals.WillDo([&](QDialog& prompt) {
            question = prompt.findChild<QLabel*>("Label1")->text();
            QCOMPARE(prompt.windowTitle(), QString("Tavenor 3"));
            if (button.isEmpty())
                prompt.close();
            else
                PressIn(prompt, button);
        });
        page.Store(message);
        QCOMPARE(question, QString("A %1 draw with this date already exists,\r\nwhat do you want to do?")
                               .arg(thunderball ? "thunderball" : "main"));
        QCOMPARE(TestFolder::StoredRows(thunderball ? "ukthunder" : "ukmain"), rows);
        if (message == NotStored)
            QCOMPARE(window.TextOf(page.field.arg(1)), QString("11"));
        QVERIFY(window.modals.AllCame());
    }

    void DeletedLastNumberIsGivenAgain()
    {
        TestWindow window;
        Pages page(window, true);
        for (int draw = 0; draw < 2; ++draw) {
            window.Find<MonthCalendar>("F7cal")->setSelectedDate(Saturday.addDays(draw));
            page.TypeBalls({"1", "2", "3", "4", "5", "6"});
            page.Store(ThunderballStored);
        }
        ukthunder.MoveLast();
        ukthunder.Delete();
        window.Find<MonthCalendar>("F7cal")->setSelectedDate(Saturday.addDays(14));
        page.TypeBalls({"1", "2", "3", "4", "5", "6"});
        page.Store(ThunderballStored);
        QCOMPARE(TestFolder::StoredRows("ukthunder").last(), QString("2,2026-12-05,Sat,1,2,3,4,5,6"));
    }
};

TAVENOR_TEST_MAIN(AddDrawPageTest)
#include "add_draw_page_test.moc"
