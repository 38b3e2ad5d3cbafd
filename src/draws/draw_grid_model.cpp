#include "draws/draw_grid_model.h"

#include "draws/draw_records.h"
#include "draws/game.h"
#include "platform/dates.h"
#include "platform/numbers.h"
#include "platform/texts.h"
#include "records/record_set.h"

namespace {

constexpr int DateColumn = 0;
constexpr int DayColumn = 1;
constexpr int FirstBallColumn = 2;

std::vector<GridModel::Column> ColumnsOf(const Game& game)
{
    std::vector<GridModel::Column> columns{{QStringLiteral("Date"), Qt::AlignRight | Qt::AlignVCenter},
                                           {QStringLiteral("Day")}};
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
    oddDates.clear();
    try {
        list.MoveFirst();
        rows.reserve(static_cast<size_t>(list.Count()));
        for (; !list.Eof(); list.MoveNext()) {
            const DrawRow draw = ReadDraw(list, game);
            const Row row{draw.number, DateFromIso(draw.date), draw.balls, PlaceOfDayName(draw.day)};
            if (!row.date.isValid())
                oddDates[static_cast<int>(rows.size())] = FromUtf8(draw.date);
            rows.push_back(row);
        }
    } catch (...) {
        rows.clear();
        endResetModel();
        throw;
    }
    endResetModel();
}

std::uint32_t DrawGridModel::PlaceOfDayName(std::string_view day)
{
    const auto found = placesOfDayNames.find(day);
    if (found != placesOfDayNames.end())
        return found->second;
    dayNames.push_back(FromUtf8(day));
    return placesOfDayNames[std::string(day)] = static_cast<std::uint32_t>(dayNames.size() - 1);
}

int DrawGridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows.size());
}

QString DrawGridModel::CellText(int row, int column) const
{
    const Row& draw = rows.at(static_cast<size_t>(row));
    if (column == DateColumn)
        return draw.date.isValid() ? ShortDate(draw.date) : oddDates.at(row);
    if (column == DayColumn)
        return dayNames.at(draw.day);
    return PlainNumber(draw.balls.at(static_cast<size_t>(column - FirstBallColumn)));
}
