#pragma once

#include "builder/builder_steps.h"
#include "builder/entry_builders.h"
#include "controls/small_window.h"

#include <functional>

class Button;
class NumberToggle;
class QHBoxLayout;
class QLabel;

/// The number-picking window, frmnumsel. It shows the numbers chosen last and offers Store while exactly the required
/// count is ticked; left in any other way than by Store, it keeps the chosen numbers as they were.
class NumberWindow : public SmallWindow
{
    Q_OBJECT

public:
    NumberWindow(BuilderState& builderState, QWidget* parent);

private:
    /// The numbers 1 to 49 as a board of seven by seven, which is one stop on the way of the Tab key.
    QWidget* BuildBoard();
    void AddButton(QHBoxLayout* row, const QString& caption, const QString& name, const std::function<void()>& handler);
    /// Ascending.
    std::vector<int> TickedNumbers() const;
    void TickAll(bool ticked);
    void Tick(int number);
    void UpdateSelectionCount();
    void random_Click();
    void store_Click();

    BuilderState& state;
    std::array<NumberToggle*, HighestNumber> toggles{};
    QLabel* countLabel;
    Button* store;
};
