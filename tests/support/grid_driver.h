#pragma once

#include "controls/grid_view.h"
#include "support/test_window.h"

using namespace Qt::StringLiterals;

/// A grid of a page, with what is needed to select its rows as a player does.
class GridDriver
{
public:
    GridDriver(TestWindow& testWindow, const QString& gridName)
        : window(testWindow), name(gridName), view(testWindow.Find<GridView>(gridName))
    {
    }

    int Rows() const { return view->model()->rowCount(); }
    /// The cells of a row, joined by commas, from the given column on.
    QString Row(int row, int fromColumn = 0) const
    {
        QStringList cells;
        for (int column = fromColumn; column < view->model()->columnCount(); ++column)
            cells.append(view->model()->index(row, column).data().toString());
        return cells.join(u',');
    }
    /// "first-last" of the selected rows.
    QString Selected() const { return u"%1-%2"_s.arg(view->SelectedRows().first).arg(view->SelectedRows().last); }
    void Click(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::mouseClick(view->viewport(), Qt::LeftButton, modifiers, Middle(row));
    }
    void Drag(int from, int to)
    {
        QTest::mousePress(view->viewport(), Qt::LeftButton, Qt::NoModifier, Middle(from));
        QTest::mouseMove(view->viewport(), Middle(to));
        QTest::mouseRelease(view->viewport(), Qt::LeftButton, Qt::NoModifier, Middle(to));
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) { window.Press(name, key, modifiers); }

    /// Selects rows in one of the ways: "click" (with Shift), "drag" or "keys", from one row to another.
    void Select(const QString& way, int from, int to)
    {
        if (way == "drag"_L1)
            return Drag(from, to);
        Click(from);
        if (way == "click"_L1)
            Click(to, Qt::ShiftModifier);
        for (int row = from; way == "keys"_L1 && row != to; row += from < to ? 1 : -1)
            Press(from < to ? Qt::Key_Down : Qt::Key_Up, Qt::ShiftModifier);
    }

    QPoint Middle(int row) const { return view->visualRect(view->model()->index(row, 2)).center(); }

    TestWindow& window;
    QString name;
    GridView* view;
};
