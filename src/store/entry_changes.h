#pragma once

#include "store/user_records.h"

// Every change of the stored entries. Each function is one transaction, on disk when the function returns. All throw
// Failure, and nothing has been changed then.

/// Stores an entry of the user under the next number. Fails where the user is gone or is up to the spend limit by now.
void StoreEntry(const UserRow& owner, EntryRow entry);

/// Writes numbers and days over the entry of this bookmark. Fails where there is none any more.
void StoreEntryChanges(const Bookmark& mark, const EntryNumbers& numbers, const DaySet& days);

/// Deletes the entries of these bookmarks. One that is gone already is no failure.
void DeleteEntries(const std::vector<Bookmark>& marks);

/// Whether the first user of exactly this name would have more entries than its spend limit allows, if it had `more` of
/// them. Throws Failure where there is no such user.
bool ExceedsSpendLimit(const QString& userName, int more);

/// Whether a user's limit may be raised for a batch of entries.
enum class RaiseLimit
{
    No,
    Yes
};

/// Stores the numbers of the built rows, in their order, as Main entries of the first user of exactly this name, played
/// on the given days. Where they do not fit under the limit and it may be raised, it becomes exactly what they need.
/// Fails where there is no such user, or the limit may not be raised.
void StoreEntriesOfUser(const QString& userName, const std::vector<EntryRow>& built, const DaySet& days,
                        RaiseLimit raise);
