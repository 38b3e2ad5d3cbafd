#include "draws/draw_grid_model.h"

#include "base/dates.h"
#include "base/numbers.h"
#include "base/texts.h"
#include "game/game.h"
#include "records/record_set.h"
#include "store/draw_records.h"
#include "store/draw_tables.h"

#include <algorithm>

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
    beginResetModel();
    rows.clear();
    oddTexts.clear();
    try {
        list.MoveFirst();
        rows.reserve(static_cast<size_t>(list.Count()));
        for (; !list.Eof(); list.MoveNext())
            Take(list);
    } catch (...) {
        rows.clear();
        endResetModel();
        throw;
    }
    endResetModel();
}

void DrawGridModel::Take(const RecordSet& list)
{
    Row& row = rows.emplace_back();
    row.mark = list.Mark();
    for (int slot = 0; slot < game.BallCount(); ++slot)
        row.balls[static_cast<size_t>(slot)] = list.Number(DrawField::FirstBall + slot);
    const std::string_view date = list.Text(DrawField::Date);
    const std::string_view day = list.Text(DrawField::Day);
    if (date.size() == row.date.size() && day.size() == row.day.size()) {
        std::copy(date.begin(), date.end(), row.date.begin());
        std::copy(day.begin(), day.end(), row.day.begin());
    } else {
        oddTexts[static_cast<int>(rows.size()) - 1] = {ShortStoredDate(date), ShownText(day)};
    }
}

int DrawGridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows.size());
}

QString DrawGridModel::CellText(int row, int column) const
{
    const Row& draw = rows.at(static_cast<size_t>(row));
    if (column >= FirstBallColumn)
        return PlainNumber(draw.balls.at(static_cast<size_t>(column - FirstBallColumn)));
    const auto odd = oddTexts.find(row);
    if (column == DateColumn)
        return odd != oddTexts.end() ? odd->second.date : ShortStoredDate({draw.date.data(), draw.date.size()});
    return odd != oddTexts.end() ? odd->second.day : FromUtf8({draw.day.data(), draw.day.size()});
}
