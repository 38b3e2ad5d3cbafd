#pragma once

#include "game/entry_row.h"
#include "records/record_row.h"

#include <QString>

#include <vector>

class RecordSet;

/// One stored user.
struct UserRow
{
    std::int64_t number = 0;
    QString name;
    double spendLimit = 0;
    Bookmark mark = {};
};

UserRow ReadUser(const RecordRow& row);
EntryRow ReadEntry(const RecordRow& row);

/// All rows, in the order in which they were added.
std::vector<UserRow> ReadAllUsers(RecordSet& users);
std::vector<EntryRow> ReadAllEntries(RecordSet& entries);

/// The user's entries of one game, in the order in which they were added.
RecordList ListEntriesOf(RecordSet& entries, std::int64_t userId, int drawType);

/// Moves to the first user of exactly this name; false, and at the end, when there is none.
bool FindUserByName(RecordSet& users, const QString& name);

/// How many entries the user has, of both games.
int CountEntries(RecordSet& entries, std::int64_t userId);

/// Whether a user who has `count` entries may store no further one under the limit.
bool IsUpToLimit(int count, double spendLimit);

/// Whether a user who has `count` entries may store `more` of them under the limit.
bool MayStoreEntries(int count, int more, double spendLimit);

/// Adds a user with the next number. Throws Failure; nothing is stored then.
void AddUser(RecordSet& users, const QString& name, double spendLimit);

/// Writes name and limit over the current user; the number stays. Throws Failure.
void ChangeUser(RecordSet& users, const QString& name, double spendLimit);

/// Adds an entry under the number it carries. Throws Failure.
void AddEntry(RecordSet& entries, const EntryRow& entry);

/// Writes numbers and days over the current entry; its number, owner and game stay. Throws Failure.
void ChangeEntry(RecordSet& entries, const EntryNumbers& numbers, const DaySet& days);

/// Deletes every entry of the user, of both games. Throws Failure; to be called inside a transaction.
void DeleteUserEntries(RecordSet& entries, std::int64_t userId);
