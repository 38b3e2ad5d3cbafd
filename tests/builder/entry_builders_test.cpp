#include "support/run_tests.h"

#include "builder/entry_builders.h"

#include "builder/random_source.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <set>

namespace {

bool IsLine(const Line& line)
{
    return line.front() >= 1 && line.back() <= 49 && std::is_sorted(line.begin(), line.end()) &&
           std::adjacent_find(line.begin(), line.end()) == line.end();
}

bool Holds(const Line& line, int number)
{
    return std::binary_search(line.begin(), line.end(), number);
}

std::vector<int> DrawAscending(int count, RandomSource& random)
{
    std::vector<int> numbers = DrawDifferentNumbers(count, random);
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

/// On how many lines each number stands.
std::map<int, int> Appearances(const std::vector<Line>& lines)
{
    std::map<int, int> appearances;
    for (const Line& line : lines)
        for (const int number : line)
            ++appearances[number];
    return appearances;
}

/// How often each of the 49 numbers came.
using Tally = std::array<int, HighestNumber>;

/// Whether every number had the same chance. With 48 degrees of freedom a true chance gives a chi-square outside 18 to
/// 95 once in ten thousand times.
bool IsEven(const Tally& tally)
{
    const double expected = std::accumulate(tally.begin(), tally.end(), 0.0) / HighestNumber;
    double chiSquare = 0;
    for (const int count : tally)
        chiSquare += (count - expected) * (count - expected) / expected;
    return chiSquare > 18 && chiSquare < 95;
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
            for (const Line& line : lines)
                QVERIFY(IsLine(line) && std::includes(chosen.begin(), chosen.end(), line.begin(), line.end()));
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
                QCOMPARE(static_cast<int>(lines.size()), entries);
                QVERIFY(std::all_of(lines.begin(), lines.end(), IsLine));
                const std::map<int, int> appearances = Appearances(lines);
                QCOMPARE(appearances.size(), size_t{HighestNumber});
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
            QVERIFY(std::all_of(lines.begin(), lines.end(), IsLine));
            QCOMPARE(Appearances(lines).size(), size_t{HighestNumber});
            for (size_t entry = 1; entry <= 8; ++entry) {
                const auto shared = std::count_if(lines.back().begin(), lines.back().end(),
                                                  [&](int number) { return Holds(lines[entry - 1], number); });
                QCOMPARE(shared, entry >= 3 && entry <= 7 ? 1 : 0);
            }
        }
    }

    void EveryNumberHasTheSameChanceInEveryPlace()
    {
        RandomSource random(1);
        Tally ofLines{};
        std::array<Tally, 20> ofNumbers{};
        for (const Line& line : BuildRandomEntries(40000, random)) {
            QVERIFY(IsLine(line));
            for (const int number : line)
                ++ofLines.at(static_cast<size_t>(number) - 1);
            const std::vector<int> numbers = DrawDifferentNumbers(20, random);
            QCOMPARE(std::set<int>(numbers.begin(), numbers.end()).size(), size_t{20});
            for (size_t place = 0; place < numbers.size(); ++place)
                ++ofNumbers[place].at(static_cast<size_t>(numbers[place]) - 1);
        }
        // The numbers of a line differ, which makes their count a little more even than chance alone would.
        QVERIFY(IsEven(ofLines));
        QVERIFY(std::all_of(ofNumbers.begin(), ofNumbers.end(), IsEven));
    }
};

TAVENOR_TEST(EntryBuildersTest)
#include "entry_builders_test.moc"
