#pragma once

#include "records/table_layout.h"

struct Game;

/// The draw tables of the draw database and the stored queries that list them newest first.
const TableLayout& DrawTable(const Game& game);
const TableLayout& DrawList(const Game& game);

/// The table of web links.
const TableLayout& LinksTable();

/// Everything that the draw database holds.
std::vector<TableLayout> DrawDatabaseLayouts();

namespace DrawField {
inline constexpr int DrawId = 0;
inline constexpr int Date = 1;
inline constexpr int Day = 2;
inline constexpr int FirstBall = 3;
// In the table of the Main game only.
inline constexpr int Machine = 10;
inline constexpr int BallSet = 11;
} // namespace DrawField
