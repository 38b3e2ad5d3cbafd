#pragma once

#include "look/theme.h"

#include <QLabel>

/// A label in one of the text roles; plain text, never guessed to be rich.
QLabel* MakeLabel(const QString& text, TextRole role, const QString& name = {}, QWidget* parent = nullptr);

/// The name of element `index` of a control array.
QString ElementName(const QString& array, int index);
