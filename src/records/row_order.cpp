#include "records/row_order.h"

#include <algorithm>
#include <iterator>

namespace {

/// Whether one row comes before another; where all fields are equal, the one that was added first.
class Before
{
public:
    Before(const StoredRows& storedRows, const std::vector<int>& orderColumns) : rows(storedRows), columns(orderColumns)
    {
    }

    bool operator()(int place, int other) const
    {
        for (const int column : columns)
            if (const int difference = rows.Compare(place, other, column); difference != 0)
                return difference > 0;
        return place < other;
    }

private:
    const StoredRows& rows;
    const std::vector<int>& columns;
};

} // namespace

std::vector<int> OrderRows(const StoredRows& rows, const std::vector<int>& columns)
{
    std::vector<int> order;
    order.reserve(static_cast<std::size_t>(rows.Count()));
    for (int place = rows.Places() - 1; place >= 0; --place)
        if (!rows.IsDeleted(place))
            order.push_back(place);
    // Most rows are added as time goes on, so that there is often nothing to sort.
    const Before before(rows, columns);
    if (!std::is_sorted(order.begin(), order.end(), before))
        std::sort(order.begin(), order.end(), before);
    return order;
}

std::vector<int> OrderAgain(const std::vector<int>& order, std::span<const int> changed, const StoredRows& rows,
                            const std::vector<int>& columns)
{
    std::vector<bool> moves(static_cast<std::size_t>(rows.Places()));
    std::vector<int> moved;
    for (const int place : changed) {
        if (!moves[static_cast<std::size_t>(place)] && !rows.IsDeleted(place))
            moved.push_back(place);
        moves[static_cast<std::size_t>(place)] = true;
    }
    std::vector<int> stayed;
    stayed.reserve(order.size());
    std::copy_if(order.begin(), order.end(), std::back_inserter(stayed),
                 [&moves](int place) { return !moves[static_cast<std::size_t>(place)]; });
    const Before before(rows, columns);
    std::sort(moved.begin(), moved.end(), before);
    std::vector<int> again;
    again.reserve(stayed.size() + moved.size());
    std::merge(stayed.begin(), stayed.end(), moved.begin(), moved.end(), std::back_inserter(again), before);
    return again;
}
