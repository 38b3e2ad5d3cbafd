#pragma once

#include "game/entry_row.h"

#include <QString>

#include <vector>

// What the entry generator stores for the user of a name: the first one who has exactly this name.

/// What a batch of `more` entries needs from the user's spend limit.
bool ExceedsSpendLimit(const QString& userName, int more);

/// Whether the user's limit may be raised for the batch.
enum class RaiseLimit
{
    No,
    Yes
};

/// Stores the numbers of the built rows, in their order, as the user's Main entries that are played on the given days.
/// Where they do not fit under the limit and it may be raised, it becomes exactly what they need. All of this is
/// stored, or none of it. Throws Failure: there is no such user, the limit may not be raised, the file.
void StoreEntriesOfUser(const QString& userName, const std::vector<EntryRow>& built, const DaySet& days,
                        RaiseLimit raise);
