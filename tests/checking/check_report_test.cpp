#include "checking/check_report.h"

#include <QRegularExpression>
#include <QTest>

class CheckReportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EntryIsComparedAndWins_data()
    {
        QTest::addColumn<bool>("thunderball");
        QTest::addColumn<QList<int>>("numbers");
        QTest::addColumn<int>("mainMatches");
        QTest::addColumn<bool>("extraMatched");
        QTest::addColumn<bool>("wins");
        // Main draw 1 2 3 4 5 6 bonus 7; Thunderball draw 1 2 3 4 5 thunderball 6.
        const auto row = [](const char* name, bool thunderball, const QList<int>& numbers, int matches, bool extra,
                            bool wins) { QTest::newRow(name) << thunderball << numbers << matches << extra << wins; };
        row("Main 0", false, {11, 12, 13, 14, 15, 16}, 0, false, false);
        row("Main 1", false, {6, 12, 13, 14, 15, 16}, 1, false, false);
        row("Main 2 and the bonus", false, {1, 2, 7, 14, 15, 16}, 2, true, false);
        row("Main 3", false, {1, 2, 3, 14, 15, 16}, 3, false, true);
        row("Main 5 and the bonus", false, {1, 2, 3, 4, 5, 7}, 5, true, true);
        row("Main 6", false, {1, 2, 3, 4, 5, 6}, 6, false, true);
        row("the bonus as the first number", false, {7, 12, 13, 14, 15, 16}, 0, true, false);
        row("Thunderball 0 and the thunderball", true, {11, 12, 13, 14, 15, 6}, 0, true, false);
        row("Thunderball 1", true, {1, 12, 13, 14, 15, 7}, 1, false, false);
        row("Thunderball 1 and the thunderball", true, {1, 12, 13, 14, 15, 6}, 1, true, true);
        row("Thunderball 2", true, {1, 2, 13, 14, 15, 7}, 2, false, false);
        row("Thunderball 2 and the thunderball", true, {1, 2, 13, 14, 15, 6}, 2, true, true);
        row("Thunderball 3", true, {1, 2, 3, 14, 15, 7}, 3, false, true);
        row("Thunderball 5", true, {1, 2, 3, 4, 5, 1}, 5, false, true);
        row("a main number equal to the thunderball does not match it", true, {6, 12, 13, 14, 15, 7}, 0, false, false);
        row("a thunderball equal to a main ball is no main match", true, {11, 12, 13, 14, 15, 1}, 0, false, false);
    }

    void EntryIsComparedAndWins()
    {
        QFETCH(bool, thunderball);
        QFETCH(QList<int>, numbers);
        QFETCH(int, mainMatches);
        QFETCH(bool, extraMatched);
        QFETCH(bool, wins);
        const Game& game = thunderball ? ThunderballGame : MainGame;
        EntryRow entry;
        std::copy(numbers.begin(), numbers.end(), entry.numbers.begin());
        const EntryResult result = CompareEntry(game, entry, {QDate(2026, 11, 21), {1, 2, 3, 4, 5, 6, 7}});
        QCOMPARE(result.mainMatches, mainMatches);
        QCOMPARE(result.extraMatched, extraMatched);
        QCOMPARE(IsWin(game, result), wins);
    }

    void ReportIsWrittenLetterForLetter()
    {
        // Played on Saturdays only, but for the last, which is played on Sundays.
        const DaySet saturday{false, false, false, false, false, true, false};
        const DaySet sunday{false, false, false, false, false, false, true};
        const std::vector<EntryRow> entries{
            {1, 1, 1, {11, 12, 13, 14, 15, 16}, saturday}, {2, 1, 1, {1, 2, 3, 7, 15, 16}, saturday},
            {3, 1, 2, {1, 12, 13, 14, 15, 6}, saturday},   {4, 1, 1, {1, 12, 13, 14, 15, 16}, saturday},
            {5, 1, 2, {11, 12, 13, 14, 15, 7}, saturday},  {6, 2, 1, {1, 2, 3, 4, 5, 6}, sunday}};
        const std::vector<CheckedUser> users{{1, "Ann"}, {2, "<b>Bob</b>"}};
        const CheckedDraw draw{QDate(2026, 11, 21), {1, 2, 3, 4, 5, 6, 7}};
        const std::vector<CheckedGame> games{{&MainGame, draw}, {&ThunderballGame, draw}};
        const CheckReport report = WriteCheckReport(users, games, entries);
        QString text = report.text;
        // The short form of the date is the desktop's own.
        text.replace(QRegularExpression("\\([^)]*2026\\)"), "(the day)");
        QCOMPARE(text, QString("Tavenor v3.0\r\n\r\n"
                               "User: Ann\r\n"
                               "  Draw type: Main (the day)\r\n"
                               "    1>  0 main balls. \r\n"
                               "    2>  3 main balls + bonus. <<WIN>>\r\n"
                               "    3>  1 main ball. \r\n"
                               "  Draw type: Thunderball (the day)\r\n"
                               "    1>    1 main ball + thunderball. <<WIN>>\r\n"
                               "    2>    0 main balls. \r\n"
                               "\r\n"
                               "User: <b>Bob</b>\r\n"
                               "  Draw type: Main (the day)\r\n"
                               "    No main entries on this date.\r\n"
                               "  Draw type: Thunderball (the day)\r\n"
                               "    No thunderball entries on this date.\r\n"
                               "\r\n"));
        QStringList emphasised;
        for (const CheckReport::Span& span : report.emphasised)
            emphasised.append(report.text.mid(span.start, span.length));
        QCOMPARE(emphasised, (QStringList{"Tavenor v3.0\r\n\r\n", "User: Ann\r\n", "User: <b>Bob</b>\r\n"}));
    }

    void ReportWithoutDrawOrEntriesSaysSo()
    {
        const std::vector<CheckedUser> users{{1, "Ann"}};
        const std::vector<EntryRow> entries{{1, 1, 1, {1, 2, 3, 4, 5, 6}, {}}};
        const std::vector<CheckedGame> games{{&MainGame, {}}, {&ThunderballGame, {}}};
        QCOMPARE(WriteCheckReport(users, games, {}).text,
                 QString("Tavenor v3.0\r\n\r\nThere are no user entries stored."));
        QCOMPARE(WriteCheckReport(users, games, entries).text,
                 QString("Tavenor v3.0\r\n\r\nUser: Ann\r\n  No main draw on this date.\r\n"
                         "  No thunderball draw on this date.\r\n\r\n"));
    }

    void TenthEntryTakesThePlaceOfABlank()
    {
        std::vector<EntryRow> entries(10, EntryRow{1, 1, 1, {}, {true, true, true, true, true, true, true}});
        const std::vector<CheckedUser> users{{1, "Ann"}};
        const std::vector<CheckedGame> games{{&MainGame, CheckedDraw{QDate(2026, 11, 21), {1, 2, 3, 4, 5, 6, 7}}}};
        QVERIFY(WriteCheckReport(users, games, entries).text.contains("\r\n    9>  0"));
        QVERIFY(WriteCheckReport(users, games, entries).text.contains("\r\n    10>  0"));
    }
};

QTEST_APPLESS_MAIN(CheckReportTest)
#include "check_report_test.moc"
