#include "controls/grid_model.h"

#include <QColor>
#include <QFont>

#include <utility>

namespace {

const QColor EntryColour(0x5B, 0x74, 0xD7);

/// A font that is stronger than the grid's and otherwise the same.
QFont StrongOnly()
{
    QFont font;
    font.setWeight(QFont::DemiBold);
    return font;
}

} // namespace

void GridModel::Show(int rowCount, CellText textOfCell)
{
    beginResetModel();
    rows = rowCount;
    cellText = std::move(textOfCell);
    endResetModel();
}

std::vector<double> GridModel::ColumnShares() const
{
    std::vector<double> shares;
    for (const Column& column : columns)
        shares.push_back(column.share);
    return shares;
}

int GridModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(columns.size());
}

QVariant GridModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const Column& column = columns.at(static_cast<size_t>(index.column()));
    switch (role) {
    case Qt::DisplayRole:
        return cellText(index.row(), index.column());
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(column.alignment);
    case Qt::BackgroundRole:
        return column.numbersEntries ? QVariant(EntryColour) : QVariant();
    case Qt::ForegroundRole:
        // White digits would not stand out enough from this colour.
        return column.numbersEntries ? QVariant(QColor(Qt::black)) : QVariant();
    case Qt::FontRole:
        return column.numbersEntries ? QVariant(StrongOnly()) : QVariant();
    default:
        return {};
    }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::DisplayRole)
        return columns.at(static_cast<size_t>(section)).heading;
    return role == Qt::TextAlignmentRole ? QVariant::fromValue(Qt::Alignment(Qt::AlignCenter)) : QVariant();
}

void GridModel::SetHeading(int column, const QString& heading)
{
    columns.at(static_cast<size_t>(column)).heading = heading;
    Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
}
