#pragma once

#include "records/stored_rows.h"

#include <span>
#include <vector>

// A stored query is an order of the places of its table's rows, by the fields of some columns, each with the highest
// first.

/// The order of all rows that are left.
std::vector<int> OrderRows(const StoredRows& rows, const std::vector<int>& columns);

/// An order in which the rows of some places have been changed, added or deleted since it was made.
std::vector<int> OrderAgain(const std::vector<int>& order, std::span<const int> changed, const StoredRows& rows,
                            const std::vector<int>& columns);
