#pragma once

#include "builder/builder_steps.h"
#include "controls/card.h"
#include "controls/keeping_room.h"

#include <array>

class Button;
class QComboBox;
class QLabel;
class TextBox;

/// The five steps of the entry generator, one below the other.
class StepCard : public Card
{
    Q_OBJECT

public:
    StepCard();

    /// Takes the words and options of a way of building; nothing is chosen or typed then.
    void Describe(const BuildType& type);
    /// Shows and hides the controls of the steps.
    void Show(const ShownControls& shown);

    std::array<QComboBox*, 3> F26combo;
    TextBox* F26text;
    Button* F26info;
    Button* F26choose;
    Button* F26go;

private:
    /// Adds the heading of a step; its controls are added to what comes back.
    QVBoxLayout* AddStep(const QString& number, const QString& title);

    QLabel* entriesLabel;
    QLabel* promptLabel;
    QLabel* noNumbersLabel;
};
