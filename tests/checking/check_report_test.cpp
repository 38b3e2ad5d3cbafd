#include "support/run_tests.h"

#include "checking/check_report.h"

namespace {

const DaySet EveryDay{true, true, true, true, true, true, true};

/// A Saturday; the thunderball is the sixth ball, the bonus the seventh.
const CheckedDraw Draw{QDate(2026, 11, 21), {1, 2, 3, 4, 5, 6, 7}, "today"};

QString Report(const std::vector<CheckedUser>& players, const std::vector<CheckedGame>& games,
               const std::vector<EntryRow>& playedLines)
{
    QString text;
    for (const ReportPart& part : WriteCheckReport(players, games, playedLines))
        text += part.text;
    return text;
}

} // namespace

class CheckReportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EntryIsComparedAndWins()
    {
        // A thunderball that equals a main ball is no main match, nor the other way round.
        const std::tuple<int, std::array<double, 6>, QString> rows[] = {
            {1, {11, 12, 13, 14, 15, 16}, "  0 main balls. "},
            {1, {7, 12, 13, 14, 15, 16}, "  0 main balls + bonus. "},
            {1, {6, 12, 13, 14, 15, 16}, "  1 main ball. "},
            {1, {1, 2, 13, 14, 15, 7}, "  2 main balls + bonus. "},
            {1, {1, 2, 3, 14, 15, 16}, "  3 main balls. <<WIN>>"},
            {1, {1, 2, 3, 4, 5, 7}, "  5 main balls + bonus. <<WIN>>"},
            {1, {1, 2, 3, 4, 5, 6}, "  6 main balls. <<WIN>>"},
            {2, {6, 12, 13, 14, 15, 1}, "    0 main balls. "},
            {2, {11, 12, 13, 14, 15, 6}, "    0 main balls + thunderball. "},
            {2, {1, 12, 13, 14, 15, 7}, "    1 main ball. "},
            {2, {1, 12, 13, 14, 15, 6}, "    1 main ball + thunderball. <<WIN>>"},
            {2, {1, 2, 13, 14, 15, 7}, "    2 main balls. "},
            {2, {1, 2, 13, 14, 15, 6}, "    2 main balls + thunderball. <<WIN>>"},
            {2, {1, 2, 3, 14, 15, 7}, "    3 main balls. <<WIN>>"},
            {2, {1, 2, 3, 4, 5, 1}, "    5 main balls. <<WIN>>"}};
        for (const auto& [drawType, numbers, line] : rows) {
            const Game& game = drawType == 1 ? MainGame : ThunderballGame;
            const QString report = Report({{1, "Ann"}}, {{&game, Draw}}, {{1, 1, drawType, numbers, EveryDay}});
            QCOMPARE(report.section("\r\n", 4, 4), "    1>" + line);
        }
    }

    void SectionsListWhatIsPlayedOnTheDayOfTheDraw()
    {
        std::vector<EntryRow> playedLines(10, EntryRow{1, 1, 1, {}, EveryDay});
        // Bob has a winning entry on every day but the one of the draw.
        for (std::size_t day = 0; day < 7; ++day) {
            playedLines.push_back({2, 2, 2, {1, 2, 3, 4, 5, 6}, {}});
            playedLines.back().days.at(day) = true;
        }
        playedLines[15].numbers = {41, 42, 43, 44, 45, 46};
        QString ten;
        for (int i = 1; i <= 10; ++i)
            ten += QString("    %1>  0 main balls. \r\n").arg(i);
        QCOMPARE(Report({{2, "<b>Bob</b>"}, {1, "Ann"}},
                        {{&MainGame, Draw}, {&ThunderballGame, Draw}, {&ThunderballGame, {}}}, playedLines),
                 "Tavenor v3.0\r\n\r\n"
                 "User: <b>Bob</b>\r\n  Draw type: Main (today)\r\n    No main entries on this date.\r\n"
                 "  Draw type: Thunderball (today)\r\n    1>    0 main balls. \r\n"
                 "  No thunderball draw on this date.\r\n\r\n"
                 "User: Ann\r\n  Draw type: Main (today)\r\n" +
                     ten +
                     "  Draw type: Thunderball (today)\r\n    No thunderball entries on this date.\r\n"
                     "  No thunderball draw on this date.\r\n\r\n");
    }
};

TAVENOR_TEST(CheckReportTest)
#include "check_report_test.moc"
