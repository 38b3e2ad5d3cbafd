#pragma once

#include <string>
#include <vector>

/// One column of a table: its name and the type it is declared with.
struct ColumnLayout
{
    std::string name;
    std::string type;
};

/// A table, or a stored query that lists one, by its name and its columns in their fixed order. Fields are addressed by
/// their position in this order.
struct TableLayout
{
    std::string name;
    std::vector<ColumnLayout> columns;
    /// For a stored query the order of its rows as the engine's ORDER BY clause; empty for a table, whose rows keep the
    /// order in which they were added.
    std::string listOrder;
    /// The table that a stored query lists.
    std::string listedTable = {};

    bool IsList() const { return !listOrder.empty(); }
    int ColumnCount() const { return static_cast<int>(columns.size()); }
};
