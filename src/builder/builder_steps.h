#pragma once

#include "builder/build_types.h"

#include <optional>

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
