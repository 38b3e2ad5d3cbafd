#include "builder/entry_builders.h"

#include "builder/random_source.h"

#include <algorithm>
#include <cstddef>

namespace {

constexpr int LineLength = 6;

/// The element at a place that is counted from 1.
template <typename Sequence>
auto& At(Sequence& sequence, int place)
{
    return sequence[static_cast<std::size_t>(place) - 1];
}

template <typename Sequence>
bool Holds(const Sequence& sequence, int number)
{
    return std::find(sequence.begin(), sequence.end(), number) != sequence.end();
}

bool AllDifferent(Line line)
{
    std::sort(line.begin(), line.end());
    return std::adjacent_find(line.begin(), line.end()) == line.end();
}

std::vector<Line> Sorted(std::vector<Line> lines)
{
    for (Line& line : lines)
        std::sort(line.begin(), line.end());
    return lines;
}

/// Every number but the key numbers, in a random order.
std::vector<int> DrawOtherNumbers(std::span<const int> keyNumbers, RandomSource& random)
{
    std::vector<int> order;
    while (order.size() + keyNumbers.size() < HighestNumber) {
        const int number = random.UpTo(HighestNumber);
        if (!Holds(keyNumbers, number) && !Holds(order, number))
            order.push_back(number);
    }
    return order;
}

/// Fills what the last line of a key number build lacks, one or two places at its end, with numbers that stand on
/// other lines already.
void FillLastLine(Line& line, int missing, const std::vector<int>& order, RandomSource& random)
{
    constexpr int places = 45;
    do {
        int a = 0;
        int b = 0;
        do {
            a = random.UpTo(places);
            b = random.UpTo(places);
        } while (a == b);
        if (missing > 0)
            At(line, 6) = At(order, a);
        if (missing > 1)
            At(line, 5) = At(order, b);
    } while (!AllDifferent(line));
}

} // namespace

std::vector<int> DrawDifferentNumbers(int count, RandomSource& random)
{
    std::vector<int> freeNumbers;
    for (int number = 1; number <= HighestNumber; ++number)
        freeNumbers.push_back(number);
    std::vector<int> drawn;
    for (int i = 1; i <= count; ++i) {
        const auto taken = freeNumbers.begin() + (random.UpTo(HighestNumber + 1 - i) - 1);
        drawn.push_back(*taken);
        freeNumbers.erase(taken);
    }
    return drawn;
}

std::vector<Line> BuildRandomEntries(int count, RandomSource& random)
{
    std::vector<Line> lines(static_cast<std::size_t>(count));
    for (Line& line : lines)
        for (std::size_t place = 0; place < line.size(); ++place) {
            const auto before = std::span(line).first(place);
            int number = 0;
            do
                number = random.UpTo(HighestNumber);
            while (Holds(before, number));
            line[place] = number;
        }
    return Sorted(std::move(lines));
}

std::vector<Line> BuildKeyNumberEntries(std::span<const int> keyNumbers, RandomSource& random)
{
    const std::vector<int> order = DrawOtherNumbers(keyNumbers, random);
    const auto places = LineLength - keyNumbers.size();
    std::vector<Line> lines((order.size() + places - 1) / places);
    std::size_t dealt = 0;
    for (Line& line : lines) {
        std::copy(keyNumbers.begin(), keyNumbers.end(), line.begin());
        for (std::size_t place = keyNumbers.size(); place < line.size() && dealt < order.size(); ++place)
            line[place] = order[dealt++];
    }
    const auto missing = static_cast<int>(lines.size() * places - order.size());
    FillLastLine(lines.back(), missing, order, random);
    return Sorted(std::move(lines));
}

std::vector<Line> BuildWheeledPairEntries(std::span<const int> chosenNumbers)
{
    const int pairs = static_cast<int>(chosenNumbers.size()) / 2;
    std::vector<Line> lines;
    for (int a = 1; a <= pairs - 2; ++a)
        for (int b = a + 1; b <= pairs - 1; ++b)
            for (int c = b + 1; c <= pairs; ++c) {
                Line line{};
                auto* place = line.begin();
                for (const int pair : {a, b, c}) {
                    *place++ = At(chosenNumbers, pairs + pair);
                    *place++ = At(chosenNumbers, pairs + 1 - pair);
                }
                lines.push_back(line);
            }
    return Sorted(std::move(lines));
}

std::vector<Line> BuildFullSelectionEntries(RandomSource& random)
{
    const std::vector<int> order = DrawDifferentNumbers(HighestNumber, random);
    std::vector<Line> lines(9);
    for (int i = 1; i <= HighestNumber; ++i) {
        const int entry = (i + 5) / 6;
        At(At(lines, entry), i - 6 * (entry - 1)) = At(order, i);
    }
    for (int place = 2; place <= LineLength; ++place)
        At(lines.back(), place) = At(order, 7 * place);
    return Sorted(std::move(lines));
}
