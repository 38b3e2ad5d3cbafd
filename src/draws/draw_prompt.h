#pragma once

#include "controls/small_window.h"

/// What the player wants done with a draw whose date is stored already.
enum class DrawPromptChoice
{
    None = 0,
    AddNewDraw = 1,
    OverwriteExistingDraw = 2,
    Cancel = 3
};

/// The three-way prompt, frmmsgbox1. MsgBoxChoice carries its result: closing the window by its frame leaves None,
/// which is to be taken as Cancel.
class DrawPrompt : public SmallWindow
{
    Q_OBJECT

public:
    /// `gameName` is the game as the question names it: "main" or "thunderball".
    DrawPrompt(const QString& gameName, QWidget* parent);

    DrawPromptChoice MsgBoxChoice() const { return choice; }

private:
    DrawPromptChoice choice = DrawPromptChoice::None;
};
