#pragma once

#include "builder/builder_state.h"
#include "controls/small_window.h"

class Button;
class NumberBoard;
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
    void AddButton(QHBoxLayout* row, const QString& caption, const QString& name, void (NumberWindow::*handler)());
    void UpdateSelectionCount();
    void Selall_Click();
    void clear_Click();
    void random_Click();
    void store_Click();
    void nostore_Click();

    BuilderState& state;
    NumberBoard* board;
    QLabel* countLabel;
    Button* store;
};
