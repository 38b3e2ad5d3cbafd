#pragma once

#include "checking/check_report.h"
#include "controls/page_frame.h"

class Card;
class DateField;
class PageSwitch;
class QComboBox;
class QRadioButton;
class ReportView;

/// Page 12, "Check Entries": the entries of one user or of all are compared with the draws of one date.
class CheckPage : public PageFrame
{
    Q_OBJECT

public:
    explicit CheckPage(PageSwitch& pageSwitch);

    /// ShowCheckPage.
    void Prepare() override;

private:
    Card* MakeUserCard();
    Card* MakeTypeCard();
    Card* MakeDateCard();
    void F12datelatest_Click();
    void F12dateselect_Click();
    void F12check_Click();
    void F12clear_Click();
    void ShowClearAndPrint(bool shown);
    std::vector<CheckedUser> UsersToCheck() const;
    std::vector<CheckedGame> GamesToCheck() const;
    CheckedGame FindCheckDrawDate(const Game& game) const;

    PageSwitch& pages;
    QComboBox* F12user;
    QRadioButton* F12typem;
    QRadioButton* F12typet;
    QRadioButton* F12typeb;
    QRadioButton* F12datelatest;
    QRadioButton* F12dateselect;
    DateField* F12cal;
    ReportView* F12text;
    Button* F12clear;
    Button* F12print;
    Button* F12check;
};
