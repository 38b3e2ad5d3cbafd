#pragma once

#include <QTableView>

#include <vector>

/// A grid of whole rows, of which one span can be selected: by Shift-click, by dragging either way, by Shift with the
/// arrow keys. It has no horizontal scroll bar; its columns share its width at every size, and where that is too narrow
/// for their texts, the texts become smaller. Ctrl+C copies the selected rows, without hidden columns, as tab-separated
/// text.
class GridView : public QTableView
{
    Q_OBJECT

public:
    /// The selected rows, counted from 0, in ascending order whichever way they were selected; none when first is -1.
    struct RowSpan
    {
        int first = -1;
        int last = -1;

        int Count() const { return first < 0 ? 0 : last - first + 1; }
    };

    GridView(const QString& name, const QString& accessibleName, QWidget* parent = nullptr);

    /// How wide each column is, as a share of the grid's width less that of a vertical scroll bar. A column whose share
    /// is 0 is hidden.
    void SetColumnShares(std::vector<double> columnShares);

    RowSpan SelectedRows() const;
    /// Selects one row, makes it the current one and brings it into view; a row that is not there selects nothing.
    void SelectRow(int row);

    void reset() override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The Enter key was pressed, or a row clicked twice.
    void Opened();
    /// The Delete key was pressed.
    void DeletePressed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;

private:
    void LayOutColumns();
    /// The width of the widest text of a column.
    double TextWidth(int column) const;
    void TakeFont(double factor);
    void CopySelectedRows() const;

    std::vector<double> shares;
};
