#include "support/test_window.h"

#include "draws/draw_records.h"
#include "draws/game.h"
#include "platform/dates.h"
#include "platform/random_source.h"
#include "users/user_records.h"

#include <QComboBox>
#include <QDateEdit>
#include <QRadioButton>
#include <QSet>
#include <QTextBlock>
#include <QTextEdit>

namespace {

void Open(TestWindow& window)
{
    window.Click("Button3");
    window.Click("Suboption4");
}

QString Report(const TestWindow& window)
{
    return window.Find<QTextEdit>("F12text")->toPlainText();
}

/// The same report from the stored rows as texts, by sets of words.
QString ReportFromRows(const QStringList& drawsOfGame, bool thunderball, const QString& userNumber,
                       const QStringList& storedEntries)
{
    const QString game = thunderball ? "thunderball" : "main";
    if (drawsOfGame.isEmpty())
        return QString("  No %1 draw on this date.\n").arg(game);
    const QStringList draw = drawsOfGame.first().split(',');
    const QDate date = QDate::fromString(draw[1], Qt::ISODate);
    QString text = QString("  Draw type: %1 (%2)\n").arg(thunderball ? "Thunderball" : "Main", ShortDate(date));
    const int balls = thunderball ? 5 : 6;
    const QStringList drawn = draw.mid(3, balls);
    int counter = 0;
    for (const QString& row : storedEntries) {
        const QStringList entry = row.split(',');
        if (entry[1] != userNumber || entry[2] != (thunderball ? "2" : "1") || entry[9 + date.dayOfWeek() - 1] != "-1")
            continue;
        QStringList numbers = entry.mid(3, balls);
        int matches = 0;
        for (const QString& ball : drawn)
            matches += static_cast<int>(numbers.count(ball));
        const bool extra = thunderball ? entry[8] == draw[8] : numbers.contains(draw[9]);
        text += QString("    %1>%2%3 main ball%4%5")
                    .arg(++counter)
                    .arg(thunderball ? "    " : "  ")
                    .arg(matches)
                    .arg(matches == 1 ? "" : "s",
                         extra ? QString(" + %1. ").arg(thunderball ? "thunderball" : "bonus") : ". ");
        if (matches >= 3 || (thunderball && extra && matches > 0))
            text += "<<WIN>>";
        text += '\n';
    }
    return counter > 0 ? text : text + QString("    No %1 entries on this date.\n").arg(game);
}

} // namespace

class CheckPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void WithoutUsersTheUserPageOpens()
    {
        TestWindow window;
        window.modals.WillPress(QMessageBox::Ok);
        Open(window);
        QCOMPARE(window.modals.TakeTexts(),
                 QStringList{"You cannot check entries until you have\r\ncreated a user profile and created entries."});
        QVERIFY(window.IsShown("Frame_11"));
    }

    void OpenPageIsReadyToCheckEverything()
    {
        TestWindow window;
        AddUser(users, "Ann", 10);
        Open(window);
        QCOMPARE(window.Find<QComboBox>("F12user")->currentText(), QString("All Users"));
        QVERIFY(window.Find<QRadioButton>("F12typeb")->isChecked());
        QVERIFY(window.Find<QRadioButton>("F12datelatest")->isChecked());
        for (const char* hidden : {"F12cal", "F12clear", "F12print"})
            QVERIFY(!window.IsShown(hidden));
        window.Click("F12check");
        QCOMPARE(Report(window), QString("Tavenor v3.0\n\nThere are no user entries stored."));
        QVERIFY(window.IsShown("F12clear") && window.IsShown("F12print"));
        window.Click("F12clear");
        QCOMPARE(Report(window), QString());
        QVERIFY(!window.IsShown("F12clear") && !window.IsShown("F12print"));
    }

    void HeadingAndUserLinesAreBold()
    {
        TestWindow window;
        AddUser(users, "Ann", 10);
        AddEntry(entries, {1, 1, 1, {1, 2, 3, 4, 5, 6}, {}});
        Open(window);
        window.Click("F12check");
        // A report that follows another one takes nothing over from it, wherever the cursor stood.
        auto* report = window.Find<QTextEdit>("F12text");
        QTextCursor inTheHeading(report->document());
        inTheHeading.setPosition(5);
        report->setTextCursor(inTheHeading);
        window.Click("F12check");
        QStringList bold;
        for (QTextBlock block = window.Find<QTextEdit>("F12text")->document()->begin(); block.isValid();
             block = block.next())
            for (auto part = block.begin(); !part.atEnd(); ++part)
                if (part.fragment().charFormat().fontWeight() == QFont::Bold)
                    bold.append(part.fragment().text());
        QCOMPARE(bold, (QStringList{"Tavenor v3.0", "User: Ann"}));
    }

    void ReportAgreesWithTheStoredRows_data()
    {
        QTest::addColumn<int>("seed");
        for (int seed = 1; seed <= 12; ++seed)
            QTest::addRow("seed %d", seed) << seed;
    }

    void ReportAgreesWithTheStoredRows()
    {
        QFETCH(int, seed);
        RandomSource chance(static_cast<std::uint64_t>(seed));
        TestWindow window;
        const QDate day(2026, 11, 16);
        const auto different = [&chance](int count, int highest) {
            QSet<int> numbers;
            while (numbers.size() < count)
                numbers.insert(chance.UpTo(highest));
            QList<int> sorted = numbers.values();
            std::sort(sorted.begin(), sorted.end());
            return sorted;
        };
        // Few numbers, so that there are many matches.
        for (int i = 0; i < 6; ++i) {
            for (const Game* game : {&MainGame, &ThunderballGame}) {
                EnteredDraw draw{day.addDays(chance.UpTo(4)), {}, {}, {}};
                const QList<int> balls = different(7, 12);
                std::copy_n(balls.begin(), game->BallCount(), draw.balls.begin());
                AddDraw(DrawsOf(*game), *game, draw);
            }
        }
        ukmainlist.Requery();
        ukthunderlist.Requery();
        for (int user = 1; user <= 3; ++user)
            AddUser(users, QString("User %1").arg(user), 100);
        for (int i = 1; i <= 60; ++i) {
            EntryRow entry{i, chance.UpTo(3), chance.UpTo(2), {}, {}};
            const QList<int> numbers = different(6, 12);
            std::copy(numbers.begin(), numbers.end(), entry.numbers.begin());
            for (bool& played : entry.days)
                played = chance.UpTo(2) == 1;
            AddEntry(entries, entry);
        }
        const QStringList storedEntries = TestFolder::StoredRows("entries");
        const auto expected = [&](const QStringList& numbers, bool mainToo, bool thunderballToo, const QDate& date) {
            const auto drawsOn = [&](const QString& list) {
                const QStringList all = TestFolder::StoredRows(list);
                return date.isValid() ? all.filter("," + date.toString(Qt::ISODate) + ",") : all;
            };
            QString text = "Tavenor v3.0\n\n";
            for (const QString& number : numbers) {
                text += QString("User: User %1\n").arg(number);
                if (mainToo)
                    text += ReportFromRows(drawsOn("ukmainlist"), false, number, storedEntries);
                if (thunderballToo)
                    text += ReportFromRows(drawsOn("ukthunderlist"), true, number, storedEntries);
                text += '\n';
            }
            return text;
        };
        Open(window);
        window.Click("F12check");
        QCOMPARE(Report(window), expected({"1", "2", "3"}, true, true, QDate()));
        window.Find<QComboBox>("F12user")->setCurrentIndex(2);
        window.Click("F12typet");
        window.Find<QRadioButton>("F12typet")->setChecked(true);
        window.Click("F12check");
        QCOMPARE(Report(window), expected({"2"}, false, true, QDate()));
        window.Find<QRadioButton>("F12typem")->setChecked(true);
        window.Find<QRadioButton>("F12dateselect")->click();
        QCOMPARE(window.Find<QDateEdit>("F12cal")->date(), QDate::currentDate());
        for (int offset = 0; offset < 6; ++offset) {
            window.Find<QDateEdit>("F12cal")->setDate(day.addDays(offset));
            window.Click("F12check");
            QCOMPARE(Report(window), expected({"2"}, true, false, day.addDays(offset)));
        }
        QVERIFY(window.modals.AllCame());
    }
};

TAVENOR_TEST_MAIN(CheckPageTest)
#include "check_page_test.moc"
