#include "builder/build_types.h"

namespace {

BuildType RandomType()
{
    return {QStringLiteral("Random"),
            QStringLiteral("1 to 200 entries"),
            QStringLiteral("How many entries?"),
            OptionInput::Count,
            {},
            {QStringLiteral("With this build type, the numbers in your"),
             QStringLiteral("entries are chosen purely at random, just like"),
             QStringLiteral("a lucky dip ticket, so a win is NOT guaranteed.")}};
}

BuildType KeyNumbersType()
{
    return {QStringLiteral("Key Numbers"),
            QStringLiteral("12 to 23 entries"),
            QStringLiteral("How many key numbers?"),
            OptionInput::Option,
            {{QStringLiteral("2 Key Numbers (12 entries)"), 2},
             {QStringLiteral("3 Key Numbers (16 entries)"), 3},
             {QStringLiteral("4 Key Numbers (23 entries)"), 4}},
            {QStringLiteral("With this build type, your chosen key numbers are on"),
             QStringLiteral("every entry and every other number is covered across the entries,"),
             QStringLiteral("so if two of your key numbers are drawn, you are"),
             QStringLiteral("guaranteed to win at least 4 x 3match (£40)."),
             QStringLiteral("If you match 3 of your key numbers, EVERY line wins!!")}};
}

BuildType WheeledPairsType()
{
    return {QStringLiteral("Wheeled Pairs"),
            QStringLiteral("4 to 120 entries"),
            QStringLiteral("Which wheel option?"),
            OptionInput::Option,
            {{QStringLiteral("8 Number Wheel (4 entries)"), 8},
             {QStringLiteral("10 Number Wheel (10 entries)"), 10},
             {QStringLiteral("12 Number Wheel (20 entries)"), 12},
             {QStringLiteral("14 Number Wheel (35 entries)"), 14},
             {QStringLiteral("16 Number Wheel (56 entries)"), 16},
             {QStringLiteral("18 Number Wheel (84 entries)"), 18},
             {QStringLiteral("20 Number Wheel (120 entries)"), 20}},
            {QStringLiteral("With this build type, your chosen numbers are put into pairs,"),
             QStringLiteral("and every pair is matched with every other pair,"),
             QStringLiteral("so if three of your numbers are drawn,"),
             QStringLiteral("you are guaranteed to win at least 1 x 3match (£10).")}};
}

BuildType FullSelectionType()
{
    return {QStringLiteral("Full Selection"),
            QStringLiteral("9 entries"),
            QStringLiteral("No options available"),
            OptionInput::Nothing,
            {},
            {QStringLiteral("With this build type, you are guaranteed to"),
             QStringLiteral("have every ball drawn, but they may be on"),
             QStringLiteral("different entries, so a win is NOT guaranteed.")}};
}

} // namespace

const std::array<BuildType, 4> BuildTypes{RandomType(), KeyNumbersType(), WheeledPairsType(), FullSelectionType()};

const BuildType& TypeOf(BuildMethod method)
{
    return BuildTypes.at(static_cast<size_t>(method));
}

bool IsPossibleEntryCount(double value)
{
    return value >= 1 && value <= 200;
}
