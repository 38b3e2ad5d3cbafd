#pragma once

#include "controls/grid_model.h"
#include "controls/grid_view.h"
#include "game/entry_row.h"

struct Game;

/// Entries as rows of a grid: a hidden column with the entry's number, a column that counts the rows from 1, and the
/// six numbers.
class EntryGridModel : public GridModel
{
    Q_OBJECT

public:
    explicit EntryGridModel(QObject* parent = nullptr);

    /// Takes the rows of one game.
    void Fill(const Game& game, std::vector<EntryRow> entriesOfGame);
    const std::vector<EntryRow>& Rows() const { return rows; }

    int rowCount(const QModelIndex& parent = {}) const override;

    /// The columns' widths: equal for all that are shown.
    static std::vector<double> ColumnShares();

protected:
    QString CellText(int row, int column) const override;

private:
    std::vector<EntryRow> rows;
};
