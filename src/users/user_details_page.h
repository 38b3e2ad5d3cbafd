#pragma once

#include "controls/page_frame.h"
#include "store/user_records.h"

#include <QLabel>

class Card;
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

    /// The arrow keys choose the first user while none is chosen.
    bool eventFilter(QObject* watched, QEvent* event) override;
    Card* MakeListCard();
    Card* MakeUserCard();
    void ConnectHandlers();
    void F11list_Click();
    /// Fills the list anew where its selected line names a user who is gone. Throws the Failure that says so.
    void DropVanishedUser();
    void F11edituser_Click();
    void F11spend_KeyPress();
    void F11storenu_Click();
    void F11storech_Click();
    void F11deleteuser_Click();
    void SetMode(Mode newMode);
    /// The selected line of the list; the line that merely has the focus stands for nobody.
    const QListWidgetItem* SelectedLine() const;

    UserRow selectedUser;
    int entryCount = 0;
    /// What stood in the box of the name when the player began to edit.
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
