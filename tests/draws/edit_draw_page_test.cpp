#include "support/grid_driver.h"

using namespace Qt::StringLiterals;

namespace {

const QString SaveRefused =
    u"Error detected in the data that you entered.\r\nPlease re-check and press 'Save Changes' again."_s;
const QString Sure = u"Are you sure you want to replace the old data with this new data?"_s;
const QString Lost = u"All changes will be lost, are you sure you want to continue?"_s;
const QString MainRow = u"1,2026-11-14,Sat,3,15,22,38,41,49,9,ARTHUR,4"_s;

/// The older of two stored draws of a game, opened for editing.
class EditedDraw : public TestWindow
{
public:
    explicit EditedDraw(const Game& game) : prefix(&game == &MainGame ? "F16" : "F17")
    {
        const bool isMain = &game == &MainGame;
        StoreDraws(MainGame, {"2026-11-14,3,15,22,38,41,49,9,ARTHUR,4", "2026-11-21,1,2,3,4,5,6,7,MERLIN,1"});
        StoreDraws(ThunderballGame, {"2026-11-14,3,15,22,30,34,14", "2026-11-21,1,2,3,4,5,6"});
        Window().ChooseMenu(2, 3);
        GridDriver(*this, isMain ? "F10Grid1" : "F10Grid2").Click(1);
        Click(isMain ? "F10maineditbutton" : "F10thundereditbutton");
    }

    /// Types the balls as a player does, going on with Enter; what is in a field is replaced.
    void TypeBalls(const QString& balls)
    {
        Find(prefix + "number_1")->setFocus();
        for (const QString& ball : balls.split(u' ')) {
            QTest::keyClicks(QApplication::focusWidget(), ball);
            PressFocused(Qt::Key_Return);
        }
    }

    QString prefix;
};

} // namespace

class EditDrawPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ResetBringsTheStoredDrawBack()
    {
        EditedDraw window(MainGame);
        // A click selects the whole text, so that typing replaces it.
        QTest::mouseClick(window.Find("F16number_2"), Qt::LeftButton);
        QApplication::processEvents();
        QTest::keyClicks(window.Find("F16number_2"), "47");
        QCOMPARE(window.TextOf("F16number_2"), QString("47"));
        auto* machine = window.Find<QComboBox>("F16machine");
        machine->setEditText("X");
        window.Click("F16reset");
        QCOMPARE(window.TextsOf({"F16date", "F16number_2", "F16number_0"}), QString("Saturday, 14 November 2026|15|9"));
        QCOMPARE(window.ColourOf("F16number_2", QPalette::Base), QColor("#80FFFF"));
        QCOMPARE(window.ColourOf("F16ball_2", QPalette::Window), QColor("#80FFFF"));
        QCOMPARE(machine->currentText(), QString("ARTHUR"));
        QCOMPARE(machine->count(), 4);
        QCOMPARE(window.Find<QComboBox>("F16ballset")->currentText(), QString("4"));
    }

    void MainDrawIsSavedSortedInItsPlace()
    {
        EditedDraw window(MainGame);
        window.TypeBalls("30 2 17 45 8 11 9");
        QCOMPARE(window.FocusedName(), QString("F16machine"));
        QTest::keyClicks(QApplication::focusWidget(), "merlin");
        window.PressFocused(Qt::Key_Return);
        window.Find<QComboBox>("F16ballset")->setEditText("");
        QCOMPARE(window.Click("F16save", {QMessageBox::Yes, QMessageBox::Ok}),
                 QStringList({Sure, "The edited main draw data has been stored."}));
        QCOMPARE(TestFolder::StoredRows("ukmain").value(0), QString("1,2026-11-14,Sat,2,8,11,17,30,45,9,merlin,"));
        QVERIFY(!window.IsShown("Frame_16") && window.IsShown("Frame_10"));
        const GridDriver grid(window, "F10Grid1");
        QCOMPARE(grid.Row(0, 2), QString("1,2,3,4,5,6,7"));
        QCOMPARE(grid.Row(1, 2), QString("2,8,11,17,30,45,9"));
    }

    void ThunderballDrawIsSavedSorted()
    {
        EditedDraw window(ThunderballGame);
        window.TypeBalls("30 2 17 8 11 2");
        QCOMPARE(window.FocusedName(), QString("F17save"));
        QCOMPARE(window.Click("F17save", {QMessageBox::Yes, QMessageBox::Ok}),
                 QStringList({Sure, "The edited thunderball draw data has been stored."}));
        QCOMPARE(TestFolder::StoredRows("ukthunder").value(0), QString("1,2026-11-14,Sat,2,8,11,17,30,2"));
        QVERIFY(!window.IsShown("Frame_17"));
    }

    void WhatIsNoDrawIsNotSaved()
    {
        for (const auto& [game, table, balls] :
             {std::tuple(&MainGame, "ukmain", "1 2 3 4 5 6 4"), {&ThunderballGame, "ukthunder", "1 2 3 3 5 6"}}) {
            EditedDraw window(*game);
            const QStringList before = TestFolder::StoredRows(table);
            window.TypeBalls(balls);
            QCOMPARE(window.Click(window.prefix + "save", {QMessageBox::Ok}), QStringList{SaveRefused});
            QCOMPARE(TestFolder::StoredRows(table), before);
            QCOMPARE(window.TextOf(window.prefix + "number_2"), QString("2"));
        }
    }

    void NothingIsSavedOrLostWithoutAYes()
    {
        EditedDraw window(MainGame);
        window.Type("F16number_1", "13");
        QCOMPARE(window.Click("F16save", {QMessageBox::No, QMessageBox::Ok}),
                 QStringList({Sure, "New data has NOT been stored"}));
        QCOMPARE(window.Click("F16back", {QMessageBox::No}), QStringList{Lost});
        QVERIFY(window.IsShown("Frame_16") && window.IsShown("Frame_10"));
        QCOMPARE(window.TextOf("F16number_1"), QString("13"));
        window.modals.WillPress(QMessageBox::Yes);
        window.PressFocused(Qt::Key_Escape);
        QCOMPARE(window.modals.TakeTexts(), QStringList{Lost});
        QVERIFY(!window.IsShown("Frame_16"));
        QCOMPARE(GridDriver(window, "F10Grid1").Selected(), QString("1-1"));
        QCOMPARE(TestFolder::StoredRows("ukmain").value(0), MainRow);
    }

    void RefusedFieldIsToldEmptiedAndFocused()
    {
        for (const auto& [game, slot, typed, leave, message, colour] :
             {std::tuple(&MainGame, "1", "50", Qt::Key_Escape, "Ball values must be between 1 and 49", "#404040"),
              {&ThunderballGame, "5", "35", Qt::Key_Tab, "Balls must be between 1 and 34", "#000080"},
              {&ThunderballGame, "0", "0.5", Qt::Key_Tab, "Thunderball must be between 1 and 14", "#FF0000"}}) {
            EditedDraw window(*game);
            const QString field = window.prefix + "number_" + slot;
            window.Type(field, typed);
            window.modals.WillPress(QMessageBox::Ok);
            window.Press(field, leave);
            QCOMPARE(window.modals.TakeTexts(), QStringList{message});
            // The emptied field is left without a word.
            QCOMPARE(window.TextOf(field) + window.FocusedName(), field);
            window.PressFocused(Qt::Key_Tab);
            QVERIFY(window.modals.AllCame());
            QCOMPARE(window.ColourOf(window.prefix + "ball_" + slot, QPalette::Window), QColor(colour));
        }
    }
};

TAVENOR_TEST(EditDrawPageTest)
#include "edit_draw_page_test.moc"
