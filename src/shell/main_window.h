#pragma once

#include "controls/page_switch.h"
#include "shell/page_table.h"

#include <QWidget>

#include <array>

class MenuColumn;
class PageArea;
class ScrollingContent;

/// The main window, frmmain: the menu column and the page area, in which one page is shown at a time.
class MainWindow final : public QWidget, public PageSwitch
{
    Q_OBJECT

public:
    MainWindow();

    void ChooseMenu(int group, int suboption) override;
    void ShowPage(int selected) override;
    PageFrame* Page(int index) override;
    void ShowStartPage() override;

protected:
    bool focusNextPrevChild(bool next) override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void BuildMenu();
    void Button_Click(int group);
    void Suboption_Click(int number);
    void Exit_Click();

    MenuColumn* menu;
    PageArea* area;
    ScrollingContent* menuScroll;
    ScrollingContent* pageScroll;
    std::array<PageFrame*, PageCount> Frame{};
    int MenuGroup = 0;
    int SelectedPage = 0;
};
