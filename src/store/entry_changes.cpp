#include "store/entry_changes.h"

#include "base/failure.h"
#include "game/game.h"
#include "store/open_databases.h"
#include "store/user_records.h"

namespace {

const char* const Storing = "The entries could not be stored";

/// Moves to the user and reads it.
UserRow FindOwner(const QString& userName)
{
    if (!FindUserByName(users, userName))
        throw Failure(Storing, "there is no user of this name any more", userName.toStdString());
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
        throw Failure(Storing, "the user's spend limit no longer allows them", "changed by another copy");
    ChangeUser(users, owner.name, count + more);
}

} // namespace

bool ExceedsSpendLimit(const QString& userName, int more)
{
    const UserRow owner = FindOwner(userName);
    return !MayStoreEntries(CountEntries(entries, owner.number), more, owner.spendLimit);
}

void StoreEntriesOfUser(const QString& userName, const std::vector<EntryRow>& built, const DaySet& days,
                        RaiseLimit raise)
{
    try {
        Transaction transaction(UserDb, Storing);
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
        throw failure.During(Storing);
    }
}
