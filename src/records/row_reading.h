#pragma once

#include "records/stored_rows.h"
#include "records/table_layout.h"

#include <string>

struct sqlite3;

/// The names of all columns, quoted and separated by commas.
std::string ColumnNames(const TableLayout& layout);

/// Proves that the file holds a table or stored query of this name, kind and these columns, which the engine is ready
/// to read. Throws Failure with the given clause.
void ProveLayout(sqlite3* engine, const TableLayout& layout, const std::string& doing);

/// Reads all rows of a table or stored query. Throws Failure with the given clause.
StoredRows ReadRows(sqlite3* engine, const TableLayout& layout, const std::string& doing);
