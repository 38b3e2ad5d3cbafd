#include "shell/main_window.h"

#include "controls/guard.h"
#include "controls/message_box.h"
#include "controls/page_frame.h"
#include "look/shortcut_letters.h"
#include "shell/introduction_page.h"
#include "shell/menu_column.h"
#include "shell/menu_table.h"
#include "shell/page_area.h"
#include "utilities/shut_down.h"

#include <QCloseEvent>
#include <QHBoxLayout>

using namespace Qt::StringLiterals;

MainWindow::MainWindow() : menu(new MenuColumn(this)), area(new PageArea(this))
{
    setObjectName(u"frmmain"_s);
    setWindowTitle(ApplicationTitle);
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(0);
    columns->addWidget(menu);
    columns->addWidget(area, 1);
    ConnectGuarded(menu, &MenuColumn::LogoClicked, this, [this] { ShowStartPage(); });
    ConnectGuarded(menu, &MenuColumn::GroupClicked, this, [this](int group) { Button_Click(group); });
    ConnectGuarded(menu, &MenuColumn::SuboptionClicked, this, [this](int number) { Suboption_Click(number); });
    ConnectGuarded(menu, &MenuColumn::ExitClicked, this, [this] { Exit_Click(); });
    resize(1024, 720);
    Form_Load();
}

void MainWindow::Form_Load()
{
    MenuGroup = 0;
    SelectedPage = 0;
    BuildMenu();
}

PageFrame* MainWindow::Page(int index)
{
    PageFrame*& page = Frame.at(static_cast<size_t>(index));
    if (page != nullptr)
        return page;
    if (index >= 1 && index <= MenuGroups) {
        auto* introduction = new IntroductionPage(index);
        ConnectGuarded(introduction, &IntroductionPage::SuboptionClicked, this,
                       [this](int number) { Suboption_Click(number); });
        ConnectGuarded(introduction, &IntroductionPage::StartScreenClicked, this, [this] { ShowStartPage(); });
        page = introduction;
    } else if (const PageTableRow* row = FindPage(index)) {
        page = row->make(*this);
    }
    if (page != nullptr) {
        area->Add(page);
        page->PutFooterLastInTabOrder();
        GiveShortcutLetters(*page, MenuColumn::ShortcutLetters.toString());
    }
    return page;
}

void MainWindow::BuildMenu()
{
    menu->LayOut(MenuGroup);
    SelectedPage = MenuGroup;
    // A page that was covered takes its focus back, but not from the menu from which it is chosen.
    QWidget* chosenFrom = menu->isAncestorOf(focusWidget()) ? focusWidget() : nullptr;
    Page(SelectedPage)->ShowInFront();
    if (chosenFrom != nullptr)
        chosenFrom->setFocus();
    ShowPage();
}

void MainWindow::ShowPage()
{
    for (int index = 0; index < PageCount; ++index)
        if (PageFrame* page = Frame.at(static_cast<size_t>(index)); page != nullptr && index != SelectedPage)
            page->hide();
    repaint();
    const PageTableRow* row = FindPage(SelectedPage);
    if (row != nullptr && row->hasPreparation)
        Page(SelectedPage)->Prepare();
}

void MainWindow::ShowPage(int index)
{
    SelectedPage = index;
    ShowPage();
}

void MainWindow::ChooseMenu(int group, int suboption)
{
    Button_Click(group);
    Suboption_Click(suboption);
}

void MainWindow::ShowStartPage()
{
    Button_Click(0);
}

void MainWindow::Button_Click(int group)
{
    MenuGroup = group;
    BuildMenu();
}

void MainWindow::Suboption_Click(int number)
{
    if (number >= 1)
        menu->Mark(number);
    if (const MenuSuboption* suboption = FindSuboption(MenuGroup, number))
        ShowPage(suboption->page);
}

void MainWindow::Exit_Click()
{
    if (AskYesNo(u"Are you sure you want to exit?"_s))
        CloseAndCompact();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    CloseAndCompact();
    event->accept();
}
