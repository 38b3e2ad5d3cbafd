#include "support/run_tests.h"

#include "builder/entry_builders.h"

#include "builder/random_source.h"

#include <algorithm>
#include <map>

namespace {

bool Holds(const Line& line, int number)
{
    return std::binary_search(line.begin(), line.end(), number);
}

/// On how many lines each number stands; nothing where something is no line.
std::map<int, int> Appearances(const std::vector<Line>& lines)
{
    std::map<int, int> appearances;
    for (const Line& line : lines) {
        if (line.front() < 1 || line.back() > 49 ||
            std::adjacent_find(line.begin(), line.end(), std::greater_equal<>()) != line.end())
            return {};
        for (const int number : line)
            ++appearances[number];
    }
    return appearances;
}

} // namespace

class EntryBuildersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void WheelHoldsEveryThreeOfItsNumbers()
    {
        RandomSource random(7);
        for (const auto& [count, entries] :
             {std::pair(8, 4), {10, 10}, {12, 20}, {14, 35}, {16, 56}, {18, 84}, {20, 120}}) {
            const std::vector<int> chosen = DrawDifferentNumbers(count, random);
            const std::vector<Line> lines = BuildWheeledPairEntries(chosen);
            QCOMPARE(static_cast<int>(lines.size()), entries);
            QCOMPARE(static_cast<int>(Appearances(lines).size()), count);
            for (const int a : chosen)
                for (const int b : chosen)
                    for (const int c : chosen)
                        QVERIFY(std::any_of(lines.begin(), lines.end(), [=](const Line& line) {
                            return Holds(line, a) && Holds(line, b) && Holds(line, c);
                        }));
        }
    }

    void KeyNumbersStandOnEveryLineAndAllOthersOnOne()
    {
        for (const auto& [count, entries] : {std::pair(2, 12), {3, 16}, {4, 23}})
            for (int seed = 0; seed < 1000; ++seed) {
                RandomSource random(static_cast<std::uint64_t>(seed));
                const std::vector<int> keys = DrawDifferentNumbers(count, random);
                const std::vector<Line> lines = BuildKeyNumberEntries(keys, random);
                const std::map<int, int> appearances = Appearances(lines);
                QCOMPARE(appearances.size(), size_t{HighestNumber});
                QCOMPARE(static_cast<int>(lines.size()), entries);
                for (const auto& [number, times] : appearances) {
                    const bool isKey = std::count(keys.begin(), keys.end(), number) == 1;
                    QVERIFY(isKey ? times == entries : times == 1 || (times == 2 && Holds(lines.back(), number)));
                }
            }
    }

    void FullSelectionHoldsEveryNumber()
    {
        for (int seed = 0; seed < 1000; ++seed) {
            RandomSource random(static_cast<std::uint64_t>(seed));
            const std::vector<Line> lines = BuildFullSelectionEntries(random);
            QCOMPARE(lines.size(), size_t{9});
            QCOMPARE(Appearances(lines).size(), size_t{HighestNumber});
        }
    }

    /// Of 40,000 lines a true chance gives every number to 4,898, and of as many draws to 816, each a fifth more or
    /// less.
    void EveryNumberHasTheSameChance()
    {
        RandomSource random(1);
        const std::map<int, int> onLines = Appearances(BuildRandomEntries(40000, random));
        std::map<int, int> drawnSecond;
        for (int draw = 0; draw < 40000; ++draw)
            ++drawnSecond[DrawDifferentNumbers(2, random)[1]];
        for (int number = 1; number <= HighestNumber; ++number)
            QVERIFY(qAbs(onLines.at(number) - 4898) < 980 && qAbs(drawnSecond[number] - 816) < 163);
    }
};

TAVENOR_TEST(EntryBuildersTest)
#include "entry_builders_test.moc"
