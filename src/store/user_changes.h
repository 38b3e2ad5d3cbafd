#pragma once

#include "store/user_records.h"

// Every change of the stored users. Each function is one transaction, on disk when the function returns. All throw
// Failure, and nothing has been changed then.

/// Stores a user with the next number; false, and nothing is stored, when there is a user of that name already.
bool StoreNewUser(const QString& name, double spendLimit);

/// Gives the user another name and limit. Fails where another copy of the program has deleted it.
void StoreUserChanges(const Bookmark& mark, const QString& name, double spendLimit);

/// Deletes the user and all its entries; nothing, where another copy of the program has done so.
void DeleteUserWithEntries(const UserRow& user);
