#include "controls/grid_view.h"

#include "look/button.h"
#include "look/input_watch.h"
#include "look/theme.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>
#include <utility>

namespace {

constexpr int CellMargins = 8;

QFont HeadingFont()
{
    QFont font = FontFor(TextRole::Caption);
    font.setWeight(QFont::DemiBold);
    return font;
}

/// Draws a quiet line under each row, and leaves a cell that has a colour of its own that colour when it is selected.
class RowLines : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (index.data(Qt::BackgroundRole).isValid())
            option->state &= ~QStyle::State_Selected;
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::paint(painter, option, index);
        painter->setPen(option.palette.color(QPalette::Mid));
        painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    }
};

} // namespace

GridView::GridView(const QString& name, const QString& accessibleName, QWidget* parent) : QTableView(parent)
{
    setObjectName(name);
    setAccessibleName(accessibleName);
    setItemDelegate(new RowLines(this));
    setFrameShape(QFrame::NoFrame);
    viewport()->setBackgroundRole(QPalette::AlternateBase);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ContiguousSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);

    QHeaderView* headings = horizontalHeader();
    headings->setSectionResizeMode(QHeaderView::Fixed);
    headings->setMinimumSectionSize(1);
    headings->setSectionsClickable(false);
    headings->setHighlightSections(false);
    connect(this, &QTableView::doubleClicked, this, &GridView::Opened);
}

void GridView::SetColumnShares(std::vector<double> columnShares)
{
    shares = std::move(columnShares);
    LayOutColumns();
}

void GridView::LayOutColumns()
{
    const int available = contentsRect().width() - style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    if (model() == nullptr || available <= 0)
        return;
    const bool large = IsInLargeWindow(*this);
    const double step = large ? 8.0 / 7 : 1;
    const auto columns = std::min(static_cast<size_t>(model()->columnCount()), shares.size());
    std::vector<double> texts(columns);
    double room = available;
    double textsTogether = 0;
    bool sharesSuffice = true;
    for (size_t column = 0; column < columns; ++column) {
        if (shares[column] == 0)
            continue;
        texts[column] = TextWidth(static_cast<int>(column)) * step;
        textsTogether += texts[column];
        room -= CellMargins;
        sharesSuffice = sharesSuffice && texts[column] + CellMargins <= available * shares[column];
    }
    const double factor = std::min(1.0, std::max(room, 1.0) / textsTogether);
    TakeFont((sharesSuffice ? 1 : factor) * step);
    const int row = fontMetrics().height() + (large ? 3 : 2) * Spacing::Inside;
    verticalHeader()->setDefaultSectionSize(row);
    horizontalHeader()->setFixedHeight(row);
    int left = available;
    for (size_t column = 0; column < columns; ++column) {
        const double width =
            sharesSuffice ? available * shares[column]
                          : texts[column] * factor + CellMargins + std::max(0.0, room - textsTogether) * shares[column];
        // Rounding must not make the columns together wider than the grid.
        const int whole = std::min(qRound(width), left);
        setColumnHidden(static_cast<int>(column), shares[column] == 0);
        if (shares[column] == 0)
            continue;
        left -= whole;
        setColumnWidth(static_cast<int>(column), whole);
    }
}

QSize GridView::minimumSizeHint() const
{
    // The texts may become smaller than the pages' own, but not by much.
    constexpr double smallestFactor = 0.8;
    double width = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this) + 2 * frameWidth();
    for (int column = 0; model() != nullptr && column < model()->columnCount(); ++column)
        if (!isColumnHidden(column))
            width += TextWidth(column) * smallestFactor + CellMargins;
    constexpr int leastRows = 3;
    return {qRound(width), (leastRows + 1) * verticalHeader()->defaultSectionSize() + 2 * frameWidth()};
}

double GridView::TextWidth(int column) const
{
    // The widest texts of a column are known from its first rows and, where it counts the rows, from its last.
    constexpr int looked = 4;
    const QFontMetricsF metrics(FontFor(TextRole::Strong));
    const int rows = model()->rowCount();
    const QString heading = model()->headerData(column, Qt::Horizontal).toString();
    double widest = QFontMetricsF(HeadingFont()).horizontalAdvance(heading);
    for (int row = 0; row < rows; row = row == looked ? std::max(rows - 1, row + 1) : row + 1)
        widest = std::max(widest, metrics.horizontalAdvance(model()->index(row, column).data().toString()));
    // A file may hold a text of any length; what does not fit its column is cut there.
    return std::min(widest, 20 * metrics.averageCharWidth());
}

void GridView::TakeFont(double factor)
{
    const auto scaled = [factor](QFont font) {
        font.setPointSizeF(font.pointSizeF() * factor);
        return font;
    };
    setFont(scaled(FontFor(TextRole::Body)));
    horizontalHeader()->setFont(scaled(HeadingFont()));
}

GridView::RowSpan GridView::SelectedRows() const
{
    RowSpan span;
    if (selectionModel() == nullptr)
        return span;
    const QItemSelection selection = selectionModel()->selection();
    for (const QItemSelectionRange& range : selection) {
        span.first = span.first < 0 ? range.top() : std::min(span.first, range.top());
        span.last = std::max(span.last, range.bottom());
    }
    return span;
}

void GridView::SelectRow(int row)
{
    clearSelection();
    const QModelIndex cell = model()->index(row, horizontalHeader()->logicalIndexAt(0));
    setCurrentIndex(cell);
    if (cell.isValid())
        scrollTo(cell);
    HideCurrentCell(*this, !hasFocus());
}

void GridView::CopySelectedRows() const
{
    const RowSpan span = SelectedRows();
    QString copied;
    for (int row = span.first; row >= 0 && row <= span.last; ++row) {
        QStringList cells;
        for (int column = 0; column < model()->columnCount(); ++column)
            if (!isColumnHidden(column))
                cells.append(model()->index(row, column).data().toString());
        copied += cells.join(u'\t') + u'\n';
    }
    if (!copied.isEmpty())
        QApplication::clipboard()->setText(copied);
}

void GridView::reset()
{
    QTableView::reset();
    LayOutColumns();
}

void GridView::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy))
        CopySelectedRows();
    else if (IsEnter(*event))
        Q_EMIT Opened();
    else if (event->key() == Qt::Key_Delete)
        Q_EMIT DeletePressed();
    else
        QTableView::keyPressEvent(event);
}

void GridView::hideEvent(QHideEvent* event)
{
    QTableView::hideEvent(event);
    // Its window may not be the active one, as while a message box closes: then the toolkit would not hand the focus
    // on.
    if (isHidden() && window()->focusWidget() == this)
        focusNextPrevChild(true);
}

void GridView::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    LayOutColumns();
}

QModelIndex GridView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (action == MoveHome || action == MoveEnd)
        return model()->index(action == MoveHome ? 0 : model()->rowCount() - 1, horizontalHeader()->logicalIndexAt(0));
    return QTableView::moveCursor(action, modifiers);
}

QItemSelectionModel::SelectionFlags GridView::selectionCommand(const QModelIndex& index, const QEvent* event) const
{
    // A click beside the rows leaves the selection alone, so that the buttons always have a row to act on.
    return index.isValid() ? QTableView::selectionCommand(index, event) : QItemSelectionModel::NoUpdate;
}
