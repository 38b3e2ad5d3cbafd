#pragma once

#include "controls/grid_model.h"
#include "controls/grid_view.h"
#include "records/record_row.h"

class RecordSet;
struct Game;

/// All draws of one game for its grid, in list order.
class DrawGridModel : public GridModel
{
    Q_OBJECT

public:
    explicit DrawGridModel(const Game& drawGame, QObject* parent = nullptr);

    /// Shows the list as it now is. Throws Failure; the model shows what it did then.
    void Fill(RecordSet& list);

    int rowCount(const QModelIndex& parent = {}) const override;
    const RecordList& Rows() const { return rows; }

    /// The shares that the columns have of the grid's width.
    static std::vector<double> ColumnShares(const Game& game);

protected:
    QString CellText(int row, int column) const override;

private:
    const Game& game;
    RecordList rows;
};
