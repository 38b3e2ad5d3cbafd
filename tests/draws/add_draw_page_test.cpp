#include "support/test_window.h"

#include "controls/month_calendar.h"

#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

const QString Refused = u"Error detected in the data that you entered.\r\nPlease re-check and press 'Store' again."_s;
const QString MainStored = u"The new main draw data has been stored."_s;
const QString ThunderballStored = u"The new Thunderball draw data has been stored."_s;
const QString NotStored = u"The data has NOT been stored."_s;
const QDate Saturday(2026, 11, 21);
const char* const Grey = "#404040";
const char* const White = "#FFFFFF";

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
    void TypeBalls(const QString& balls)
    {
        window.TypeInTurn(field.arg(1), balls.split(u' '));
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

} // namespace

class AddDrawPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FieldIsColouredOrRefused()
    {
        const char* black = "#000000";
        const char* mainRange = "Ball values must be between 1 and 49";
        const char* thunderballMain = "Main ball values must be between 1 and 34";
        const char* thunderballRange = "Thunderball value must be between 1 and 14";
        // Half a thunderball passes the field.
        using Row = std::tuple<bool, int, const char*, const char*, const char*, const char*>;
        for (const auto& [thunderball, index, typed, ball, digits, message] :
             {Row{false, 1, "7", White, black, ""}, Row{false, 0, "49", "#FFFF80", black, ""},
              Row{false, 1, "9.5", "#80FFFF", black, ""}, Row{false, 2, "", Grey, White, ""},
              Row{true, 1, "34", "#000080", White, ""}, Row{true, 0, "14", "#FF0000", black, ""},
              Row{true, 0, "0.5", "#FF0000", black, ""}, Row{false, 1, "abc", Grey, White, mainRange},
              Row{false, 0, "50", Grey, White, mainRange}, Row{false, 6, "49.5", Grey, White, mainRange},
              Row{true, 5, "35", Grey, White, thunderballMain}, Row{true, 0, "15", Grey, White, thunderballRange},
              Row{true, 0, "0", Grey, White, thunderballRange}}) {
            TestWindow window;
            const Page page(window, thunderball);
            const QString field = page.field.arg(index);
            window.Type(field, typed);
            if (*message == '\0') {
                window.Press(field, Qt::Key_Tab);
            } else {
                // The click that leaves a refused field does not press Store as well.
                QCOMPARE(window.Click(page.store, {QMessageBox::Ok}), QStringList{message});
                QCOMPARE(window.TextOf(field) + window.FocusedName(), field);
                QVERIFY(!window.Find<QPushButton>(page.store)->isDown());
            }
            page.CompareColours(index, ball, digits);
        }
    }

    void StoreRefusesWhatIsNoDraw()
    {
        using Row = std::pair<bool, const char*>;
        for (const auto& [thunderball, typed] :
             {Row{false, "1 2 3 4 5 6 6"}, Row{false, "1 2 3 4 4 6 7"}, Row{false, "1 2  4 5 6 7"},
              Row{false, "1 2 3 4 5 6 7.5"}, Row{true, "1 2 3 4 5 0.5"}, Row{true, "1 2 3 3 5 6"}}) {
            TestWindow window;
            Page page(window, thunderball);
            page.TypeBalls(typed);
            QCOMPARE(window.Click(page.store, {QMessageBox::Ok}), QStringList{Refused});
            QCOMPARE(TestFolder::StoredRows(page.table), QStringList());
            QCOMPARE(window.TextOf(page.field.arg(2)), QString("2"));
        }
    }

    void DrawIsStoredAndASecondOfItsDateAskedFor()
    {
        const QString first = "1,2026-11-21,Sat,1,3,9,27,33,40,12,Merlin II,4";
        const QString second = "2026-11-21,Sat,11,12,13,14,15,16,17,,";
        // Without a button the prompt is closed by its frame.
        for (const auto& [thunderball, button, message, rows] :
             {std::tuple(false, "Command1", MainStored, QStringList{first, "2," + second}),
              {false, "Command2", MainStored, {"1," + second}},
              {false, "Command3", NotStored, {first}},
              {false, "", NotStored, {first}},
              {true, "Command2", ThunderballStored, {"1,2026-11-21,Sat,11,12,13,14,15,7"}}})
            StoreTwice(thunderball, button, message, rows);
    }

    void EnterLeadsOverTheMachineThatCompletesWhatIsTyped()
    {
        for (const auto& [typed, machine, set] :
             {std::tuple("G|2", "GUINEVERE", "2"), {"Merlin II|9a", "Merlin II", "9a"}, {"merlin|", "merlin", ""}}) {
            TestWindow window;
            Page page(window, false);
            page.TypeBalls("1 2 3 4 5 6 7");
            for (const QString& text : QString(typed).split('|')) {
                QTest::keyClicks(QApplication::focusWidget(), text);
                window.PressFocused(Qt::Key_Return);
            }
            QCOMPARE(window.FocusedName(), QString("F6Store"));
            QCOMPARE(window.Find<QComboBox>("F6Mmachine")->currentText(), QString(machine));
            QCOMPARE(window.Find<QComboBox>("F6Mballset")->currentText(), QString(set));
        }
    }

private:
    static void StoreTwice(bool thunderball, const QString& button, const QString& message, const QStringList& rows)
    {
        TestWindow window;
        Page page(window, thunderball);
        RecordSet& list = thunderball ? ukthunderlist : ukmainlist;
        QCOMPARE(list.Count(), 0);
        // The thunderball may equal a main ball.
        page.TypeBalls(thunderball ? "30 2 15 7 21 2" : "40 3 27 9 33 1 12");
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

        page.TypeBalls(thunderball ? "15 14 13 12 11 7" : "16 15 14 13 12 11 17");
        window.modals.WillDo([&](QDialog& prompt) {
            QCOMPARE(prompt.findChild<QLabel*>("Label1")->text(),
                     QString("A %1 draw with this date already exists,\r\nwhat do you want to do?")
                         .arg(thunderball ? "thunderball" : "main"));
            QCOMPARE(prompt.windowTitle(), QString("Tavenor 3"));
            if (button.isEmpty())
                prompt.close();
            else
                PressIn(prompt, button);
        });
        QCOMPARE(window.Click(page.store, {QMessageBox::Ok}), QStringList{message});
        QCOMPARE(TestFolder::StoredRows(page.table), rows);
        QVERIFY(window.IsShown(thunderball ? "Frame_7" : "Frame_6"));
        QCOMPARE(window.TextOf(page.field.arg(1)), message == NotStored ? QString("11") : QString());
    }
};

TAVENOR_TEST(AddDrawPageTest)
#include "add_draw_page_test.moc"
