#include "store/user_changes.h"

#include "base/failure.h"
#include "store/open_databases.h"
#include "store/user_records.h"

bool StoreNewUser(const QString& name, double spendLimit)
{
    Transaction transaction(UserDb, "The new user could not be stored");
    if (FindUserByName(users, name))
        return false;
    AddUser(users, name, spendLimit);
    transaction.Commit();
    return true;
}

void StoreUserChanges(std::int64_t userId, const QString& name, double spendLimit)
{
    const std::string doing = "The changes of the user could not be stored";
    Transaction transaction(UserDb, doing);
    if (!FindUserByNumber(users, userId))
        throw Failure(doing, "another copy of the program has deleted the user meanwhile", "no such user");
    ChangeUser(users, name, spendLimit);
    transaction.Commit();
}

void DeleteUserWithEntries(std::int64_t userId)
{
    Transaction transaction(UserDb, "The user could not be deleted");
    DeleteUserEntries(entries, userId);
    if (FindUserByNumber(users, userId))
        users.Delete();
    transaction.Commit();
}
