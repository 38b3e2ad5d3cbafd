#pragma once

#include <QWidget>

class LogoButton;
class MenuButton;
class SuboptionLabel;
class QFrame;

/// The menu column at the left of the main window (Leftframe): the logo, the five group buttons, the sub-options of the
/// open group with the marker beside the chosen one, and the exit button.
class MenuColumn : public QWidget
{
    Q_OBJECT

public:
    explicit MenuColumn(QWidget* parent = nullptr);

    /// Places the buttons for the open group (0 for none) and shows its sub-options; nothing is marked.
    void LayOut(int openGroup);

    /// Moves the marker beside a sub-option (1 to 4).
    void Mark(int suboption);

    /// Gives the focus to the marked sub-option, or to the first one of the open group, or to the first group.
    void FocusChosen();

    /// The letters that, with Alt, open the groups in their order and press the exit button.
    static constexpr QStringView ShortcutLetters = u"ARYGLX";

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void LogoClicked();
    void GroupClicked(int group);
    void SuboptionClicked(int suboption);
    void ExitClicked();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void PlaceChildren();
    void OrderTabs();

    int open = 0;
    int marked = 0;
    LogoButton* logo;
    QList<MenuButton*> buttons;
    QList<SuboptionLabel*> suboptions;
    QWidget* optionMark;
    QFrame* line;
    MenuButton* exit;
};
