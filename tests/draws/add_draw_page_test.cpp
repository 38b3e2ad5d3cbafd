#include "support/test_window.h"

#include "controls/month_calendar.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

const QString NotStored = u"The data has NOT been stored."_s;

/// The open page of one game, on which a date has been chosen.
class AddPage : public TestWindow
{
public:
    explicit AddPage(bool thunderball)
        : field(thunderball ? "F7TBall1" : "F6MBall1"),
          store(thunderball ? "F7Store" : "F6Store"),
          table(thunderball ? "ukthunder" : "ukmain"),
          stored(thunderball ? "The new Thunderball draw data has been stored."
                             : "The new main draw data has been stored.")
    {
        OpenPage(1, thunderball ? 2 : 1);
        auto* calendar = Find<MonthCalendar>(thunderball ? "F7cal" : "F6Cal");
        calendar->setFocus();
        calendar->setSelectedDate(QDate(2026, 11, 21));
        Q_EMIT calendar->clicked(QDate(2026, 11, 21));
        QCOMPARE(FocusedName(), field + "_1");
    }

    void TypeBalls(const QString& balls) { TypeInTurn(field + "_1", balls.split(u' ')); }

    QString field;
    QString store;
    QString table;
    QString stored;
};

} // namespace

class AddDrawPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Without a button the prompt is closed by its frame.
    void DrawIsStoredAndASecondOfItsDateAskedFor()
    {
        const QString first = "1,2026-11-21,Sat,1,3,9,27,33,40,12,Merlin II,4";
        const QString second = "2026-11-21,Sat,11,12,13,14,15,16,17,,";
        for (const auto& [thunderball, button, rows] :
             {std::tuple(false, "Command1", QStringList{first, "2," + second}),
              {false, "Command2", {"1," + second}},
              {false, "Command3", {first}},
              {false, "", {first}},
              {true, "Command2", {"1,2026-11-21,Sat,11,12,13,14,15,7"}}}) {
            AddPage page(thunderball);
            RecordSet& list = thunderball ? ukthunderlist : ukmainlist;
            QCOMPARE(list.Count(), 0);
            // The thunderball may equal a main ball.
            page.TypeBalls(thunderball ? "30 2 15 7 21 2" : "40 3 27 9 33 1 12");
            if (!thunderball) {
                page.Find<QComboBox>("F6Mmachine")->setEditText("Merlin II");
                page.Find<QComboBox>("F6Mballset")->setCurrentText("4");
            }
            QCOMPARE(page.Click(page.store, {QMessageBox::Ok}), QStringList{page.stored});
            QCOMPARE(TestFolder::StoredRows(page.table),
                     QStringList{thunderball ? "1,2026-11-21,Sat,2,7,15,21,30,2" : first});
            QCOMPARE(list.Count(), 1);
            QCOMPARE(page.TextsOf(page.field, "123450"), QString(5, u' '));
            QCOMPARE(page.ColoursOf(page.field, "50", QPalette::Base), QString("#404040 #404040"));
            QCOMPARE(page.FocusedName(), page.field + "_1");

            page.TypeBalls(thunderball ? "15 14 13 12 11 7" : "16 15 14 13 12 11 17");
            page.modals.WillDo(
                [&, pressed = QString(button), game = thunderball ? "thunderball" : "main"](QDialog& it) {
                    QCOMPARE(it.findChild<QLabel*>("Label1")->text(),
                             QString("A %1 draw with this date already exists,\r\nwhat do you want to do?").arg(game));
                    pressed.isEmpty() ? void(it.close()) : PressIn(it, pressed);
                });
            const bool kept = rows == QStringList{first};
            QCOMPARE(page.Click(page.store, {QMessageBox::Ok}), QStringList{kept ? NotStored : page.stored});
            QCOMPARE(TestFolder::StoredRows(page.table), rows);
            QVERIFY(page.IsShown(page.store));
            QCOMPARE(page.TextOf(page.field + "_1"), kept ? QString("11") : QString());
        }
    }

    void EnterLeadsOverTheMachineThatCompletesWhatIsTyped()
    {
        for (const auto& [typed, machine, set] :
             {std::tuple("G|2", "GUINEVERE", "2"), {"Merlin II|9a", "Merlin II", "9a"}, {"merlin|", "merlin", ""}}) {
            AddPage page(false);
            page.TypeBalls("1 2 3 4 5 6 7");
            for (const QString& text : QString(typed).split('|')) {
                QTest::keyClicks(QApplication::focusWidget(), text);
                page.PressFocused(Qt::Key_Return);
            }
            QCOMPARE(page.FocusedName(), QString("F6Store"));
            page.Click("F6Store", {QMessageBox::Ok});
            QCOMPARE(TestFolder::StoredRows("ukmain").value(0).section(u',', 10), QString(machine) + u',' + set);
        }
    }
};

TAVENOR_TEST(AddDrawPageTest)
#include "add_draw_page_test.moc"
