#include "support/grid_driver.h"
#include "support/stored_draws.h"

#include <QComboBox>

namespace {

const QString Refused =
    QStringLiteral("Error detected in the data that you entered.\r\nPlease re-check and press 'Save Changes' again.");
const QString Sure = QStringLiteral("Are you sure you want to replace the old data with this new data?");
const QString NotStored = QStringLiteral("New data has NOT been stored");
const QString Lost = QStringLiteral("All changes will be lost, are you sure you want to continue?");
const QString MainRow = QStringLiteral("1,2026-11-14,Sat,3,15,22,38,41,49,9,ARTHUR,4");

class EditedDraw
{
public:
    EditedDraw(TestWindow& testWindow, bool thunderball)
        : window(testWindow),
          prefix(thunderball ? "F17" : "F16"),
          table(thunderball ? "ukthunder" : "ukmain"),
          grid(thunderball ? "F10Grid2" : "F10Grid1")
    {
        StoreDraws(MainGame, {"2026-11-14,3,15,22,38,41,49,9,ARTHUR,4", "2026-11-21,1,2,3,4,5,6,7,MERLIN,1"});
        StoreDraws(ThunderballGame, {"2026-11-14,3,15,22,30,34,14", "2026-11-21,1,2,3,4,5,6"});
        window.Window().ChooseMenu(2, 3);
        GridDriver(window, grid).Click(1);
        window.Click(thunderball ? "F10thundereditbutton" : "F10maineditbutton");
    }

    void TypeBalls(const QStringList& balls)
    {
        window.Type(Field(1), balls.first());
        for (const QString& ball : balls.mid(1)) {
            window.PressFocused(Qt::Key_Return);
            QTest::keyClicks(QApplication::focusWidget(), ball);
        }
        window.PressFocused(Qt::Key_Return);
    }

    QString Field(int index) const { return QString("%1number_%2").arg(prefix).arg(index); }

    /// Presses Save Changes; the answers are given in order, and what was said comes back.
    QStringList Save(std::initializer_list<QMessageBox::StandardButton> answers)
    {
        for (const auto answer : answers)
            window.modals.WillPress(answer);
        window.Click(prefix + "save");
        return window.modals.TakeTexts();
    }

    TestWindow& window;
    QString prefix;
    QString table;
    QString grid;
};

} // namespace

class EditDrawPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void StoredDrawIsShownForEditing()
    {
        TestWindow window;
        const EditedDraw page(window, false);
        QCOMPARE(window.TextOf("F16date"), QString("Saturday, 14 November 2026"));
        QCOMPARE(window.TextOf("F16number_6"), QString("49"));
        QCOMPARE(window.TextOf("F16number_0"), QString("9"));
        QCOMPARE(window.ColourOf("F16number_2", QPalette::Base), QColor("#80FFFF"));
        QCOMPARE(window.ColourOf("F16ball_2", QPalette::Window), QColor("#80FFFF"));
        QCOMPARE(window.Find<QComboBox>("F16machine")->currentText(), QString("ARTHUR"));
        QCOMPARE(window.Find<QComboBox>("F16machine")->count(), 4);
        QCOMPARE(window.Find<QComboBox>("F16ballset")->currentText(), QString("4"));
        QVERIFY(window.IsShown("Frame_10"));
    }

    void FocusedFieldIsSelectedSoThatTypingReplacesIt()
    {
        TestWindow window;
        const EditedDraw page(window, false);
        QTest::mouseClick(window.Find("F16number_3"), Qt::LeftButton);
        QApplication::processEvents();
        QTest::keyClicks(window.Find("F16number_3"), "27");
        QCOMPARE(window.TextOf("F16number_3"), QString("27"));
        window.PressFocused(Qt::Key_Return);
        QTest::keyClicks(QApplication::focusWidget(), "28");
        QCOMPARE(window.TextOf("F16number_4"), QString("28"));
    }

    void MainDrawIsSavedSortedInItsPlace()
    {
        TestWindow window;
        EditedDraw page(window, false);
        page.TypeBalls({"30", "2", "17", "45", "8", "11", "9"});
        QCOMPARE(QApplication::focusWidget(), window.Find("F16machine"));
        window.Find<QComboBox>("F16machine")->setEditText("Merlin II");
        window.Find<QComboBox>("F16ballset")->setEditText("");
        QCOMPARE(page.Save({QMessageBox::Yes, QMessageBox::Ok}),
                 QStringList({Sure, "The edited main draw data has been stored."}));
        QCOMPARE(TestFolder::StoredRows("ukmain").value(0), QString("1,2026-11-14,Sat,2,8,11,17,30,45,9,Merlin II,"));
        QVERIFY(!window.IsShown("Frame_16") && window.IsShown("Frame_10"));
        const GridDriver grid(window, "F10Grid1");
        QCOMPARE(grid.Row(0, 2), QString("1,2,3,4,5,6,7"));
        QCOMPARE(grid.Row(1, 2), QString("2,8,11,17,30,45,9"));
        QVERIFY(window.modals.AllCame());
    }

    void ThunderballDrawIsSavedSorted()
    {
        TestWindow window;
        EditedDraw page(window, true);
        page.TypeBalls({"30", "2", "17", "8", "11", "2"});
        QCOMPARE(window.FocusedName(), QString("F17save"));
        QCOMPARE(page.Save({QMessageBox::Yes, QMessageBox::Ok}),
                 QStringList({Sure, "The edited thunderball draw data has been stored."}));
        QCOMPARE(TestFolder::StoredRows("ukthunder").value(0), QString("1,2026-11-14,Sat,2,8,11,17,30,2"));
    }

    void WhatIsNoDrawIsNotSaved_data()
    {
        QTest::addColumn<bool>("thunderball");
        QTest::addColumn<QStringList>("balls");
        QTest::newRow("bonus equal to a main ball") << false << QStringList{"1", "2", "3", "4", "5", "6", "3"};
        QTest::newRow("two equal main balls") << false << QStringList{"1", "2", "2", "4", "5", "6", "7"};
        QTest::newRow("a fraction") << false << QStringList{"1", "2", "3", "4", "5.5", "6", "7"};
        QTest::newRow("two equal Thunderball balls") << true << QStringList{"1", "2", "3", "3", "5", "6"};
    }

    void WhatIsNoDrawIsNotSaved()
    {
        QFETCH(bool, thunderball);
        QFETCH(QStringList, balls);
        TestWindow window;
        EditedDraw page(window, thunderball);
        const QStringList before = TestFolder::StoredRows(page.table);
        page.TypeBalls(balls);
        QCOMPARE(page.Save({QMessageBox::Ok}), QStringList{Refused});
        QCOMPARE(TestFolder::StoredRows(page.table), before);
        QCOMPARE(window.TextOf(page.Field(2)), balls[1]);
    }

    void NoSavesNothingAndKeepsTheTyping()
    {
        TestWindow window;
        EditedDraw page(window, false);
        window.Type("F16number_1", "13");
        QCOMPARE(page.Save({QMessageBox::No, QMessageBox::Ok}), QStringList({Sure, NotStored}));
        QCOMPARE(TestFolder::StoredRows("ukmain").value(0), MainRow);
        QCOMPARE(window.TextOf("F16number_1"), QString("13"));
        QVERIFY(window.IsShown("Frame_16"));
    }

    void ResetBringsTheStoredDrawBack()
    {
        TestWindow window;
        const EditedDraw page(window, false);
        window.Type("F16number_1", "47");
        window.Find<QComboBox>("F16machine")->setEditText("X");
        window.Click("F16reset");
        QCOMPARE(window.TextOf("F16number_1"), QString("3"));
        QCOMPARE(window.ColourOf("F16ball_1", QPalette::Window), QColor("#FFFFFF"));
        QCOMPARE(window.Find<QComboBox>("F16machine")->currentText(), QString("ARTHUR"));
    }

    void BackAsksBeforeChangesAreLost()
    {
        TestWindow window;
        const EditedDraw page(window, false);
        window.Type("F16number_1", "13");
        window.modals.WillPress(QMessageBox::No);
        window.Click("F16back");
        QVERIFY(window.IsShown("Frame_16"));
        QCOMPARE(window.TextOf("F16number_1"), QString("13"));
        window.modals.WillPress(QMessageBox::Yes);
        window.PressFocused(Qt::Key_Escape);
        QCOMPARE(window.modals.TakeTexts(), QStringList({Lost, Lost}));
        QVERIFY(!window.IsShown("Frame_16"));
        QCOMPARE(GridDriver(window, "F10Grid1").Selected(), QString("1-1"));
        QCOMPARE(TestFolder::StoredRows("ukmain").value(0), MainRow);
    }

    void RefusedFieldIsToldEmptiedAndFocused_data()
    {
        QTest::addColumn<bool>("thunderball");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QColor>("colour");
        const QColor grey("#404040");
        QTest::newRow("a main ball of 50") << false << 1 << "50"
                                           << "Ball values must be between 1 and 49" << grey;
        QTest::newRow("a Thunderball main ball of 35") << true << 5 << "35"
                                                       << "Balls must be between 1 and 34" << QColor("#000080");
        QTest::newRow("half a thunderball") << true << 0 << "0.5"
                                            << "Thunderball must be between 1 and 14" << QColor("#FF0000");
        QTest::newRow("a thunderball of 15") << true << 0 << "15"
                                             << "Thunderball must be between 1 and 14" << QColor("#FF0000");
        QTest::newRow("nothing typed passes") << true << 2 << "" << QString() << QColor("#000080");
    }

    void RefusedFieldIsToldEmptiedAndFocused()
    {
        QFETCH(bool, thunderball);
        QFETCH(int, index);
        QFETCH(QString, typed);
        QFETCH(QString, message);
        QFETCH(QColor, colour);
        TestWindow window;
        const EditedDraw page(window, thunderball);
        window.Type(page.Field(index), typed);
        if (!message.isEmpty())
            window.modals.WillPress(QMessageBox::Ok);
        window.Press(page.Field(index), Qt::Key_Tab);
        QCOMPARE(window.modals.TakeTexts(), message.isEmpty() ? QStringList() : QStringList{message});
        QCOMPARE(window.TextOf(page.Field(index)), QString());
        QCOMPARE(window.FocusedName() == page.Field(index), !message.isEmpty());
        QCOMPARE(window.ColourOf(QString("%1ball_%2").arg(page.prefix).arg(index), QPalette::Window), colour);
    }
};

TAVENOR_TEST_MAIN(EditDrawPageTest)
#include "edit_draw_page_test.moc"
