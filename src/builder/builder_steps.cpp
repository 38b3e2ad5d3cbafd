#include "builder/builder_steps.h"

void BuilderSteps::TakeBackOffer()
{
    offer = Offer::Nothing;
    linesShown = false;
}

bool BuilderSteps::ChooseUser(int index)
{
    TakeBackOffer();
    if (index == lastUserIndex)
        return false;
    lastUserIndex = index;
    method.reset();
    numbersNotNeeded = false;
    return true;
}

void BuilderSteps::ChooseType(BuildMethod chosen)
{
    TakeBackOffer();
    method = chosen;
    switch (TypeOf(chosen).input) {
    case OptionInput::Count:
        break;
    case OptionInput::Option:
        numbersNotNeeded = false;
        break;
    case OptionInput::Nothing:
        numbersNotNeeded = true;
        offer = Offer::Build;
        break;
    }
}

void BuilderSteps::ChooseOption()
{
    TakeBackOffer();
    offer = Offer::ChooseNumbers;
}

void BuilderSteps::GiveCount(bool possible)
{
    numbersNotNeeded = possible;
    offer = possible ? Offer::Build : Offer::Nothing;
}

void BuilderSteps::BeginNumbers()
{
    ChooseOption();
    storeOffered = false;
}

void BuilderSteps::EndNumbers(bool stored)
{
    offer = stored ? Offer::Build : Offer::ChooseNumbers;
}

ShownControls BuilderSteps::Shown() const
{
    ShownControls shown;
    shown.buildType = lastUserIndex != -1;
    if (method) {
        const OptionInput input = TypeOf(*method).input;
        shown.typeTexts = true;
        shown.option = input == OptionInput::Option;
        shown.count = input == OptionInput::Count;
        shown.choose = shown.option && offer != Offer::Nothing;
        shown.noNumbersNeeded = numbersNotNeeded;
        shown.go = MayBuild();
    }
    shown.grid = linesShown;
    shown.store = storeOffered;
    return shown;
}
