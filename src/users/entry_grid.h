#pragma once

#include "controls/grid_model.h"
#include "game/entry_row.h"

struct Game;

/// The columns of a grid of entries: a hidden one with the entry's number, one that counts the rows from 1, and the six
/// numbers, which share its width equally.
std::vector<GridModel::Column> EntryColumns();

/// What the last of the numbers is called in the game.
void NameLastNumber(GridModel& model, const Game& game);

/// The text of a column for the entry in a row, both counted from 0.
QString EntryCell(const EntryRow& entry, int row, int column);
