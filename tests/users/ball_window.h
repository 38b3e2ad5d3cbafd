#pragma once

#include "support/test_window.h"

#include "controls/month_calendar.h"

using namespace Qt::StringLiterals;

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
    /// Whether a refused field turns grey before its message.
    bool greyFirst;

    QString Control(int place) const { return controls.section(u' ', place, place); }
    QString Field(QChar element) const { return Control(0) + u'_' + element; }
    QString Store() const { return Control(2); }
    bool Edits() const { return opened.contains("edit"_L1); }
};

inline const BallPage Page6{"1 1", "F6MBall1 F6MBall F6Store F6Mmachine", "1234560", true};
inline const BallPage Page7{"1 2", "F7TBall1 F7TBall F7Store F7Store", "123450", false};
inline const BallPage Page16{"2 3 F10maineditbutton", "F16number F16ball F16save F16machine F10Grid1", "1234560", true};
inline const BallPage Page17{"2 3 F10thundereditbutton", "F17number F17ball F17save F17save F10Grid2", "123450", false};
inline const BallPage Page18{"3 2", "F18ent F18ball F18store F18store", "123456", true};
inline const BallPage Page18T{"3 2 F18type", "F18ent F18ball F18store F18store", "123456", false};
inline const BallPage Page20{"3 3 F13edit", "F20num F20ball F20store F20store F13grid", "123456", false};
inline const BallPage Page20T{"3 3 F13typethunder F13edit", "F20num F20ball F20store F20store F13grid", "123456",
                              false};

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
    QString Texts() const { return TextsOf(page.Control(0), page.elements); }
    /// The texts of all balls, and the colours of the first, the fifth and the last one.
    QString Seen() const
    {
        return Texts() + u' ' + ColoursOf(page.Control(1), u"15"_s + page.elements.back(), QPalette::Window);
    }

    static QStringList StoredRows()
    {
        return TestFolder::StoredRows("ukmain") + TestFolder::StoredRows("ukthunder") +
               TestFolder::StoredRows("entries");
    }

    const BallPage& page;
};
