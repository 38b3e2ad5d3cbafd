#include "support/test_window.h"

#include "base/dates.h"

#include <QClipboard>
#include <QDateEdit>
#include <QTextBlock>
#include <QTextEdit>

namespace {

const DaySet EachDay{true, true, true, true, true, true, true};

/// The page with the users Cid and Ann, of whom Ann has the number 2.
class CheckedPage : public TestWindow
{
public:
    CheckedPage() { AddUser(users, "Cid", 9); }

    void Open(const QString& second = "Ann")
    {
        AddUser(users, second, 9);
        OpenPage(3, 4);
    }

    /// The report of the next check, without its heading.
    QString Check()
    {
        Click("F12check");
        const QString report = Find<QTextEdit>("F12text")->toPlainText();
        const QString heading = "Tavenor v3.0\n\n";
        return report.startsWith(heading) ? report.mid(heading.size()) : "no heading: " + report;
    }
};

} // namespace

class CheckPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ReportIsCopiedAndCleared()
    {
        CheckedPage page;
        page.Open();
        for (const char* hidden : {"F12cal", "F12clear", "F12print"})
            QVERIFY(!page.IsShown(hidden));
        QCOMPARE(page.Check(), QString("There are no user entries stored."));
        QVERIFY(page.IsShown("F12clear") && page.IsShown("F12print"));
        // All of it is copied, or what is selected.
        for (const char* copied : {"Tavenor v3.0\n\nThere are no user entries stored.", "Tavenor"}) {
            page.Press("F12text", Qt::Key_C, Qt::ControlModifier);
            QCOMPARE(QApplication::clipboard()->text(), QString(copied));
            page.Find<QTextEdit>("F12text")->moveCursor(QTextCursor::Start);
            page.Find<QTextEdit>("F12text")->moveCursor(QTextCursor::EndOfWord, QTextCursor::KeepAnchor);
        }
        page.Click("F12clear");
        QCOMPARE(page.TextOf("F12text"), QString());
        QVERIFY(!page.IsShown("F12clear") && !page.IsShown("F12print"));
    }

    void HeadingAndUserLinesAreBold()
    {
        CheckedPage page;
        AddEntry(entries, {1, 1, 1, {1, 2, 3, 4, 5, 6}, {}});
        page.Open();
        // A report that follows another one takes nothing over from it, wherever the cursor stood.
        auto* report = page.Find<QTextEdit>("F12text");
        for (int check = 0; check < 2; ++check) {
            page.Click("F12check");
            report->moveCursor(QTextCursor::NextWord);
        }
        QString bold;
        for (QTextBlock block = report->document()->begin(); block.isValid(); block = block.next())
            for (auto part = block.begin(); !part.atEnd(); ++part)
                bold += part.fragment().charFormat().fontWeight() == QFont::Bold ? part.fragment().text() : QString();
        QCOMPARE(bold, QString("Tavenor v3.0User: CidUser: Ann"));
    }

    void FirstOfTwoUsersOfOneNameIsChecked()
    {
        CheckedPage page;
        StoreDraws(MainGame, {"2026-11-21,1,2,3,4,5,6,7,,"});
        AddEntry(entries, {1, 2, 1, {1, 2, 3, 4, 5, 6}, EachDay});
        page.Open("Cid");
        page.Find<QComboBox>("F12user")->setCurrentIndex(2);
        page.Click("F12typem");
        QCOMPARE(page.Check(),
                 QString("User: Cid\n  Draw type: Main (21/11/2026)\n    No main entries on this date.\n\n"));
    }

    /// A date of another form is told as on the other pages; what is no date names no day on which entries are played.
    void OddDateOfTheNewestDrawIsTold()
    {
        for (const auto& [stored, shown, lines] : {std::tuple("2024-1-9", "09/01/2024", "    1>  0 main balls. \n"),
                                                   {"long ago", "long ago", "    No main entries on this date.\n"}}) {
            CheckedPage page;
            StoreDraws(MainGame, {"2024-01-09,1,2,3,4,5,6,7,,"});
            ukmain.MoveFirst();
            ukmain.Edit();
            ukmain.SetField(DrawField::Date, stored);
            ukmain.Update();
            ukmainlist.Requery();
            AddEntry(entries, {1, 2, 1, {11, 12, 13, 14, 15, 16}, EachDay});
            page.Open();
            page.Find<QComboBox>("F12user")->setCurrentIndex(2);
            page.Click("F12typem");
            QCOMPARE(page.Check(), QString("User: Ann\n  Draw type: Main (%1)\n%2\n").arg(shown, lines));
        }
    }

    /// In every language: the year has four digits, and is the one that is typed.
    void DateIsTypedWithItsYear()
    {
        CheckedPage page;
        page.Open();
        page.Click("F12dateselect");
        auto* date = page.Find<QDateEdit>("F12cal");
        const QDate wanted(1999, 12, 31);
        date->setDate(QDate(2026, 1, 1));
        date->setFocus();
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
        page.Open();
        const QString main = "  Draw type: Main (21/11/2026)\n";
        const QString earlier = "  Draw type: Main (18/11/2026)\n";
        const QString thunderball = "  Draw type: Thunderball (18/11/2026)\n";
        const QString noMain = "    No main entries on this date.\n";
        const QString cidsMain = "    1>  2 main balls + bonus. \n";
        const QString annsMain = "    1>  3 main balls. <<WIN>>\n";
        const QString annsThunder = thunderball + "    1>    1 main ball + thunderball. <<WIN>>\n";
        const QString nobodysThunder = thunderball + "    No thunderball entries on this date.\n";
        const QString noDraws = "  No main draw on this date.\n  No thunderball draw on this date.\n";
        auto* date = page.Find<QDateEdit>("F12cal");
        // Each row is a line of the list of users, the options, and the blocks of Cid and Ann.
        for (const auto& [user, options, day, cid, ann] :
             {std::tuple(0, "", QDate(), main + noMain + nobodysThunder, main + annsMain + annsThunder),
              {2, "F12typet", QDate(), {}, annsThunder},
              {2, "F12dateselect F12typem", QDate(2026, 11, 21), {}, main + annsMain},
              {0, "F12typem", QDate(2026, 11, 18), earlier + cidsMain, earlier + noMain},
              {2, "F12typeb", QDate(2026, 11, 19), {}, noDraws},
              {2, "F12datelatest", QDate(), {}, main + annsMain + annsThunder}}) {
            page.Find<QComboBox>("F12user")->setCurrentIndex(user);
            for (const QString& option : QString(options).split(' ', Qt::SkipEmptyParts))
                page.Click(option);
            QCOMPARE(date->isVisible(), day.isValid());
            date->setDate(day);
            QCOMPARE(page.Check(),
                     (cid.isEmpty() ? QString() : "User: Cid\n" + cid + '\n') + "User: Ann\n" + ann + '\n');
        }
        page.Click("F12dateselect");
        QCOMPARE(date->date(), QDate::currentDate());
    }
};

TAVENOR_TEST(CheckPageTest)
#include "check_page_test.moc"
