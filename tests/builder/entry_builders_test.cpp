#include "builder/entry_builders.h"

#include "platform/random_source.h"

#include <QTest>

#include <algorithm>
#include <map>
#include <set>

namespace {

constexpr int Seeds = 1000;

bool IsLine(const Line& line)
{
    return line.front() >= 1 && line.back() <= 49 && std::is_sorted(line.begin(), line.end()) &&
           std::adjacent_find(line.begin(), line.end()) == line.end();
}

bool Holds(const Line& line, int number)
{
    return std::binary_search(line.begin(), line.end(), number);
}

std::vector<int> Ascending(std::vector<int> numbers)
{
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

/// How often each of the 49 numbers came, against the same chance for each. With 48 degrees of freedom a true chance
/// gives a value outside 18 to 95 once in ten thousand times.
class Tally
{
public:
    void Count(int number) { ++counts.at(static_cast<size_t>(number) - 1); }

    bool IsEven() const
    {
        double sum = 0;
        for (const int count : counts)
            sum += count;
        const double expected = sum / HighestNumber;
        double chiSquare = 0;
        for (const int count : counts)
            chiSquare += (count - expected) * (count - expected) / expected;
        return chiSquare > 18 && chiSquare < 95;
    }

private:
    std::array<int, HighestNumber> counts{};
};

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
            const std::vector<int> chosen = Ascending(DrawDifferentNumbers(count, random));
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

    void KeyNumbersStandOnEveryLine_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("entries");
        QTest::addColumn<int>("twice");
        QTest::newRow("2") << 2 << 12 << 1;
        QTest::newRow("3") << 3 << 16 << 2;
        QTest::newRow("4") << 4 << 23 << 1;
    }

    void KeyNumbersStandOnEveryLine()
    {
        QFETCH(int, count);
        QFETCH(int, entries);
        for (int seed = 0; seed < Seeds; ++seed) {
            RandomSource random(static_cast<std::uint64_t>(seed));
            const std::vector<int> keys = Ascending(DrawDifferentNumbers(count, random));
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
            QTEST(foundTwice, "twice");
        }
    }

    void FullSelectionHoldsEveryNumber()
    {
        for (int seed = 0; seed < Seeds; ++seed) {
            RandomSource random(static_cast<std::uint64_t>(seed));
            const std::vector<Line> lines = BuildFullSelectionEntries(random);
            QCOMPARE(lines.size(), size_t{9});
            QVERIFY(std::all_of(lines.begin(), lines.end(), IsLine));
            QCOMPARE(Appearances(lines).size(), size_t{49});
            for (size_t entry = 1; entry <= 8; ++entry) {
                const auto shared = std::count_if(lines.back().begin(), lines.back().end(),
                                                  [&](int number) { return Holds(lines[entry - 1], number); });
                QCOMPARE(shared, entry >= 3 && entry <= 7 ? 1 : 0);
            }
        }
    }

    void RandomLinesAreUniform()
    {
        RandomSource random(1);
        Tally all;
        std::array<Tally, 6> places;
        for (const Line& line : DrawRandomLines(40000, random))
            for (size_t place = 0; place < line.size(); ++place) {
                all.Count(line[place]);
                places[place].Count(line[place]);
            }
        QVERIFY(all.IsEven());
        for (const Tally& place : places)
            QVERIFY(place.IsEven());
        const std::vector<Line> built = BuildRandomEntries(200, random);
        QCOMPARE(built.size(), size_t{200});
        QVERIFY(std::all_of(built.begin(), built.end(), IsLine));
    }

    void DifferentNumbersAreUniform()
    {
        RandomSource random(2);
        std::array<Tally, 20> places;
        for (int turn = 0; turn < 40000; ++turn) {
            const std::vector<int> numbers = DrawDifferentNumbers(20, random);
            QCOMPARE(std::set<int>(numbers.begin(), numbers.end()).size(), size_t{20});
            for (size_t place = 0; place < numbers.size(); ++place)
                places[place].Count(numbers[place]);
        }
        for (const Tally& place : places)
            QVERIFY(place.IsEven());
        QCOMPARE(Ascending(DrawDifferentNumbers(49, random)).front(), 1);
    }
};

QTEST_APPLESS_MAIN(EntryBuildersTest)
#include "entry_builders_test.moc"
