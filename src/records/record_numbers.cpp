#include "records/record_numbers.h"

#include "records/record_set.h"

#include <unordered_map>

bool FindRecord(RecordSet& table, std::int64_t number)
{
    for (table.MoveFirst(); !table.Eof(); table.MoveNext())
        if (table.Number(0) == static_cast<double>(number))
            return true;
    return false;
}

void DeleteRecords(RecordSet& table, const std::vector<std::int64_t>& numbers)
{
    std::unordered_map<double, int> wanted;
    for (const std::int64_t number : numbers)
        ++wanted[static_cast<double>(number)];
    for (table.MoveFirst(); !table.Eof() && !wanted.empty(); table.MoveNext()) {
        const auto found = wanted.find(table.Number(0));
        if (found == wanted.end())
            continue;
        table.Delete();
        if (--found->second == 0)
            wanted.erase(found);
    }
}
