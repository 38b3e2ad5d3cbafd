#pragma once

#include <QAbstractTableModel>

#include <vector>

/// The model of a grid. A model of this kind holds its rows as plain values; the text of a cell is made when it is
/// seen.
class GridModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    struct Column
    {
        QString heading;
        Qt::Alignment alignment = Qt::AlignCenter;
        /// Whether the column numbers the entries: strong digits on the entry colour.
        bool numbersEntries = false;
    };

    explicit GridModel(std::vector<Column> gridColumns, QObject* parent = nullptr)
        : QAbstractTableModel(parent), columns(std::move(gridColumns))
    {
    }

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    void SetHeading(int column, const QString& heading);

protected:
    /// The text of a cell that exists.
    virtual QString CellText(int row, int column) const = 0;

private:
    std::vector<Column> columns;
};
