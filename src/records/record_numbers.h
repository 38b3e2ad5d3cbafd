#pragma once

#include <cstdint>
#include <vector>

class RecordSet;

// Every table whose rows are numbered holds the number at position 0.

/// Moves the table to the first row of the given number; false, and at the end, when there is none.
bool FindRecord(RecordSet& table, std::int64_t number);

/// Deletes the row of each number in one pass over the table: the first row where several carry the number. A row that
/// is gone already is no failure. Throws Failure; to be asked for inside a transaction.
void DeleteRecords(RecordSet& table, const std::vector<std::int64_t>& numbers);
