#pragma once

#include "controls/grid_model.h"
#include "controls/grid_view.h"
#include "records/bookmark.h"

#include <array>
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
    /// The bookmark of the draw in a row.
    const Bookmark& MarkOf(int row) const { return rows.at(static_cast<size_t>(row)).mark; }

    /// The shares that the columns have of the grid's width.
    static std::vector<double> ColumnShares(const Game& game);

protected:
    QString CellText(int row, int column) const override;

private:
    /// Date and day stand here as they are stored; they are read when the row is seen.
    struct Row
    {
        Bookmark mark;
        std::array<double, 7> balls;
        std::array<char, 10> date;
        std::array<char, 3> day;
    };
    struct OddTexts
    {
        QString date;
        QString day;
    };

    void Take(const RecordSet& list);

    const Game& game;
    std::vector<Row> rows;
    /// The texts, by row, where one has not the length of a date or a day; only a foreign file can hold such rows.
    std::map<int, OddTexts> oddTexts;
};
