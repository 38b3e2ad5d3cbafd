#include "records/bookmark.h"

#include "records/record_set.h"

#include <unordered_map>

void DeleteRecords(RecordSet& table, const std::vector<Bookmark>& marks)
{
    std::unordered_map<std::int64_t, double> wanted;
    for (const Bookmark& mark : marks)
        wanted[mark.rowId] = mark.number;
    for (table.MoveFirst(); !table.Eof(); table.MoveNext()) {
        const Bookmark mark = table.Mark();
        if (const auto found = wanted.find(mark.rowId); found != wanted.end() && found->second == mark.number)
            table.Delete();
    }
}
