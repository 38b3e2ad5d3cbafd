#include "support/grid_driver.h"

#include "controls/month_calendar.h"

namespace {

const QString MainRange = u"Ball values must be between 1 and 49"_s;
const QString ThunderRange = u"Main ball values must be between 1 and 34"_s;
const QString NewExtra = u"Thunderball value must be between 1 and 14"_s;
const QString Again = u"Error detected in the data that you entered.\r\nPlease re-check and press '%1' again."_s;
const QString Equal = u"Two or more %1 have the same value,\r\nplease retry."_s;
const QString Replace = u"Are you sure you want to replace the old data with this new data?"_s;
const QString NewMain = u"The new main draw data has been stored."_s;
const QString NewThunder = u"The new Thunderball draw data has been stored."_s;
const QString NewEntry = u"This entry has been stored."_s;
const QString Changed = u"The changes have been stored."_s;

/// A page on which balls are typed.
struct BallPage
{
    /// The group of the menu, its sub-option, and what is clicked then; in the list of games the second is chosen.
    QString opened;
    /// The arrays of the fields and of the discs, the button that stores, where Enter leads from the last ball, and the
    /// grid from which the page was opened.
    QString controls;
    /// The elements of the balls in the order in which they are typed.
    QString elements;

    QString Control(int place) const { return controls.section(u' ', place, place); }
    QString Field(QChar element) const { return Control(0) + u'_' + element; }
    QString Store() const { return Control(2); }
    bool Edits() const { return opened.contains("edit"_L1); }
};

const BallPage Page6{"1 1", "F6MBall1 F6MBall F6Store F6Mmachine", "1234560"};
const BallPage Page7{"1 2", "F7TBall1 F7TBall F7Store F7Store", "123450"};
const BallPage Page16{"2 3 F10maineditbutton", "F16number F16ball F16save F16machine F10Grid1", "1234560"};
const BallPage Page17{"2 3 F10thundereditbutton", "F17number F17ball F17save F17save F10Grid2", "123450"};
const BallPage Page18{"3 2", "F18ent F18ball F18store F18store", "123456"};
const BallPage Page18T{"3 2 F18type", "F18ent F18ball F18store F18store", "123456"};
const BallPage Page20{"3 3 F13edit", "F20num F20ball F20store F20store F13grid", "123456"};
const BallPage Page20T{"3 3 F13typethunder F13edit", "F20num F20ball F20store F20store F13grid", "123456"};

/// The window with two draws of each game, and an entry of each; the newer draw was stored first.
class BallWindow : public TestWindow
{
public:
    explicit BallWindow(const BallPage& ballPage) : page(ballPage)
    {
        const DaySet days{true, false, false, false, false, false, true};
        StoreDraws(MainGame, {"2000-01-01,3,15,22,38,41,49,9,ARTHUR,4", "1999-12-25,3,15,22,38,41,49,9,ARTHUR,4"});
        StoreDraws(ThunderballGame, {"2000-01-01,3,15,22,30,34,14", "1999-12-25,3,15,22,30,34,14"});
        AddUser(users, "Ann", 10);
        AddEntry(entries, {1, 1, 1, {3, 15, 22, 38, 41, 49}, days});
        AddEntry(entries, {2, 1, 2, {3, 15, 22, 30, 34, 14}, days});
        Open();
    }

    /// Opens the page anew; the first ball has the focus, but on the page on which the user may be chosen first.
    void Open()
    {
        const QStringList clicks = page.opened.split(u' ');
        OpenPage(clicks[0].toInt(), clicks[1].toInt());
        for (const QString& name : clicks.mid(2))
            name == "F18type"_L1 ? Choose(name, 1) : Click(name);
        QCOMPARE(FocusedName() == page.Field('1'), page.Store() != "F18store"_L1);
    }

    void ChooseDate(QDate date)
    {
        auto* calendar = Find<MonthCalendar>(page.Store() == "F6Store"_L1 ? "F6Cal" : "F7cal");
        calendar->setFocus();
        calendar->setSelectedDate(date);
        Q_EMIT calendar->clicked(date);
        QCOMPARE(FocusedName(), page.Field('1'));
    }

    /// Types balls, machine and set of balls as a player does, going on with Enter; what is in a field is replaced.
    void TypeBalls(const QString& texts)
    {
        Find(page.Field('1'))->setFocus(Qt::TabFocusReason);
        for (const QString& text : texts.split(u' ')) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
            QTest::keyClicks(QApplication::focusWidget(), text);
            PressFocused(Qt::Key_Return);
        }
        QCOMPARE(FocusedName(), page.Control(texts.count(u' ') < page.elements.size() ? 3 : 2));
    }

