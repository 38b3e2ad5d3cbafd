#include "support/test_window.h"

#include "base/dates.h"

#include <QClipboard>
#include <QDateEdit>
#include <QTextBlock>
#include <QTextEdit>

namespace {

/// The report of the next check, without its heading.
QString Check(TestWindow& window)
{
    window.Click("F12check");
    const QString report = window.Find<QTextEdit>("F12text")->toPlainText();
    const QString heading = "Tavenor v3.0\n\n";
    return report.startsWith(heading) ? report.mid(heading.size()) : "no heading: " + report;
}

} // namespace

class CheckPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void OpenPageIsReadyToCheckEverything()
    {
        TestWindow window;
        AddUser(users, "Ann", 10);
        window.OpenPage(3, 4);
        QCOMPARE(window.Find<QComboBox>("F12user")->currentText(), QString("All Users"));
        QVERIFY(window.Find<QRadioButton>("F12typeb")->isChecked());
        QVERIFY(window.Find<QRadioButton>("F12datelatest")->isChecked());
        for (const char* hidden : {"F12cal", "F12clear", "F12print"})
            QVERIFY(!window.IsShown(hidden));
        QCOMPARE(Check(window), QString("There are no user entries stored."));
        QVERIFY(window.IsShown("F12clear") && window.IsShown("F12print"));
        // All of it is copied, or what is selected.
        for (const char* copied : {"Tavenor v3.0\n\nThere are no user entries stored.", "Tavenor"}) {
            window.Press("F12text", Qt::Key_C, Qt::ControlModifier);
            QCOMPARE(QApplication::clipboard()->text(), QString(copied));
            window.Find<QTextEdit>("F12text")->moveCursor(QTextCursor::Start);
            window.Find<QTextEdit>("F12text")->moveCursor(QTextCursor::EndOfWord, QTextCursor::KeepAnchor);
        }
        window.Click("F12clear");
        QCOMPARE(window.TextOf("F12text"), QString());
        QVERIFY(!window.IsShown("F12clear") && !window.IsShown("F12print"));
    }

    void HeadingAndUserLinesAreBold()
    {
        TestWindow window;
        AddUser(users, "Ann", 10);
        AddEntry(entries, {1, 1, 1, {1, 2, 3, 4, 5, 6}, {}});
        window.OpenPage(3, 4);
        window.Click("F12check");
        // A report that follows another one takes nothing over from it, wherever the cursor stood.
        auto* report = window.Find<QTextEdit>("F12text");
        QTextCursor inTheHeading(report->document());
        inTheHeading.setPosition(5);
        report->setTextCursor(inTheHeading);
        window.Click("F12check");
        QStringList bold;
        for (QTextBlock block = report->document()->begin(); block.isValid(); block = block.next())
            for (auto part = block.begin(); !part.atEnd(); ++part)
                if (part.fragment().charFormat().fontWeight() == QFont::Bold)
                    bold.append(part.fragment().text());
        QCOMPARE(bold, (QStringList{"Tavenor v3.0", "User: Ann"}));
    }

    void FirstOfTwoUsersOfOneNameIsChecked()
    {
        TestWindow window;
        AddUser(users, "Ann", 9);
        AddUser(users, "Ann", 9);
        StoreDraws(MainGame, {"2026-11-21,1,2,3,4,5,6,7,,"});
        AddEntry(entries, {1, 2, 1, {1, 2, 3, 4, 5, 6}, {true, true, true, true, true, true, true}});
        window.OpenPage(3, 4);
        window.Find<QComboBox>("F12user")->setCurrentIndex(2);
        window.Find<QRadioButton>("F12typem")->click();
        QCOMPARE(Check(window),
                 QString("User: Ann\n  Draw type: Main (21/11/2026)\n    No main entries on this date.\n\n"));
    }

    /// A date of another form is told as on the other pages; what is no date names no day on which entries are played.
    void OddDateOfTheNewestDrawIsTold()
    {
        for (const auto& [stored, shown, lines] : {std::tuple("2024-1-9", "09/01/2024", "    1>  0 main balls. \n"),
                                                   {"long ago", "long ago", "    No main entries on this date.\n"}}) {
            TestWindow window;
            StoreDraws(MainGame, {"2024-01-09,1,2,3,4,5,6,7,,"});
            ukmain.MoveFirst();
            ukmain.Edit();
            ukmain.SetField(DrawField::Date, std::string_view(stored));
            ukmain.Update();
            ukmainlist.Requery();
            AddUser(users, "Ann", 9);
            AddEntry(entries, {1, 1, 1, {11, 12, 13, 14, 15, 16}, {true, true, true, true, true, true, true}});
            window.OpenPage(3, 4);
            window.Click("F12typem");
            QCOMPARE(Check(window), QString("User: Ann\n  Draw type: Main (%1)\n%2\n").arg(shown, lines));
        }
    }

    /// In every language: the year has four digits, and is the one that is typed.
    void DateIsTypedWithItsYear()
    {
        TestWindow window;
        AddUser(users, "Ann", 9);
        window.OpenPage(3, 4);
        window.Click("F12dateselect");
        auto* date = window.Find<QDateEdit>("F12cal");
        const QDate wanted(1999, 12, 31);
        date->setDate(wanted);
        const QString shown = date->text();
        QCOMPARE(shown, ShortDate(wanted));
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
        QCOMPARE(date->text(), shown);
    }

    void ReportFollowsTheChoices()
    {
        TestWindow window;
        // Of two draws of one day the one added last comes first in the list.
        StoreDraws(MainGame, {"2026-11-21,31,32,33,34,35,36,37,,", "2026-11-21,1,2,3,4,5,6,7,,",
                              "2026-11-18,11,12,13,14,15,16,17,,"});
        StoreDraws(ThunderballGame, {"2026-11-18,1,2,3,4,5,6"});
        AddUser(users, "Cid", 9);
        AddUser(users, "Ann", 9);
        const DaySet saturday{false, false, false, false, false, true, false};
        const DaySet wednesday{false, false, true, false, false, false, false};
        AddEntry(entries, {1, 2, 1, {1, 2, 3, 11, 12, 13}, saturday});
        AddEntry(entries, {2, 1, 1, {11, 12, 17, 31, 32, 33}, wednesday});
        AddEntry(entries, {3, 2, 2, {5, 31, 32, 33, 34, 6}, wednesday});
        const QString mainLatest = "  Draw type: Main (21/11/2026)\n";
        const QString mainEarlier = "  Draw type: Main (18/11/2026)\n";
        const QString thunderball = "  Draw type: Thunderball (18/11/2026)\n";
        const QString noMain = "    No main entries on this date.\n";
        const QString noThunderball = "    No thunderball entries on this date.\n";
        const QString annsMain = "    1>  3 main balls. <<WIN>>\n";
        const QString annsThunderball = "    1>    1 main ball + thunderball. <<WIN>>\n";
        window.OpenPage(3, 4);
        QCOMPARE(Check(window), "User: Cid\n" + mainLatest + noMain + thunderball + noThunderball + "\nUser: Ann\n" +
                                    mainLatest + annsMain + thunderball + annsThunderball + '\n');
        window.Find<QComboBox>("F12user")->setCurrentIndex(2);
        window.Find<QRadioButton>("F12typet")->click();
        QCOMPARE(Check(window), "User: Ann\n" + thunderball + annsThunderball + '\n');

        window.Find<QRadioButton>("F12dateselect")->click();
        auto* date = window.Find<QDateEdit>("F12cal");
        QVERIFY(date->isVisible());
        QCOMPARE(date->date(), QDate::currentDate());
        window.Find<QRadioButton>("F12typem")->click();
        date->setDate(QDate(2026, 11, 21));
        QCOMPARE(Check(window), "User: Ann\n" + mainLatest + annsMain + '\n');
        window.Find<QComboBox>("F12user")->setCurrentIndex(0);
        date->setDate(QDate(2026, 11, 18));
        QCOMPARE(Check(window), "User: Cid\n" + mainEarlier + "    1>  2 main balls + bonus. \n\nUser: Ann\n" +
                                    mainEarlier + noMain + '\n');
        window.Find<QRadioButton>("F12typeb")->click();
        window.Find<QComboBox>("F12user")->setCurrentIndex(2);
        date->setDate(QDate(2026, 11, 19));
        QCOMPARE(Check(window),
                 QString("User: Ann\n  No main draw on this date.\n  No thunderball draw on this date.\n\n"));
        window.Find<QRadioButton>("F12datelatest")->click();
        QVERIFY(!date->isVisible());
        QCOMPARE(Check(window), "User: Ann\n" + mainLatest + annsMain + thunderball + annsThunderball + '\n');
        window.Find<QRadioButton>("F12dateselect")->click();
        QCOMPARE(date->date(), QDate::currentDate());
    }
};

TAVENOR_TEST(CheckPageTest)
#include "check_page_test.moc"
