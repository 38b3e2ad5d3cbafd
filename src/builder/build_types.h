#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <vector>

/// One choice of the third step: its text and how many numbers the player then has to choose.
struct BuildOption
{
    QString text;
    int numbersRequired;
};

/// What the third step asks for.
enum class OptionInput
{
    Count,
    Option,
    Nothing
};

/// One of the ways to build entries, as the player reads it.
struct BuildType
{
    QString name;
    /// How many entries it makes.
    QString entries;
    QString optionPrompt;
    OptionInput input;
    std::vector<BuildOption> options = {};
    /// What the way promises, line by line.
    QStringList description;
};

/// The place of a way in BuildTypes.
enum class BuildMethod
{
    Random,
    KeyNumbers,
    WheeledPairs,
    FullSelection
};

extern const std::array<BuildType, 4> BuildTypes;
const BuildType& TypeOf(BuildMethod method);

/// Whether so many entries may be built at once by chance. The value is the typed text's, so it may have a fraction.
bool IsPossibleEntryCount(double value);
