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

void StoreUserChanges(const Bookmark& mark, const QString& name, double spendLimit)
{
    const std::string doing = "The changes of the user could not be stored";
    Transaction transaction(UserDb, doing);
    if (!users.MoveTo(mark))
        throw Failure(doing, "another copy of the program has deleted the user meanwhile", "no such user");
    ChangeUser(users, name, spendLimit);
    transaction.Commit();
}

void DeleteUserWithEntries(const UserRow& user)
{
    Transaction transaction(UserDb, "The user could not be deleted");
    // Its number may be another user's by now.
    if (users.MoveTo(user.mark)) {
        DeleteUserEntries(entries, user.number);
        users.Delete();
    }
    transaction.Commit();
}
