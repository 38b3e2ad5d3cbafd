#pragma once

#include "records/record_set.h"

#include <vector>

/// The positions of the fields that a walk looks at.
struct WalkedFields
{
    std::vector<int> numbers;
    std::vector<int> texts;
};

/// Makes the compiler believe that the value is used.
template <typename Read>
void Use(const Read& value)
{
    asm volatile("" : : "r,m"(value));
}

/// Walks from the first record to the end and reads the given fields: the least that anything over all records does.
inline void Walk(RecordSet& set, const WalkedFields& fields)
{
    for (set.MoveFirst(); !set.Eof(); set.MoveNext()) {
        for (const int field : fields.numbers)
            Use(static_cast<int>(set.Number(field)));
        for (const int field : fields.texts)
            Use(set.Text(field).data());
    }
}
