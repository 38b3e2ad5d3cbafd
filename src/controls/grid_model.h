#pragma once

#include <QAbstractTableModel>

#include <functional>
#include <vector>

/// The rows of a grid. The text of a cell is asked for when it is seen.
class GridModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    struct Column
    {
        QString heading;
        /// Of the grid's width less that of a vertical scroll bar; 0 for a hidden column.
        double share = 0;
        Qt::Alignment alignment = Qt::AlignCenter;
        /// Whether the column numbers the entries: strong digits on the entry colour.
        bool numbersEntries = false;
    };
    using CellText = std::function<QString(int row, int column)>;

    explicit GridModel(std::vector<Column> gridColumns, QObject* parent = nullptr)
        : QAbstractTableModel(parent), columns(std::move(gridColumns))
    {
    }

    /// Shows so many rows, in place of those shown before.
    void Show(int rowCount, CellText textOfCell);
    void SetHeading(int column, const QString& heading);
    std::vector<double> ColumnShares() const;

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows; }
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<Column> columns;
    int rows = 0;
    CellText cellText;
};
