#include "support/test_window.h"

#include <QDropEvent>
#include <QMimeData>

using namespace Qt::StringLiterals;

namespace {

/// What a page says of a ball that is out of range, and of balls that it does not store.
struct Refusals
{
    QString main;
    QString extra;
    QString all;
};

/// A page on which balls are typed.
struct BallPage
{
    /// The group of the menu, its sub-option, and what is clicked then.
    QString opened;
    /// The arrays of the fields and of the discs, the button that stores, and where Enter leads from the last ball.
    QString controls;
    /// The elements of the balls in the order in which they are typed.
    QString elements;
    Refusals refusals;
    /// Whether a refused field turns grey before its message.
    bool greyFirst;

    QString Fields() const { return controls.section(u' ', 0, 0); }
    QString Field(QChar element) const { return Fields() + u'_' + element; }
    QString Discs() const { return controls.section(u' ', 1, 1); }
    QString Store() const { return controls.section(u' ', 2, 2); }
};

const QString Again = u"Error detected in the data that you entered.\r\nPlease re-check and press '%1' again."_s;
const QString Equal = u"Two or more %1 have the same value,\r\nplease retry."_s;
const QString MainRange = u"Ball values must be between 1 and 49"_s;
const QString ThunderRange = u"Main ball values must be between 1 and 34"_s;

const Refusals NewMain{MainRange, MainRange, Again.arg("Store")};
const Refusals NewThunder{ThunderRange, "Thunderball value must be between 1 and 14", Again.arg("Store")};
const Refusals MainDraw{MainRange, MainRange, Again.arg("Save Changes")};
const Refusals ThunderDraw{"Balls must be between 1 and 34", "Thunderball must be between 1 and 14",
                           Again.arg("Save Changes")};
const Refusals MainEntry{MainRange, MainRange, Equal.arg("balls")};
const Refusals ThunderEntry{ThunderRange, "Main ball values must be between 1 and 14", Equal.arg("main balls")};

const BallPage Page6{"1 1", "F6MBall1 F6MBall F6Store F6Mmachine", "1234560", NewMain, true};
const BallPage Page7{"1 2", "F7TBall1 F7TBall F7Store F7Store", "123450", NewThunder, false};
const BallPage Page16{"2 3 F10maineditbutton", "F16number F16ball F16save F16machine", "1234560", MainDraw, true};
const BallPage Page17{"2 3 F10thundereditbutton", "F17number F17ball F17save F17save", "123450", ThunderDraw, false};
const BallPage Page18{"3 2", "F18ent F18ball F18store F18store", "123456", NewMain, true};
const BallPage Page18T{"3 2 F18type", "F18ent F18ball F18store F18store", "123456", NewThunder, false};
const BallPage Page20{"3 3 F13edit", "F20num F20ball F20store F20store", "123456", MainEntry, false};
const BallPage Page20T{"3 3 F13typethunder F13edit", "F20num F20ball F20store F20store", "123456", ThunderEntry, false};

/// The window with a draw and an entry of each game.
class BallWindow : public TestWindow
{
public:
    explicit BallWindow(const BallPage& ballPage) : page(ballPage)
    {
        const DaySet days{true, false, false, false, false, false, true};
        StoreDraws(MainGame, {"2000-01-01,3,15,22,38,41,49,9,ARTHUR,4"});
        StoreDraws(ThunderballGame, {"2000-01-01,3,15,22,30,34,14"});
        AddUser(users, "Ann", 10);
        AddEntry(entries, {1, 1, 1, {3, 15, 22, 38, 41, 49}, days});
        AddEntry(entries, {2, 1, 2, {3, 15, 22, 30, 34, 14}, days});
        Open();
    }

    /// Opens the page anew; on one that changes what is stored the first ball has the focus.
    void Open()
    {
        const QStringList clicks = page.opened.split(u' ');
        OpenPage(clicks[0].toInt(), clicks[1].toInt());
        for (const QString& name : clicks.mid(2))
            name == "F18type"_L1 ? Choose(name, 1) : Click(name);
        if (page.Store() == "F18store"_L1)
            Find(page.Field('1'))->setFocus(Qt::TabFocusReason);
        QCOMPARE(FocusedName(), page.Field('1'));
    }

    /// Types the balls as a player does, going on with Enter; what is in a field is replaced.
    void TypeBalls(const QString& balls)
    {
        for (const QString& ball : balls.split(u' ')) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
            QTest::keyClicks(QApplication::focusWidget(), ball);
            PressFocused(Qt::Key_Return);
        }
        QCOMPARE(FocusedName(), page.controls.section(u' ', 3));
    }

    QString Colours(QChar element) const
    {
        return ColoursOf(page.Discs(), element, QPalette::Window) + u' ' +
               ColoursOf(page.Fields(), element, QPalette::Base) + u' ' +
               ColoursOf(page.Fields(), element, QPalette::Text);
    }

