#pragma once

#include "platform/grid_view.h"
#include "users/entry_row.h"

/// Entries as rows of a grid: a hidden column with the entry's number, a column that counts the rows from 1, and the
/// six numbers.
class EntryGridModel : public GridModel
{
    Q_OBJECT

public:
    EntryGridModel();

    void SetEntries(std::vector<EntryRow> entryRows);
    const std::vector<EntryRow>& Entries() const { return entries; }

    int rowCount(const QModelIndex& parent = {}) const override;

    /// The columns' widths: equal for all that are shown.
    static std::vector<double> ColumnShares();

protected:
    QString CellText(int row, int column) const override;

private:
    std::vector<EntryRow> entries;
};
