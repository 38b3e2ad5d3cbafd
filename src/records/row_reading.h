#pragma once

#include "records/stored_rows.h"
#include "records/table_layout.h"

#include <string>

struct sqlite3;

/// The names of all columns, quoted and separated by commas.
std::string ColumnNames(const TableLayout& layout);

/// Proves that the file holds a table or stored query of this name, kind and these columns, and that the engine is
/// ready to read the table. Throws Failure with the given clause.
void ProveLayout(sqlite3* engine, const TableLayout& layout, const std::string& doing);

/// Reads all rows of a table, in the order of the engine's own numbers. Throws Failure with the given clause.
StoredRows ReadRows(sqlite3* engine, const TableLayout& table, const std::string& doing);
