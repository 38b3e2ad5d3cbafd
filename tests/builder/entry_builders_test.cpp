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

std::vector<int> DrawAscending(int count, RandomSource& random)
{
    std::vector<int> numbers = DrawDifferentNumbers(count, random);
    std::sort(numbers.begin(), numbers.end());
    return numbers;
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
            const std::vector<int> chosen = DrawAscending(count, random);
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
        for (const auto& [count, entries, twice] : {std::tuple(2, 12, 1), {3, 16, 2}, {4, 23, 1}})
            for (int seed = 0; seed < 1000; ++seed) {
                RandomSource random(static_cast<std::uint64_t>(seed));
                const std::vector<int> keys = DrawAscending(count, random);
                const std::vector<Line> lines = BuildKeyNumberEntries(keys, random);
                const std::map<int, int> appearances = Appearances(lines);
                QCOMPARE(appearances.size(), size_t{HighestNumber});
                QCOMPARE(static_cast<int>(lines.size()), entries);
                int foundTwice = 0;
                for (const auto& [number, times] : appearances) {
                    const bool isKey = std::binary_search(keys.begin(), keys.end(), number);
                    QVERIFY(isKey ? times == entries : times == 1 || (times == 2 && Holds(lines.back(), number)));
                    foundTwice += isKey ? 0 : times - 1;
                }
                QCOMPARE(foundTwice, twice);
            }
    }

    void FullSelectionHoldsEveryNumber()
    {
        for (int seed = 0; seed < 1000; ++seed) {
            RandomSource random(static_cast<std::uint64_t>(seed));
            const std::vector<Line> lines = BuildFullSelectionEntries(random);
            QCOMPARE(lines.size(), size_t{9});
            QCOMPARE(Appearances(lines).size(), size_t{HighestNumber});
            for (size_t entry = 1; entry <= 8; ++entry) {
                const auto shared = std::count_if(lines.back().begin(), lines.back().end(),
                                                  [&](int number) { return Holds(lines[entry - 1], number); });
                QCOMPARE(shared, entry >= 3 && entry <= 7 ? 1 : 0);
            }
        }
    }

    /// Of 40,000 draws a true chance gives none a fifth more or less than expected; six numbers of a line stand in six
    /// places, and 20 numbers that are drawn in one each.
    void EveryNumberHasTheSameChanceInEveryPlace()
    {
        RandomSource random(1);
        std::map<std::pair<int, int>, int> counts;
        constexpr int draws = 40000;
        for (const auto& [number, times] : Appearances(BuildRandomEntries(draws, random)))
            counts[{0, number}] = times / 6;
        for (int draw = 0; draw < draws; ++draw)
            for (int place = 1; const int number : DrawDifferentNumbers(20, random))
                ++counts[{place++, number}];
        QCOMPARE(counts.size(), size_t{21 * HighestNumber});
        for (const auto& [place, count] : counts)
            QVERIFY(qAbs(count - draws / HighestNumber) < draws / HighestNumber / 5);
    }
};

TAVENOR_TEST(EntryBuildersTest)
#include "entry_builders_test.moc"