    static QStringList StoredRows()
    {
        return TestFolder::StoredRows("ukmain") + TestFolder::StoredRows("ukthunder") +
               TestFolder::StoredRows("entries");
    }

    const BallPage& page;
};

} // namespace

class BallPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Each case is an element, what is typed into it, and the colours of its ball and its digits.
    void AcceptedFieldIsColoured()
    {
        using Row = std::pair<const BallPage*, const char*>;
        for (const auto& [page, cases] :
             {Row{&Page6, "1:7:#FFFFFF:#000000 0:49:#FFFF80:#000000 1:9.5:#80FFFF:#000000 2::#404040:#FFFFFF"},
              {&Page7, "1:34:#000080:#FFFFFF 0:14:#FF0000:#000000 0:0.5:#FF0000:#000000"},
              {&Page16, "3:39:#80FF80:#000000"},
              {&Page18T, "6:0.5:#FF0000:#000000"},
              {&Page20, "6:20:#FF8080:#000000"},
              {&Page20T, "6:14:#FF0000:#000000 5::#404040:#FFFFFF"}}) {
            BallWindow window(*page);
            for (const QString& wanted : QString(cases).split(u' ')) {
                const QStringList parts = wanted.split(u':');
                window.Type(page->Field(wanted[0]), parts[1]);
                window.Press(page->Field(wanted[0]), Qt::Key_Tab);
                QCOMPARE(window.Colours(wanted[0]), QString("%1 %1 %2").arg(parts[2], parts[3]));
            }
        }
    }

    /// Each case is an element and what is typed into it.
    void RefusedFieldIsToldEmptiedAndFocused()
    {
        using Row = std::pair<const BallPage*, const char*>;
        for (const auto& [page, cases] : {Row{&Page6, "1:abc 0:50 6:49.5"},
                                          {&Page7, "5:35 0:15 0:0"},
                                          {&Page16, "1:50"},
                                          {&Page17, "5:35 0:0.5"},
                                          {&Page18, "6:50"},
                                          {&Page18T, "5:35 6:15"},
                                          {&Page20, "6:50 2:1.5"},
                                          {&Page20T, "2:35 6:0.5"}}) {
            BallWindow window(*page);
            for (const QString& wanted : QString(cases).split(u' ')) {
                const QChar element = wanted[0];
                const QString field = page->Field(element);
                window.Type(field, "7");
                window.Press(field, Qt::Key_Tab);
                const QString accepted = window.Colours(element);
                const QString grey = page == &Page17 ? accepted : "#404040 #404040 #FFFFFF";
                QString whileTold;
                window.modals.WillPress(QMessageBox::Ok, [&] { whileTold = window.Colours(element); });
                window.Type(field, wanted.mid(2));
                window.Press(field, Qt::Key_Tab);
                const bool extra = element == page->elements.back();
                QCOMPARE(window.modals.TakeTexts(), QStringList{extra ? page->refusals.extra : page->refusals.main});
                QCOMPARE(whileTold, page->greyFirst ? grey : accepted);
                QCOMPARE(window.TextOf(field) + window.FocusedName(), field);
                // The emptied field is left without a word.
                window.PressFocused(Qt::Key_Tab);
                QCOMPARE(window.Colours(element), grey);
            }
        }
    }

    /// A refused ball is told, emptied and focused, and nothing else happens, whatever is done instead of leaving it.
    void RefusedBallIsStoppedInEveryWay()
    {
        for (const BallPage* page : {&Page6, &Page7, &Page16, &Page17, &Page18, &Page18T, &Page20, &Page20T}) {
            BallWindow window(*page);
            const QStringList before = BallWindow::StoredRows();
            const QString field = page->Field(page->elements.back());
            auto* box = window.Find<QLineEdit>(field);
            const auto* store = window.Find<QPushButton>(page->Store());
            for (const QString way : {"click", "letter", "menu", "ahead", "drop", "escape"}) {
                // Only a page that is laid over another is left by Escape.
                if (way == "escape"_L1 && !page->opened.contains("edit"_L1))
                    continue;
                window.Open();
                window.Type(field, way == "drop"_L1 ? "" : "99");
                window.modals.WillPress(QMessageBox::Ok);
                if (way == "drop"_L1) {
                    window.Press(field, Qt::Key_Backtab, Qt::ShiftModifier);
                    QMimeData text;
                    text.setText("99");
                    QDragEnterEvent enter({}, Qt::CopyAction, &text, Qt::LeftButton, {});
                    QApplication::sendEvent(box, &enter);
                    QDropEvent drop({}, Qt::CopyAction, &text, Qt::LeftButton, {});
                    QApplication::sendEvent(box, &drop);
                }
                if (way == "drop"_L1 || way == "click"_L1)
                    window.Click(page->Store());
                else if (way == "escape"_L1)
                    window.Press(field, Qt::Key_Escape);
                else if (way != "ahead"_L1)
                    window.Press(field, way == "menu"_L1 ? Qt::Key_G : static_cast<Qt::Key>(store->shortcut()[0].key()),
                                 Qt::AltModifier);
                for (int press = 0; way == "ahead"_L1 && press < 2; ++press)
                    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
                QTRY_VERIFY2(window.modals.AllCame() && box->text().isEmpty(), qPrintable(field + way));
                QCOMPARE(window.Window().focusWidget()->objectName(), field);
                QCOMPARE(window.modals.TakeTexts(), QStringList{page->refusals.extra});
                QVERIFY(!store->isDown());
            }
            QCOMPARE(BallWindow::StoredRows(), before);
        }
    }

    void WhatIsNoDrawAndNoEntryIsNotStored()
    {
        using Row = std::pair<const BallPage*, const char*>;
        for (const auto& [page, cases] : {Row{&Page6, "1 2 3 4 5 6 6|1 2  4 5 6 7|1 2 3 4 5 6 7.5"},
                                          {&Page7, "1 2 3 4 5 0.5|1 2 3 3 5 6"},
                                          {&Page16, "1 2 3 4 5 6 4"},
                                          {&Page17, "1 2 3 3 5 6"},
                                          {&Page18, "1 2 3 4 5 5|1 2 3 4 5 "},
                                          {&Page18T, "1 2 3 4 5 0.5|1 2 3 4 4 5"},
                                          {&Page20, "5 3 4 2 1 5|  1 2 5 6"},
                                          {&Page20T, "5 3 5 2 1 5"}}) {
            BallWindow window(*page);
            const QStringList before = BallWindow::StoredRows();
            for (const QString& typed : QString(cases).split(u'|')) {
                window.Find(page->Field('1'))->setFocus(Qt::TabFocusReason);
                window.TypeBalls(typed);
                QCOMPARE(window.Click(page->Store(), {QMessageBox::Ok}), QStringList{page->refusals.all});
                QCOMPARE(BallWindow::StoredRows(), before);
                // The editor of entries has put them into order before it compares them.
                QStringList shown = typed.split(u' ');
                if (page->Store() == "F20store"_L1)
                    shown.sort();
                QCOMPARE(window.TextsOf(page->Fields(), page->elements), shown.join(u' '));
            }
        }
    }

    /// The numbers are seen in their order, and in their colours, when the page says that they are stored.
    void ChangesAreStoredInOrder()
    {
        const QString sure = "Are you sure you want to replace the old data with this new data?";
        const QString mainStored = "The edited main draw data has been stored.";
        const QString thunderStored = "The edited thunderball draw data has been stored.";
        const QString entryStored = "The changes have been stored.";
        using Row = std::tuple<const BallPage*, const char*, const char*, QStringList, const char*>;
        for (const auto& [page, typed, seen, messages, row] :
             {Row{&Page16, "30 2 17 45 8 11 9", "2 8 11 17 30 45 9 #FFFFFF #80FF80 #FFFF80",
                  QStringList{sure, mainStored}, "1,2000-01-01,Sat,2,8,11,17,30,45,9,ARTHUR,4"},
              Row{&Page17, "30 2 17 8 11 2", "2 8 11 17 30 2 #000080 #000080 #FF0000", QStringList{sure, thunderStored},
                  "1,2000-01-01,Sat,2,8,11,17,30,2"},
              Row{&Page20, "40 3 22 38 41 9", "3 9 22 38 40 41 #FFFFFF #FFFF80 #FFFF80", QStringList{entryStored},
                  "1,1,1,3,9,22,38,40,41,-1,0,0,0,0,0,-1"},
              Row{&Page20T, "34 30 22 15 3 3", "3 15 22 30 34 3 #000080 #000080 #FF0000", QStringList{entryStored},
                  "2,1,2,3,15,22,30,34,3,-1,0,0,0,0,0,-1"}}) {
            BallWindow window(*page);
            window.TypeBalls(typed);
            if (messages.size() > 1)
                window.modals.WillPress(QMessageBox::Yes);
            QString shown;
            window.modals.WillPress(QMessageBox::Ok, [&, on = page] {
                shown = window.TextsOf(on->Fields(), on->elements) + u' ' +
                        window.ColoursOf(on->Discs(), on == &Page17 ? "150" : "156", QPalette::Window);
            });
            window.Click(page->Store());
            QCOMPARE(window.modals.TakeTexts(), messages);
            QCOMPARE(shown, QString(seen));
            QVERIFY(BallWindow::StoredRows().contains(row));
            QVERIFY(!window.IsShown(page->Store()));
        }
    }
};

TAVENOR_TEST(BallPagesTest)
#include "ball_pages_test.moc"
