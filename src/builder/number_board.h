#pragma once

#include "builder/entry_builders.h"

#include <QWidget>

class QCheckBox;

/// The numbers 1 to 49 as a board of seven by seven toggles in the colours of their balls. The arrow keys move over the
/// board, Space toggles, Tab leaves it.
class NumberBoard : public QWidget
{
    Q_OBJECT

public:
    explicit NumberBoard(QWidget* parent = nullptr);

    /// The ticked numbers, ascending.
    std::vector<int> TickedNumbers() const;
    void Tick(int number);
    void SetAll(bool ticked);

Q_SIGNALS:
    /// A number was ticked or unticked.
    void Changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QCheckBox* Toggle(int number) const { return toggles.at(static_cast<size_t>(number) - 1); }
    bool MoveFrom(int number, int key);
    void MakeTabStop(int number);

    std::array<QCheckBox*, HighestNumber> toggles{};
};
