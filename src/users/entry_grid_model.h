#pragma once

#include "controls/grid_model.h"
#include "controls/grid_view.h"
#include "game/entry_row.h"

#include <functional>

struct Game;

/// Entries as rows of a grid: a hidden column with the entry's number, a column that counts the rows from 1, and the
/// six numbers.
class EntryGridModel : public GridModel
{
    Q_OBJECT

public:
    explicit EntryGridModel(QObject* parent = nullptr);

    /// Shows so many entries of one game; each is read when it is seen.
    void Fill(const Game& game, int entryCount, std::function<EntryRow(int)> readEntry);

    int rowCount(const QModelIndex& parent = {}) const override;

    /// The columns' widths: equal for all that are shown.
    static std::vector<double> ColumnShares();

protected:
    QString CellText(int row, int column) const override;

private:
    int count = 0;
    std::function<EntryRow(int)> entryOf;
};