    QString Colours(QChar element) const
    {
        return ColoursOf(page.Control(1), element, QPalette::Window) + u' ' +
               ColoursOf(page.Control(0), element, QPalette::Base) + u' ' +
               ColoursOf(page.Control(0), element, QPalette::Text);
    }
    /// The texts of all balls, and the colours of the first, the fifth and the last one.
    QString Seen() const
    {
        return TextsOf(page.Control(0), page.elements) + u' ' +
               ColoursOf(page.Control(1), u"15"_s + page.elements.back(), QPalette::Window);
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
    /// Each accepted case is an element, what is typed into it, and the colours of its ball and its digits when it is
    /// left. Each refused one is told, emptied and focused, and nothing else happens, whatever is done; ways and cases
    /// take turns.
    void FieldIsColouredOrRefused()
    {
        using Row = std::tuple<const BallPage*, const char*, const char*, QString, QString>;
        for (const auto& [page, accepted, refused, told, toldOfLast] :
             {Row{&Page6, "1:9:#FFFFFF:#000000 0:49:#FFFF80:#000000 1:9.5:#80FFFF:#000000 2::#404040:#FFFFFF",
                  "0:50 1:abc 6:49.5 1:0.5", MainRange, MainRange},
              {&Page7, "1:34:#000080:#FFFFFF 0:14:#FF0000:#000000 0:0.5:#FF0000:#000000", "0:15 5:35 0:0", ThunderRange,
               NewExtra},
              {&Page16, "3:39:#80FF80:#000000", "0:50 1:0", MainRange, MainRange},
              {&Page17, "1:34:#000080:#FFFFFF 1::#000080:#FFFFFF", "0:0.5 5:35", "Balls must be between 1 and 34",
               "Thunderball must be between 1 and 14"},
              {&Page20, "6:20:#FF8080:#000000", "6:50 2:1.5", MainRange, MainRange},
              {&Page20T, "6:14:#FF0000:#000000 5::#404040:#FFFFFF", "6:0.5 2:35", ThunderRange,
               "Main ball values must be between 1 and 14"}}) {
            BallWindow window(*page);
            const QStringList before = BallWindow::StoredRows();
            for (const QString& wanted : QString(accepted).split(u' ')) {
                const QStringList parts = wanted.split(u':');
                window.Type(page->Field(wanted[0]), parts[1]);
                window.PressFocused(Qt::Key_Tab);
                QCOMPARE(window.Colours(wanted[0]), QString("%1 %1 %2").arg(parts[2], parts[3]));
            }
            const QStringList turns = QString(refused).split(u' ');
            const QString shortcut = window.Find<QPushButton>(page->Store())->shortcut().toString();
            const QStringList ways{"Tab", shortcut, "Return, Return", "click"};
            for (int turn = 0; turn < ways.size(); ++turn) {
                const QString& wanted = turns[turn % turns.size()];
                const QString field = page->Field(wanted[0]);
                window.Open();
                window.Type(field, wanted.mid(2));
                window.modals.WillPress(QMessageBox::Ok);
                if (ways[turn] == "click")
                    window.Click(page->Store());
                else
                    for (const QString& keys : ways[turn].split(", "))
                        QTest::keySequence(QApplication::focusWidget(), QKeySequence(keys));
                QTRY_VERIFY2(window.modals.AllCame() && window.TextOf(field).isEmpty(), qPrintable(field + ways[turn]));
                QCOMPARE(window.modals.TakeTexts(), {wanted[0] == page->elements.back() ? toldOfLast : told});
                QCOMPARE(window.Window().focusWidget()->objectName(), field);
            }
            QCOMPARE(BallWindow::StoredRows(), before);
        }
    }

    /// Each row tells what is refused, what is typed then, how it is seen when the page says that it is stored, and the
    /// row that is stored. A page that adds is ready for the next one then; another is left.
    void BallsAreRefusedOrStoredInOrder()
    {
        using Row = std::tuple<const BallPage*, const char*, QString, const char*, QString, const char*, QString>;
        const QString grey = "#404040 #404040 #404040";
        const QString again = Again.arg("Store");
        const QString againChanged = Again.arg("Save Changes");
        for (const auto& [page, refused, why, typed, seen, stored, told] :
             {Row{&Page6, "1 2 3 4 5 6 4|1 2  4 5 6 7|1 2 3 4 5 6 7.5", again, "40 3 27 9 33 1 12 merlin ",
                  "       " + grey, "3,2026-11-21,Sat,1,3,9,27,33,40,12,merlin,", NewMain},
              {&Page7, "1 2 3 4 5 0.5|1 2 3 3 5 6", again, "30 2 15 7 21 2", "      " + grey,
               "3,2026-11-21,Sat,2,7,15,21,30,2", NewThunder},
              {&Page16, "1 2 3 4 5 6 4", againChanged, "30 2 17 45 8 11 9 XII 9a",
               "2 8 11 17 30 45 9 #FFFFFF #80FF80 #FFFFFF", "1,2000-01-01,Sat,2,8,11,17,30,45,9,XII,9a",
               Replace + "|The edited main draw data has been stored."},
              {&Page17, "1 2 3 3 5 6", againChanged, "30 2 17 8 11 2", "2 8 11 17 30 2 #000080 #000080 #FF0000",
               "1,2000-01-01,Sat,2,8,11,17,30,2", Replace + "|The edited thunderball draw data has been stored."},
              {&Page18, "1 2 3 4 5 5|1 2 3 4 5 ", again, "40 3 17 25 9 33", "3 9 17 25 33 40 #FFFFFF #80FF80 #FFFF80",
               "3,1,1,3,9,17,25,33,40,-1,0,0,0,0,0,-1", NewEntry},
              {&Page18T, "1 2 3 4 5 0.5|1 2 3 4 4 5", again, "30 2 15 7 21 2", "2 7 15 21 30 2 #000080 #000080 #FF0000",
               "3,1,2,2,7,15,21,30,2,-1,0,0,0,0,0,-1", NewEntry},
              {&Page20, "5 3 4 2 1 5|  1 2 5 6", Equal.arg("balls"), "40 3 22 38 41 9",
               "3 9 22 38 40 41 #FFFFFF #FFFF80 #FFFF80", "1,1,1,3,9,22,38,40,41,-1,0,0,0,0,0,-1", Changed},
              {&Page20T, "5 3 5 2 1 5", Equal.arg("main balls"), "34 30 22 15 3 3",
               "3 15 22 30 34 3 #000080 #000080 #FF0000", "2,1,2,3,15,22,30,34,3,-1,0,0,0,0,0,-1", Changed}}) {
            BallWindow window(*page);
            const QStringList before = BallWindow::StoredRows();
            for (const QString& balls : QString(refused).split(u'|')) {
                window.TypeBalls(balls);
                QCOMPARE(window.Click(page->Store(), {QMessageBox::Ok}), {why});
                QCOMPARE(BallWindow::StoredRows(), before);
            }
            if (told == NewMain || told == NewThunder)
                window.ChooseDate({2026, 11, 21});
            window.TypeBalls(typed);
            if (told == NewEntry) {
                QCOMPARE(window.Click("F18store", {QMessageBox::Ok}),
                         {"You must specify at least ONE draw day. Please retry."});
                QCOMPARE(window.Seen(), seen);
                window.Click("F18day_0");
                window.Click("F18day_6");
            }
            if (told.startsWith(Replace))
                window.modals.WillPress(QMessageBox::Yes);
            QString whileTold;
            window.modals.WillPress(QMessageBox::Ok, [&] { whileTold = window.Seen(); });
            window.Click(page->Store());
            QCOMPARE(window.modals.TakeTexts().join(u'|'), told);
            QCOMPARE(whileTold, seen);
            QVERIFY2(BallWindow::StoredRows().contains(stored), qPrintable(stored));
            QCOMPARE(window.IsShown(page->Store()), !page->Edits());
            if (page->Edits()) {
                const QString shown = GridDriver(window, page->Control(4)).Row(0, 2);
                QCOMPARE(shown, seen.section(u' ', 0, page->elements.size() - 1).replace(u' ', u','));
            } else {
                QCOMPARE(window.Seen().trimmed(), grey);
                QCOMPARE(window.FocusedName(), page->Field('1'));
            }
        }
    }

    /// Without a button the prompt is closed by its frame.
    void SecondDrawOfADateIsAskedFor()
    {
        const QString first = "1,2000-01-01,Sat,3,15,22,38,41,49,9,ARTHUR,4";
        const QString notStored = "The data has NOT been stored.";
        const QString second = "|2,1999-12-25,Sat,3,15,22,38,41,49,9,ARTHUR,4";
        const QString typed = "2000-01-01,Sat,11,12,13,14,15,16,17,,";
        for (const auto& [button, told, rows] : {std::tuple("Command1", NewMain, first + second + "|3," + typed),
                                                 {"Command2", NewMain, "1," + typed + second},
                                                 {"Command3", notStored, first + second},
                                                 {"", notStored, first + second}}) {
            BallWindow window(Page6);
            window.ChooseDate({2000, 1, 1});
            window.TypeBalls("16 15 14 13 12 11 17");
            window.modals.WillDo([pressed = QString(button)](QDialog& prompt) {
                pressed.isEmpty() ? void(prompt.close()) : PressIn(prompt, pressed);
            });
            QCOMPARE(window.Click("F6Store", {QMessageBox::Ok}), {told});
            QCOMPARE(TestFolder::StoredRows("ukmain").join(u'|'), rows);
            QCOMPARE(DrawListOf(MainGame).Count(), rows.count(u'|') + 1);
            QVERIFY(window.IsShown("F6Store"));
            QCOMPARE(window.TextOf("F6MBall1_1"), told == notStored ? "11" : "");
        }
    }
};

TAVENOR_TEST(BallPagesTest)
#include "ball_pages_test.moc"
