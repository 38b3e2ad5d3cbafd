#pragma once

#include "builder/builder_steps.h"
#include "builder/entry_builders.h"
#include "controls/page_frame.h"
#include "users/entry_grid.h"

#include <array>

class Card;
class GridView;
class PageSwitch;
class QComboBox;
class StepCard;

/// Page 26, "Main Draw Entry Generator": user, way of building, option and numbers are chosen step by step, then lines
/// are built and stored for the user.
class EntryGeneratorPage : public PageFrame
{
    Q_OBJECT

public:
    explicit EntryGeneratorPage(PageSwitch& pageSwitch);

    /// ShowBuilderPage.
    void Prepare() override;

private:
    void ConnectHandlers();
    void UserChosen();
    void TypeChosen();
    void OptionChosen();
    void CountGiven();
    void F26info_Click();
    void F26choose_Click();
    void F26go_Click();
    void StoreBuiltEntries();
    void ShowControls();
    void ShowBuilt(std::vector<EntryRow> rows);
    int ChosenOptionNumbers() const;
    std::vector<Line> Build();

    PageSwitch& pages;
    BuilderState state;
    BuilderSteps steps;
    std::vector<EntryRow> built;
    GridModel lines{EntryColumns()};

    StepCard* card;
    std::array<QComboBox*, 3>& F26combo;
    Card* gridCard;
    GridView* F26grid;
    Button* F26store;
};
