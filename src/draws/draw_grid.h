#pragma once

#include "controls/grid_model.h"
#include "records/record_row.h"

struct Game;

/// The columns of a grid of draws, and the text of one of them for a draw.
std::vector<GridModel::Column> DrawColumns(const Game& game);
QString DrawCell(const RecordRow& draw, int column);
