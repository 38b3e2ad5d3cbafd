#include "users/entry_grid_model.h"

#include "base/numbers.h"
#include "game/game.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int RowColumn = 1;
constexpr int FirstBallColumn = 2;
constexpr int BallColumns = 6;

std::vector<GridModel::Column> Columns()
{
    std::vector<GridModel::Column> columns{{QString()}, {u"Entry"_s, Qt::AlignCenter, true}};
    for (int slot = 0; slot < BallColumns; ++slot)
        columns.push_back({MainGame.BallCaption(slot)});
    return columns;
}

} // namespace

EntryGridModel::EntryGridModel(QObject* parent) : GridModel(Columns(), parent) {}

void EntryGridModel::Fill(const Game& game, int entryCount, std::function<EntryRow(int)> readEntry)
{
    beginResetModel();
    count = entryCount;
    entryOf = std::move(readEntry);
    endResetModel();
    SetHeading(FirstBallColumn + BallColumns - 1, game.IsMain() ? MainGame.BallCaption(BallColumns - 1) : u"Thunder"_s);
}

int EntryGridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count;
}

std::vector<double> EntryGridModel::ColumnShares()
{
    std::vector<double> shares{0};
    shares.resize(FirstBallColumn + BallColumns, 1.0 / (1 + BallColumns));
    return shares;
}

QString EntryGridModel::CellText(int row, int column) const
{
    if (column == RowColumn)
        return QString::number(row + 1);
    const EntryRow entry = entryOf(row);
    if (column == 0)
        return QString::number(entry.number);
    return PlainNumber(entry.numbers.at(static_cast<size_t>(column - FirstBallColumn)));
}
