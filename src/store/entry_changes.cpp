#include "store/entry_changes.h"

#include "base/failure.h"
#include "game/game.h"
#include "store/open_databases.h"
#include "store/user_records.h"

namespace {

const std::string StoringBatch = "The entries could not be stored";

UserRow FindOwner(const QString& userName)
{
    if (!FindUserByName(users, userName))
        throw Failure(StoringBatch, "there is no user of this name any more", userName.toStdString());
    return ReadUser(users);
}

/// Raises the limit of the current user where more entries do not fit under it.
void MakeRoom(const UserRow& owner, int more, RaiseLimit raise)
{
    // Another copy of the program may have changed the user or its entries since the player was asked.
    const int count = CountEntries(entries, owner.number);
    if (MayStoreEntries(count, more, owner.spendLimit))
        return;
    if (raise == RaiseLimit::No)
        throw Failure(StoringBatch, "the user's spend limit no longer allows them", "changed by another copy");
    ChangeUser(users, owner.name, count + more);
}

} // namespace

void StoreEntry(const UserRow& owner, EntryRow entry)
{
    const std::string doing = "The entry could not be stored";
    Transaction transaction(UserDb, doing);
    // Another copy of the program may have changed the user or its entries since the user was chosen.
    if (!users.MoveTo(owner.mark))
        throw Failure(doing, "another copy of the program has deleted the user meanwhile", "no such user");
    if (IsUpToLimit(CountEntries(entries, owner.number), ReadUser(users).spendLimit))
        throw Failure(doing, "the user's spend limit no longer allows it", "changed by another copy");
    entry.number = entries.NextNumber();
    entry.userId = owner.number;
    AddEntry(entries, entry);
    transaction.Commit();
}

void StoreEntryChanges(const Bookmark& mark, const EntryNumbers& numbers, const DaySet& days)
{
    const std::string doing = "The changes could not be stored";
    Transaction transaction(UserDb, doing);
    if (!entries.MoveTo(mark))
        throw Failure(doing, "another copy of the program has deleted the entry meanwhile", "the row is gone");
    ChangeEntry(entries, numbers, days);
    transaction.Commit();
}

void DeleteEntries(const std::vector<Bookmark>& marks)
{
    Transaction transaction(UserDb, "The entries could not be deleted");
    DeleteRecords(entries, marks);
    transaction.Commit();
}

bool ExceedsSpendLimit(const QString& userName, int more)
{
    const UserRow owner = FindOwner(userName);
    return !MayStoreEntries(CountEntries(entries, owner.number), more, owner.spendLimit);
}

void StoreEntriesOfUser(const QString& userName, const std::vector<EntryRow>& built, const DaySet& days,
                        RaiseLimit raise)
{
    try {
        Transaction transaction(UserDb, StoringBatch);
        const UserRow owner = FindOwner(userName);
        MakeRoom(owner, static_cast<int>(built.size()), raise);
        std::int64_t number = entries.NextNumber();
        for (EntryRow entry : built) {
            entry.number = number++;
            entry.userId = owner.number;
            entry.drawType = MainGame.drawType;
            entry.days = days;
            AddEntry(entries, entry);
        }
        transaction.Commit();
    } catch (const Failure& failure) {
        throw failure.During(StoringBatch);
    }
}
