#include "shell/main_window.h"

#include "controls/guard.h"
#include "controls/message_box.h"
#include "controls/page_frame.h"
#include "controls/scrolling_content.h"
#include "look/input_watch.h"
#include "look/shortcut_letters.h"
#include "look/theme.h"
#include "shell/introduction_page.h"
#include "shell/menu_column.h"
#include "shell/menu_table.h"
#include "shell/page_area.h"
#include "utilities/start_and_end.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize UsualSize(1024, 720);
/// Room for the frame that the desktop puts around a window.
constexpr QSize FrameRoom(12, 48);

} // namespace

MainWindow::MainWindow()
    : menu(new MenuColumn),
      area(new PageArea),
      menuScroll(new ScrollingContent(menu)),
      pageScroll(new ScrollingContent(area))
{
    setObjectName(u"frmmain"_s);
    setWindowTitle(ApplicationTitle);
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(0);
    columns->addWidget(menuScroll);
    columns->addWidget(pageScroll, 1);
    menuScroll->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    menuScroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QPalette onColumn;
    onColumn.setColor(QPalette::PlaceholderText, CurrentTheme().menuText);
    menuScroll->verticalScrollBar()->setPalette(onColumn);
    ConnectGuarded(menu, &MenuColumn::LogoClicked, this, [this] { ShowStartPage(); });
    ConnectGuarded(menu, &MenuColumn::GroupClicked, this, [this](int group) { Button_Click(group); });
    ConnectGuarded(menu, &MenuColumn::SuboptionClicked, this, [this](int number) { Suboption_Click(number); });
    ConnectGuarded(menu, &MenuColumn::ExitClicked, this, [this] { Exit_Click(); });
    resize(UsualSize);
    if (const QSize room = screen()->availableSize() - FrameRoom; UsualSize.boundedTo(room) != UsualSize) {
        resize(UsualSize.boundedTo(room));
        setWindowState(Qt::WindowMaximized);
    }
    BuildMenu();
    menu->FocusChosen();
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
    }
    return page;
}

void MainWindow::BuildMenu()
{
    menu->LayOut(MenuGroup);
    // A page that was covered takes its focus back, but not from the menu from which it is chosen.
    QWidget* chosenFrom = menu->isAncestorOf(focusWidget()) ? focusWidget() : nullptr;
    Page(MenuGroup)->ShowInFront();
    if (chosenFrom != nullptr)
        chosenFrom->setFocus();
    ShowPage(MenuGroup);
}

void MainWindow::ShowPage(int selected)
{
    SelectedPage = selected;
    for (int index = 0; index < PageCount; ++index)
        if (PageFrame* page = Frame.at(static_cast<size_t>(index)); page != nullptr && index != SelectedPage)
            page->hide();
    pageScroll->verticalScrollBar()->setValue(0);
    repaint();
    const PageTableRow* row = FindPage(SelectedPage);
    if (row != nullptr && row->hasPreparation)
        Page(SelectedPage)->Prepare();
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
    if (group > 0 && LastInputWasKey())
        menu->FocusChosen();
}

void MainWindow::Suboption_Click(int number)
{
    if (number >= 1)
        menu->Mark(number);
    if (const MenuSuboption* suboption = FindSuboption(MenuGroup, number))
        ShowPage(suboption->page);
    if (LastInputWasKey())
        Page(SelectedPage)->FocusFirstField();
}

void MainWindow::Exit_Click()
{
    if (AskYesNo(u"Are you sure you want to exit?"_s))
        CloseAndCompact();
}

void MainWindow::paintEvent(QPaintEvent* /*event*/)
{
    QPainter(this).fillRect(menuScroll->geometry(), CurrentTheme().menu);
}

bool MainWindow::focusNextPrevChild(bool next)
{
    // What vanishes hands its focus on; the first in the row would be the logo.
    if (focusWidget() == nullptr || (focusWidget()->isVisible() && focusWidget()->isEnabled()))
        return QWidget::focusNextPrevChild(next);
    menu->FocusChosen();
    return true;
}

void MainWindow::closeEvent(QCloseEvent* /*event*/)
{
    CloseAndCompact();
}
