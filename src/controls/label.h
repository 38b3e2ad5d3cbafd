#pragma once

#include "look/theme.h"

#include <QLabel>

/// A label in one of the text roles; plain text, never guessed to be rich.
QLabel* MakeLabel(const QString& text, TextRole role, const QString& name = {}, QWidget* parent = nullptr);

/// The same for a text of the files, which may be of any length: the label breaks it and never widens its page.
QLabel* MakeStoredTextLabel(const QString& text, TextRole role, const QString& name);

/// The name of element `index` of a control array.
QString ElementName(const QString& array, int index);
