#include "users/user_choice.h"

#include "controls/message_box.h"
#include "controls/page_switch.h"
#include "store/open_databases.h"

#include <QComboBox>

QComboBox* MakeUserList(const QString& name, const QString& accessibleName)
{
    auto* list = new QComboBox;
    list->setObjectName(name);
    list->setAccessibleName(accessibleName);
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    return list;
}

std::vector<UserRow> FillUserList(QComboBox* list, PageSwitch& pages, const QString& whyNot)
{
    constexpr int usersGroup = 3;
    constexpr int userDetails = 1;
    list->clear();
    std::vector<UserRow> all = ReadAllUsers(users);
    for (const UserRow& user : all)
        list->addItem(user.name);
    if (all.empty()) {
        pages.ChooseMenu(usersGroup, userDetails);
        ShowMessage(whyNot);
    }
    return all;
}
