#pragma once

#include "records/table_layout.h"

/// The tables of the user database.
const TableLayout& UsersTable();
const TableLayout& EntriesTable();

namespace UserField {
inline constexpr int UserId = 0;
inline constexpr int UserName = 1;
inline constexpr int SpendLimit = 2;
} // namespace UserField

namespace EntryField {
inline constexpr int EntryId = 0;
inline constexpr int UserId = 1;
inline constexpr int DrawType = 2;
inline constexpr int FirstBall = 3;
// Followed by the other six days in the order of a day set.
inline constexpr int Monday = 9;
} // namespace EntryField
