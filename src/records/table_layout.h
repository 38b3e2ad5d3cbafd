#pragma once

#include <string>
#include <vector>

/// One column of a table: its name and the type it is declared with, which is TEXT for a column of texts.
struct ColumnLayout
{
    std::string name;
    std::string type;
};

/// A table, or a stored query that lists all rows of one, by its name and its columns in their fixed order. Fields are
/// addressed by their position in this order.
struct TableLayout
{
    std::string name;
    std::vector<ColumnLayout> columns;
    /// For a stored query the table that it lists, and the positions of the columns by which it is ordered, each with
    /// the highest first: what stands there is not changed after a row has been added. Empty for a table, whose rows
    /// keep the order in which they were added.
    std::string listedTable = {};
    std::vector<int> orderedBy = {};

    bool IsList() const { return !listedTable.empty(); }
    TableLayout Listed() const { return {listedTable, columns}; }
};
