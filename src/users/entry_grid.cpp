#include "users/entry_grid.h"

#include "base/numbers.h"
#include "game/game.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int EntryIdColumn = 0;
constexpr int RowColumn = 1;
constexpr int FirstBallColumn = 2;

} // namespace

std::vector<GridModel::Column> EntryColumns()
{
    constexpr double share = 1.0 / (1 + EntryBalls);
    std::vector<GridModel::Column> columns{{}, {u"Entry"_s, share, Qt::AlignCenter, true}};
    for (int slot = 0; slot < EntryBalls; ++slot)
        columns.push_back({MainGame.BallCaption(slot), share});
    return columns;
}

void NameLastNumber(GridModel& model, const Game& game)
{
    constexpr int last = EntryBalls - 1;
    model.SetHeading(FirstBallColumn + last, game.IsMain() ? MainGame.BallCaption(last) : u"Thunder"_s);
}

QString EntryCell(const EntryRow& entry, int row, int column)
{
    if (column == EntryIdColumn)
        return QString::number(entry.number);
    if (column == RowColumn)
        return QString::number(row + 1);
    return PlainNumber(entry.numbers.at(static_cast<size_t>(column - FirstBallColumn)));
}
