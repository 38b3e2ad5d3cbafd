#pragma once

#include <QString>

// Every message to the player is one of these modal boxes. Texts are plain text; a box without a title of its own
// carries the name of the program.

extern const QString ApplicationTitle;

/// A message with an OK button and no icon.
void ShowMessage(const QString& text);

/// An explanation with an OK button, the information icon and its own title.
void ShowInformation(const QString& title, const QString& text);

/// A failure that ends the program, with an OK button and the critical-stop icon.
void ShowCritical(const QString& text);

/// A question with Yes and No. The button that changes nothing is No: it is the default and what Escape gives.
bool AskYesNo(const QString& text);

enum class Answer
{
    Yes,
    No,
    Cancel
};

/// A question with Yes, No and Cancel; Escape gives Cancel.
Answer AskYesNoCancel(const QString& text);
