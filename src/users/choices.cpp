#include "users/choices.h"

#include "controls/label.h"
#include "controls/message_box.h"
#include "controls/page_switch.h"
#include "look/theme.h"
#include "store/open_databases.h"

#include <QComboBox>
#include <QRadioButton>

QComboBox* MakeList(const QString& name, const QString& accessibleName)
{
    auto* list = new QComboBox;
    list->setObjectName(name);
    list->setAccessibleName(accessibleName);
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    return list;
}

QRadioButton* MakeOption(const QString& caption, const QString& name)
{
    auto* option = new QRadioButton(caption);
    option->setObjectName(name);
    option->setAccessibleName(caption);
    return option;
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

CaptionedRow::CaptionedRow()
{
    setHorizontalSpacing(Spacing::Cards);
    setVerticalSpacing(Spacing::Inside);
}

void CaptionedRow::Add(const QString& caption, const QString& captionName, const QList<QWidget*>& controls, int share)
{
    int column = count() == 0 ? 0 : columnCount();
    setColumnStretch(column, share);
    addWidget(MakeLabel(caption, TextRole::Caption, captionName), 0, column, 1, static_cast<int>(controls.size()));
    for (QWidget* control : controls)
        addWidget(control, 1, column++);
}
