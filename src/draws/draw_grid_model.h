#pragma once

#include "platform/grid_view.h"

#include <QDate>

#include <array>
#include <cstdint>
#include <map>

class RecordSet;
struct Game;

/// All draws of one game for its grid, in list order.
class DrawGridModel : public GridModel
{
    Q_OBJECT

public:
    explicit DrawGridModel(const Game& drawGame, QObject* parent = nullptr);

    /// Takes every record of the list in one pass. Throws Failure; the model is empty then.
    void Fill(RecordSet& list);

    int rowCount(const QModelIndex& parent = {}) const override;
    /// The DrawId of the draw in a row.
    std::int64_t NumberOf(int row) const { return rows.at(static_cast<size_t>(row)).number; }

    /// The shares that the columns have of the grid's width.
    static std::vector<double> ColumnShares(const Game& game);

protected:
    QString CellText(int row, int column) const override;

private:
    struct Row
    {
        std::int64_t number;
        QDate date;
        std::array<double, 7> balls;
        std::uint32_t day;
    };

    std::uint32_t PlaceOfDayName(std::string_view day);

    const Game& game;
    std::vector<Row> rows;
    /// The different day texts; there are seven of them where the file is this program's own.
    std::vector<QString> dayNames;
    std::map<std::string, std::uint32_t, std::less<>> placesOfDayNames;
    /// Dates that are none, by row; they are shown as they are stored.
    std::map<int, QString> oddDates;
};
