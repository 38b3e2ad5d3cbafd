#include "draws/draw_grid_model.h"

#include "base/dates.h"
#include "base/numbers.h"
#include "base/texts.h"
#include "game/game.h"
#include "records/record_set.h"
#include "store/draw_tables.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int DateColumn = 0;
constexpr int DayColumn = 1;
constexpr int FirstBallColumn = 2;

std::vector<GridModel::Column> ColumnsOf(const Game& game)
{
    std::vector<GridModel::Column> columns{{u"Date"_s, Qt::AlignRight | Qt::AlignVCenter}, {u"Day"_s}};
    for (int slot = 0; slot < game.BallCount(); ++slot)
        columns.push_back({game.BallCaption(slot)});
    return columns;
}

} // namespace

DrawGridModel::DrawGridModel(const Game& drawGame, QObject* parent)
    : GridModel(ColumnsOf(drawGame), parent), game(drawGame)
{
}

std::vector<double> DrawGridModel::ColumnShares(const Game& game)
{
    std::vector<double> shares(static_cast<size_t>(FirstBallColumn + game.BallCount()), 1 / 9.2);
    shares[DateColumn] = 1 / 7.0;
    shares[DayColumn] = 1 / 11.3;
    shares.back() = game.drawType == MainGame.drawType ? 1 / 9.3 : 1 / 4.65;
    return shares;
}

void DrawGridModel::Fill(RecordSet& list)
{
    RecordList shown = list.List();
    beginResetModel();
    rows = std::move(shown);
    endResetModel();
}

int DrawGridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : rows.Count();
}

QString DrawGridModel::CellText(int row, int column) const
{
    const RecordRow draw = rows[row];
    if (column == DateColumn)
        return ShortStoredDate(draw.Text(DrawField::Date));
    if (column == DayColumn)
        return ShownText(draw.Text(DrawField::Day));
    return PlainNumber(draw.Number(DrawField::FirstBall + column - FirstBallColumn));
}
