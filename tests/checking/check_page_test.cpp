#include "support/test_window.h"

#include "base/dates.h"
#include "checking/check_report.h"

#include <QClipboard>
#include <QDateEdit>
#include <QTextBlock>
#include <QTextEdit>

namespace {

const DaySet EachDay{true, true, true, true, true, true, true};

/// A Saturday; the thunderball is the sixth ball, the bonus the seventh.
const CheckedDraw Draw{QDate(2026, 11, 21), {1, 2, 3, 4, 5, 6, 7}, "today"};

/// The page with the users Cid and Ann, and a second Ann, who has nothing.
class CheckedPage : public TestWindow
{
public:
    CheckedPage()
    {
        for (const char* name : {"Cid", "Ann", "Ann"})
            AddUser(users, name, 9);
        OpenPage(3, 4);
    }

    QTextEdit* Report() const { return Find<QTextEdit>("F12text"); }
    QDateEdit* Date() const { return Find<QDateEdit>("F12cal"); }
    /// The report of the next check, on the user at that place in the list.
    QString Check(int user)
    {
        Find<QComboBox>("F12user")->setCurrentIndex(user);
        Click("F12check");
        return Report()->toPlainText();
    }
};

QString Block(const QString& name, const QString& sections)
{
    return "User: " + name + '\n' + sections + '\n';
}

} // namespace

class CheckPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EntryIsComparedAndWins()
    {
        // A thunderball that equals a main ball is no main match, nor the other way round.
        const std::tuple<int, std::array<double, 6>, QString> rows[] = {
            {1, {7, 12, 13, 14, 15, 16}, "  0 main balls + bonus. "},
            {1, {1, 2, 13, 14, 15, 7}, "  2 main balls + bonus. "},
            {1, {1, 2, 3, 14, 15, 16}, "  3 main balls. <<WIN>>"},
            {1, {1, 2, 3, 4, 5, 7}, "  5 main balls + bonus. <<WIN>>"},
            {2, {6, 12, 13, 14, 15, 1}, "    0 main balls. "},
            {2, {11, 12, 13, 14, 15, 6}, "    0 main balls + thunderball. "},
            {2, {1, 12, 13, 14, 15, 6}, "    1 main ball + thunderball. <<WIN>>"},
            {2, {1, 2, 3, 4, 5, 1}, "    5 main balls. <<WIN>>"}};
        for (const auto& [drawType, numbers, line] : rows) {
            const CheckedUser user{1, "Ann"};
            const CheckedGame game{&GameOfDrawType(drawType), Draw};
            const EntryRow entry{1, 1, drawType, numbers, EachDay};
            const QString sections = WriteCheckReport({&user, 1}, {&game, 1}, {&entry, 1}).back().text;
            QCOMPARE(sections.section("\r\n", 1, 1), "    1>" + line);
        }
    }

    void ReportIsBoldInPartsCopiedAndCleared()
    {
        CheckedPage page;
        QCOMPARE(page.Check(0), QString("Tavenor v3.0\n\nThere are no user entries stored."));
        AddEntry(entries, {1, 1, 1, {1, 2, 3, 4, 5, 6}, {}});
        const QString text = page.Check(0);
        QString bold;
        for (QTextBlock block = page.Report()->document()->begin(); block.isValid(); block = block.next())
            for (auto part = block.begin(); !part.atEnd(); ++part)
                bold += part.fragment().charFormat().fontWeight() == QFont::Bold ? part.fragment().text() : QString();
        QCOMPARE(bold, QString("Tavenor v3.0User: CidUser: AnnUser: Ann"));
        page.Press("F12text", Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), text);
        page.Click("F12clear");
        QVERIFY(page.TextOf("F12text").isEmpty() && !page.IsShown("F12clear") && !page.IsShown("F12print"));
    }

    /// A date of another form is told as on the other pages; what is no date names no day on which entries are played.
    void OddDateOfTheNewestDrawIsTold()
    {
        for (const auto& [stored, shown, lines] : {std::tuple("2024-1-9", "09/01/2024", "    1>  0 main balls. \n"),
                                                   {"long ago", "long ago", "    No main entries on this date.\n"}}) {
            CheckedPage page;
            ukmain.AddNew();
            ukmain.SetField(DrawField::Date, stored);
            ukmain.Update();
            AddEntry(entries, {1, 1, 1, {11, 12, 13, 14, 15, 16}, EachDay});
            page.Click("F12typem");
            QCOMPARE(page.Check(1),
                     "Tavenor v3.0\n\n" + Block("Cid", QString("  Draw type: Main (%1)\n").arg(shown) + lines));
        }
    }

    /// In every language: the year has four digits, and is the one that is typed.
    void DateIsTypedWithItsYear()
    {
        CheckedPage page;
        page.Click("F12dateselect");
        QDateEdit* date = page.Date();
        QCOMPARE(date->date(), QDate::currentDate());
        const QDate wanted(1999, 12, 31);
        date->setDate(QDate(2026, 1, 1));
        date->setFocus();
        for (const auto& [key, foldsOut] : {std::pair(Qt::Key_F4, true), {Qt::Key_Escape, false}}) {
            page.PressFocused(key);
            QCOMPARE(QApplication::activePopupWidget() != nullptr, foldsOut);
        }
        for (int place = 0; place < date->sectionCount(); ++place) {
            const auto section = date->sectionAt(place);
            date->setSelectedSection(section);
            QTest::keyClicks(date, section == QDateEdit::DaySection     ? "31"
                                   : section == QDateEdit::MonthSection ? "12"
                                                                        : "1999");
        }
        QTest::keyClick(date, Qt::Key_Return);
        QCOMPARE(date->date(), wanted);
        QCOMPARE(date->text(), ShortDate(wanted));
    }

    void ReportFollowsTheChoices()
    {
        // Of two draws of one day the one added last comes first in the list.
        CheckedPage page;
        StoreDraws(MainGame, {"2026-11-21,31,32,33,34,35,36,37,,", "2026-11-21,1,2,3,4,5,6,7,,",
                              "2026-11-18,11,12,13,14,15,16,17,,"});
        StoreDraws(ThunderballGame, {"2026-11-18,1,2,3,4,5,6"});
        AddEntry(entries, {1, 2, 1, {1, 2, 3, 11, 12, 13}, {false, false, false, false, false, true, false}});
        AddEntry(entries, {2, 1, 1, {11, 12, 17, 31, 32, 33}, {false, false, true, false, false, false, false}});
        AddEntry(entries, {3, 2, 2, {5, 31, 32, 33, 34, 6}, {false, false, true, false, false, false, false}});
        const QString main = "  Draw type: Main (21/11/2026)\n";
        const QString thunder = "  Draw type: Thunderball (18/11/2026)\n";
        const QString annsMain = main + "    1>  3 main balls. <<WIN>>\n";
        const QString annsThunder = thunder + "    1>    1 main ball + thunderball. <<WIN>>\n";
        const QString cidsMain = "  Draw type: Main (18/11/2026)\n    1>  2 main balls + bonus. \n";
        const QString nothing =
            main + "    No main entries on this date.\n" + thunder + "    No thunderball entries on this date.\n";
        const QString noDraws = "  No main draw on this date.\n  No thunderball draw on this date.\n";
        // Each row is a line of the list of users, the options, and the blocks. The first of two users of one name is
        // checked.
        for (const auto& [user, options, day, blocks] :
             {std::tuple(0, "", QDate(),
                         Block("Cid", nothing) + Block("Ann", annsMain + annsThunder) + Block("Ann", nothing)),
              {3, "F12typet", QDate(), Block("Ann", annsThunder)},
              {1, "F12dateselect F12typem", QDate(2026, 11, 18), Block("Cid", cidsMain)},
              {2, "F12typeb", QDate(2026, 11, 19), Block("Ann", noDraws)},
              {2, "F12datelatest", QDate(), Block("Ann", annsMain + annsThunder)}}) {
            for (const QString& option : QString(options).split(' ', Qt::SkipEmptyParts))
                page.Click(option);
            QCOMPARE(page.Date()->isVisible(), day.isValid());
            page.Date()->setDate(day);
            QCOMPARE(page.Check(user), "Tavenor v3.0\n\n" + blocks);
        }
    }
};

TAVENOR_TEST(CheckPageTest)
#include "check_page_test.moc"
