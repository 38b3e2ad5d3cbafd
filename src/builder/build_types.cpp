#include "builder/build_types.h"

using namespace Qt::StringLiterals;

const std::array<BuildType, 4> BuildTypes{{
    {.name = u"Random"_s,
     .entries = u"1 to 200 entries"_s,
     .optionPrompt = u"How many entries?"_s,
     .input = OptionInput::Count,
     .description = {u"With this build type, the numbers in your"_s,
                     u"entries are chosen purely at random, just like"_s,
                     u"a lucky dip ticket, so a win is NOT guaranteed."_s}},
    {.name = u"Key Numbers"_s,
     .entries = u"12 to 23 entries"_s,
     .optionPrompt = u"How many key numbers?"_s,
     .input = OptionInput::Option,
     .options = {{u"2 Key Numbers (12 entries)"_s, 2},
                 {u"3 Key Numbers (16 entries)"_s, 3},
                 {u"4 Key Numbers (23 entries)"_s, 4}},
     .description = {u"With this build type, your chosen key numbers are on"_s,
                     u"every entry and every other number is covered across the entries,"_s,
                     u"so if two of your key numbers are drawn, you are"_s,
                     u"guaranteed to win at least 4 x 3match (£40)."_s,
                     u"If you match 3 of your key numbers, EVERY line wins!!"_s}},
    {.name = u"Wheeled Pairs"_s,
     .entries = u"4 to 120 entries"_s,
     .optionPrompt = u"Which wheel option?"_s,
     .input = OptionInput::Option,
     .options = {{u"8 Number Wheel (4 entries)"_s, 8},
                 {u"10 Number Wheel (10 entries)"_s, 10},
                 {u"12 Number Wheel (20 entries)"_s, 12},
                 {u"14 Number Wheel (35 entries)"_s, 14},
                 {u"16 Number Wheel (56 entries)"_s, 16},
                 {u"18 Number Wheel (84 entries)"_s, 18},
                 {u"20 Number Wheel (120 entries)"_s, 20}},
     .description = {u"With this build type, your chosen numbers are put into pairs,"_s,
                     u"and every pair is matched with every other pair,"_s, u"so if three of your numbers are drawn,"_s,
                     u"you are guaranteed to win at least 1 x 3match (£10)."_s}},
    {.name = u"Full Selection"_s,
     .entries = u"9 entries"_s,
     .optionPrompt = u"No options available"_s,
     .input = OptionInput::Nothing,
     .description = {u"With this build type, you are guaranteed to"_s, u"have every ball drawn, but they may be on"_s,
                     u"different entries, so a win is NOT guaranteed."_s}},
}};

const BuildType& TypeOf(BuildMethod method)
{
    return BuildTypes.at(static_cast<size_t>(method));
}

bool IsPossibleEntryCount(double value)
{
    return value >= 1 && value <= 200;
}
