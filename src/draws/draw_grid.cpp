#include "draws/draw_grid.h"

#include "base/dates.h"
#include "base/numbers.h"
#include "base/texts.h"
#include "game/game.h"
#include "store/draw_tables.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int DateColumn = 0;
constexpr int DayColumn = 1;
constexpr int FirstBallColumn = 2;

} // namespace

std::vector<GridModel::Column> DrawColumns(const Game& game)
{
    std::vector<GridModel::Column> columns{{u"Date"_s, 1 / 7.0, Qt::AlignRight | Qt::AlignVCenter},
                                           {u"Day"_s, 1 / 11.3}};
    for (int slot = 0; slot < game.BallCount(); ++slot)
        columns.push_back({game.BallCaption(slot), 1 / 9.2});
    columns.back().share = game.IsMain() ? 1 / 9.3 : 1 / 4.65;
    return columns;
}

QString DrawCell(const RecordRow& draw, int column)
{
    if (column == DateColumn)
        return ShortStoredDate(draw.Text(DrawField::Date));
    if (column == DayColumn)
        return ShownText(draw.Text(DrawField::Day));
    return PlainNumber(draw.Number(DrawField::FirstBall + column - FirstBallColumn));
}
