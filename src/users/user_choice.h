#pragma once

#include "store/user_records.h"

class PageSwitch;
class QComboBox;

/// An empty list of users with a caption for screen readers. It is not as wide as its longest name, which may be of any
/// length.
QComboBox* MakeUserList(const QString& name, const QString& accessibleName);

/// Fills the list with the names of all users, the first one chosen, and returns them. Where there are none, goes to
/// the page on which users are added, and says why. Throws Failure.
std::vector<UserRow> FillUserList(QComboBox* list, PageSwitch& pages, const QString& whyNot);
