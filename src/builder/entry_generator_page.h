#pragma once

#include "builder/builder_state.h"
#include "builder/builder_steps.h"
#include "builder/entry_builders.h"
#include "platform/page_frame.h"
#include "users/entry_grid_model.h"

#include <array>

class Card;
class PageSwitch;
class QComboBox;
class TextBox;

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
    void LayOutSteps(Card* card);
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
    int ChosenOptionNumbers() const;
    std::vector<Line> Build();

    PageSwitch& pages;
    BuilderState state;
    BuilderSteps steps;
    EntryGridModel lines;

    std::array<QComboBox*, 3> F26combo;
    TextBox* F26text;
    Button* F26info;
    Button* F26choose;
    Button* F26go;
    Button* F26store;
    GridView* F26grid;
    Card* gridCard;
    QLabel* entriesLabel;
    QLabel* promptLabel;
    QLabel* noNumbersLabel;
};
