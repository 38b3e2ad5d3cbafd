#include "support/test_window.h"

#include "platform/month_calendar.h"

#include <QComboBox>

namespace {

const QString Refused =
    QStringLiteral("Error detected in the data that you entered.\r\nPlease re-check and press 'Store' again.");
const QString MainStored = QStringLiteral("The new main draw data has been stored.");
const QString ThunderballStored = QStringLiteral("The new Thunderball draw data has been stored.");
const QString NotStored = QStringLiteral("The data has NOT been stored.");
const QDate Saturday(2026, 11, 21);
const QString Grey = QStringLiteral("#404040");
const QString White = QStringLiteral("#FFFFFF");

/// The open page of one game, on which a date has been chosen.
class Page
{
public:
    explicit Page(TestWindow& testWindow, bool thunderball)
        : window(testWindow),
          field(thunderball ? "F7TBall1_%1" : "F6MBall1_%1"),
          disc(thunderball ? "F7TBall_%1" : "F6MBall_%1"),
          store(thunderball ? "F7Store" : "F6Store"),
          table(thunderball ? "ukthunder" : "ukmain"),
          behindTheBalls(thunderball ? "F7Store" : "F6Mmachine")
    {
        window.OpenPage(1, thunderball ? 2 : 1);
        QCOMPARE(window.FocusedName(), field.arg(1));
        auto* calendar = window.Find<MonthCalendar>(thunderball ? "F7cal" : "F6Cal");
        calendar->setFocus();
        calendar->setSelectedDate(Saturday);
        Q_EMIT calendar->clicked(Saturday);
        QCOMPARE(window.FocusedName(), field.arg(1));
    }

    /// Types the balls field by field in draw order (the extra ball last), as the Enter key leads.
    void TypeBalls(const QStringList& balls)
    {
        window.TypeInTurn(field.arg(1), balls);
        QCOMPARE(window.FocusedName(), behindTheBalls);
    }

    void CompareColours(int index, const QString& ball, const QString& digits) const
    {
        QCOMPARE(window.ColourOf(field.arg(index), QPalette::Base), QColor(ball));
        QCOMPARE(window.ColourOf(disc.arg(index), QPalette::Window), QColor(ball));
        QCOMPARE(window.ColourOf(field.arg(index), QPalette::Text), QColor(digits));
    }

    TestWindow& window;
    QString field;
    QString disc;
    QString store;
    QString table;
    QString behindTheBalls;
};

struct TypedBall
{
    bool thunderball;
    int index;
    QString typed;
    QString ball;
    QString digits = "#000000";
    QString message = {};
};

struct SecondDraw
{
    bool thunderball;
    QString button;
    QString message;
    QStringList rows;
};

} // namespace

class AddDrawPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FieldIsColouredOrRefused_data()
    {
        QTest::addColumn<TypedBall>("given");
        QTest::newRow("7 is white") << TypedBall{false, 1, "7", "#FFFFFF"};
        QTest::newRow("15 is light cyan") << TypedBall{false, 1, "15", "#80FFFF"};
        QTest::newRow("22 is light red") << TypedBall{false, 1, "22", "#FF8080"};
        QTest::newRow("38 is light green") << TypedBall{false, 1, "38", "#80FF80"};
        QTest::newRow("a bonus has its band") << TypedBall{false, 0, "49", "#FFFF80"};
        QTest::newRow("a fraction above 9 is in the second band") << TypedBall{false, 1, "9.5", "#80FFFF"};
        QTest::newRow("left empty") << TypedBall{false, 2, "", Grey, White};
        QTest::newRow("a Thunderball main ball") << TypedBall{true, 1, "34", "#000080", White};
        QTest::newRow("a thunderball") << TypedBall{true, 0, "14", "#FF0000"};
        QTest::newRow("half a thunderball passes the field") << TypedBall{true, 0, "0.5", "#FF0000"};
        const QString mainRange = "Ball values must be between 1 and 49";
        const QString thunderballMain = "Main ball values must be between 1 and 34";
        const QString thunderballRange = "Thunderball value must be between 1 and 14";
        QTest::newRow("letters count as 0") << TypedBall{false, 1, "abc", Grey, White, mainRange};
        QTest::newRow("a bonus of 50") << TypedBall{false, 0, "50", Grey, White, mainRange};
        QTest::newRow("49.5") << TypedBall{false, 6, "49.5", Grey, White, mainRange};
        QTest::newRow("a main ball of 35") << TypedBall{true, 5, "35", Grey, White, thunderballMain};
        QTest::newRow("a thunderball of 15") << TypedBall{true, 0, "15", Grey, White, thunderballRange};
        QTest::newRow("a thunderball of 0") << TypedBall{true, 0, "0", Grey, White, thunderballRange};
    }

    void FieldIsColouredOrRefused()
    {
        QFETCH(TypedBall, given);
        TestWindow window;
        const Page page(window, given.thunderball);
        const QString field = page.field.arg(given.index);
        window.Type(field, given.typed);
        if (given.message.isEmpty()) {
            window.Press(field, Qt::Key_Tab);
        } else {
            // The click that leaves a refused field does not press Store as well.
            QCOMPARE(window.Click(page.store, {QMessageBox::Ok}), QStringList{given.message});
            QCOMPARE(window.TextOf(field), QString());
            QCOMPARE(window.FocusedName(), field);
            QVERIFY(!window.Find<QPushButton>(page.store)->isDown());
        }
        page.CompareColours(given.index, given.ball, given.digits);
        QVERIFY(window.modals.AllCame());
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
        Page page(window, thunderball);
        page.TypeBalls(balls);
        QCOMPARE(window.Click(page.store, {QMessageBox::Ok}), QStringList{Refused});
        QCOMPARE(TestFolder::StoredRows(page.table), QStringList());
        QCOMPARE(window.TextOf(page.field.arg(2)), balls[1]);
    }

    void DrawIsStoredAndASecondOfItsDateAskedFor_data()
    {
        QTest::addColumn<SecondDraw>("given");
        const QString first = "1,2026-11-21,Sat,1,3,9,27,33,40,12,Merlin II,4";
        const QString second = "2026-11-21,Sat,11,12,13,14,15,16,17,,";
        QTest::newRow("add") << SecondDraw{false, "Command1", MainStored, {first, "2," + second}};
        QTest::newRow("overwrite") << SecondDraw{false, "Command2", MainStored, {"1," + second}};
        QTest::newRow("cancel") << SecondDraw{false, "Command3", NotStored, {first}};
        QTest::newRow("closed by its frame") << SecondDraw{false, QString(), NotStored, {first}};
        QTest::newRow("overwrite a Thunderball draw")
            << SecondDraw{true, "Command2", ThunderballStored, {"1,2026-11-21,Sat,11,12,13,14,15,7"}};
    }

    void DrawIsStoredAndASecondOfItsDateAskedFor()
    {
        QFETCH(SecondDraw, given);
        const bool thunderball = given.thunderball;
        TestWindow window;
        Page page(window, thunderball);
        RecordSet& list = thunderball ? ukthunderlist : ukmainlist;
        QCOMPARE(list.Count(), 0);
        // The thunderball may equal a main ball.
        page.TypeBalls(thunderball ? QStringList{"30", "2", "15", "7", "21", "2"}
                                   : QStringList{"40", "3", "27", "9", "33", "1", "12"});
        if (!thunderball) {
            window.Find<QComboBox>("F6Mmachine")->setEditText("Merlin II");
            window.Find<QComboBox>("F6Mballset")->setCurrentText("4");
        }
        QCOMPARE(window.Click(page.store, {QMessageBox::Ok}),
                 QStringList{thunderball ? ThunderballStored : MainStored});
        QCOMPARE(TestFolder::StoredRows(page.table),
                 QStringList{thunderball ? "1,2026-11-21,Sat,2,7,15,21,30,2"
                                         : "1,2026-11-21,Sat,1,3,9,27,33,40,12,Merlin II,4"});
        QCOMPARE(list.Count(), 1);
        for (int index = 0; index <= (thunderball ? 5 : 6); ++index) {
            QCOMPARE(window.TextOf(page.field.arg(index)), QString());
            page.CompareColours(index, Grey, White);
        }
        QCOMPARE(window.FocusedName(), page.field.arg(1));

        page.TypeBalls(thunderball ? QStringList{"15", "14", "13", "12", "11", "7"}
                                   : QStringList{"16", "15", "14", "13", "12", "11", "17"});
        window.modals.WillDo([&](QDialog& prompt) {
            QCOMPARE(prompt.findChild<QLabel*>("Label1")->text(),
                     QString("A %1 draw with this date already exists,\r\nwhat do you want to do?")
                         .arg(thunderball ? "thunderball" : "main"));
            QCOMPARE(prompt.windowTitle(), QString("Tavenor 3"));
            if (given.button.isEmpty())
                prompt.close();
            else
                PressIn(prompt, given.button);
        });
        QCOMPARE(window.Click(page.store, {QMessageBox::Ok}), QStringList{given.message});
        QCOMPARE(TestFolder::StoredRows(page.table), given.rows);
        QCOMPARE(window.TextOf(page.field.arg(1)), given.message == NotStored ? QString("11") : QString());
        QVERIFY(window.modals.AllCame());
    }
};

TAVENOR_TEST_MAIN(AddDrawPageTest)
#include "add_draw_page_test.moc"
