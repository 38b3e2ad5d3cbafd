#pragma once

#include <QString>

#include <cstdint>

// Every change of the stored users. Each function is one transaction, on disk when the function returns. All throw
// Failure, and nothing has been changed then.

/// Stores a user with the next number; false, and nothing is stored, when there is a user of that name already.
bool StoreNewUser(const QString& name, double spendLimit);

/// Gives the user of this number a name and a limit. Fails where there is none any more.
void StoreUserChanges(std::int64_t userId, const QString& name, double spendLimit);

/// Deletes the user of this number and all its entries.
void DeleteUserWithEntries(std::int64_t userId);
