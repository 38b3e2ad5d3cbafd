#pragma once

#include "builder/build_types.h"
#include "game/entry_row.h"

#include <array>
#include <optional>

/// What the entry generator remembers for the whole run of the program, over the visits to its page: the page shares it
/// with the number-picking window and the draw-day window.
struct BuilderState
{
    /// Slots 1 to 49: the numbers chosen last, ascending, then 0. Slot 0 is not used.
    std::array<int, 50> ChosenNumbers{};
    /// How many numbers the number-picking window asks for.
    int NumbersRequired = 0;
    /// Whether that window was left by its Store.
    bool NumbersChosen = false;
    /// The days on which built entries are played, as last stored by the draw-day window.
    DaySet BuilderDays{};
};

/// Which controls of the entry generator's page the player sees.
struct ShownControls
{
    bool buildType = false;
    /// The words on the chosen build type, and the button that explains it.
    bool typeTexts = false;
    bool option = false;
    bool count = false;
    bool choose = false;
    bool noNumbersNeeded = false;
    bool go = false;
    bool grid = false;
    bool store = false;
};

/// How far the player has come in the five steps of the entry generator. Each action of the player's takes the steps
/// on; what is seen follows from them in Shown() alone.
class BuilderSteps
{
public:
    /// The page is opened: nothing is chosen.
    void Begin() { *this = {}; }

    /// False when that user was taken up already: what hangs on the user stays as it is then.
    bool ChooseUser(int index);
    void ChooseType(BuildMethod chosen);
    void ChooseOption();
    void GiveCount(bool possible);
    /// The numbers are about to be chosen: what was built from the former ones is dropped.
    void BeginNumbers();
    void EndNumbers(bool stored);
    void LinesBuilt() { linesShown = true; }
    void OfferStore() { storeOffered = true; }

    std::optional<BuildMethod> Method() const { return method; }
    bool MayBuild() const { return offer == Offer::Build; }
    ShownControls Shown() const;

private:
    /// What the page offers to do next; every choice in a list takes it back.
    enum class Offer
    {
        Nothing,
        ChooseNumbers,
        Build
    };

    void TakeBackOffer();

    int lastUserIndex = -1;
    std::optional<BuildMethod> method;
    Offer offer = Offer::Nothing;
    /// Whether the fourth step is marked as not needed. It outlives a change to the random build, whose count then
    /// decides.
    bool numbersNotNeeded = false;
    bool linesShown = false;
    bool storeOffered = false;
};
