#pragma once

#include "controls/page_frame.h"

#include <QLabel>

#include <cstdint>

class QLineEdit;
class QListWidget;
class QListWidgetItem;

/// Page 11, "User Details": users are listed, added, given a new name or limit, and deleted with their entries.
class UserDetailsPage : public PageFrame
{
    Q_OBJECT

public:
    UserDetailsPage();

    /// ShowUserDetailsPage.
    void Prepare() override;

private:
    enum class Mode
    {
        View,
        Add,
        Edit
    };

    void BuildCards();
    void ConnectHandlers();
    void FillList();
    void SetMode(Mode newMode);
    /// The selected line of the list; the line that merely has the focus stands for nobody.
    const QListWidgetItem* SelectedLine() const;
    void F11list_Click();
    /// Fills the list anew, for its selected line names a user who is gone. Throws the Failure that tells it.
    void DropVanishedUser();
    void F11adduser_Click();
    void F11edituser_Click();
    void F11storenu_Click();
    void F11storech_Click();
    void F11deleteuser_Click();
    void F11spend_KeyPress();
    bool NameIsTaken(const QString& name, std::int64_t exceptUser) const;

    std::int64_t selectedUserNumber = 0;
    int entryCount = 0;
    QString editedUserName;
    Mode mode = Mode::View;

    QLabel* F11label1;
    QListWidget* F11list;
    QLabel* F11label2;
    QLineEdit* F11seluser;
    QLineEdit* F11spend;
    QLabel* F11label4;
    QLineEdit* F11entrycount;
    Button* F11adduser;
    Button* F11edituser;
    Button* F11deleteuser;
    Button* F11storenu;
    Button* F11storech;
};
