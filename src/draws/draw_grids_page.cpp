#include "draws/draw_grids_page.h"

#include "controls/card.h"
#include "controls/grid_view.h"
#include "controls/guard.h"
#include "controls/label.h"
#include "controls/message_box.h"
#include "controls/page_switch.h"
#include "draws/draw_grid.h"
#include "game/game.h"
#include "look/button.h"
#include "look/theme.h"
#include "store/draw_changes.h"
#include "store/open_databases.h"

#include <QHBoxLayout>

using namespace Qt::StringLiterals;

DrawGridSection::DrawGridSection(const Game& drawGame, PageSwitch& pageSwitch)
    : game(drawGame),
      pages(pageSwitch),
      model(new GridModel(DrawColumns(game), this)),
      grid(new GridView(game.IsMain() ? u"F10Grid1"_s : u"F10Grid2"_s, game.name + u" Draw"_s)),
      noDraws(
          MakeLabel(game.IsMain() ? u"There are no main draws stored."_s : u"There are no Thunderball draws stored."_s,
                    TextRole::Body, game.IsMain() ? u"Label_0"_s : u"Label_1"_s))
{
    grid->setModel(model);
    grid->SetColumnShares(model->ColumnShares());
    noDraws->setAlignment(Qt::AlignCenter);
    auto* card = new Card;
    card->Content()->setContentsMargins(Spacing::Between, Spacing::Between, Spacing::Between, Spacing::Between);
    card->Content()->addWidget(grid);
    card->Content()->addWidget(noDraws);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Spacing::Inside);
    layout->addWidget(
        MakeLabel(game.name + u" Draw"_s, TextRole::Heading, game.IsMain() ? u"labeltitle_0"_s : u"labeltitle_1"_s));
    layout->addWidget(card, 1);
    layout->addLayout(MakeButtons());
    ConnectGuarded(grid, &GridView::Opened, this, [this] { view->click(); });
    ConnectGuarded(grid, &GridView::DeletePressed, this, [this] { Delete_Click(); });
}

QLayout* DrawGridSection::MakeButtons()
{
    const QString name = game.IsMain() ? u"F10main%1button"_s : u"F10thunder%1button"_s;
    view = new Button(u"View in Detail"_s, name.arg(u"view"_s));
    edit = new Button(u"Edit"_s, name.arg(u"edit"_s));
    remove = new Button(u"Delete"_s, name.arg(u"delete"_s));
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, Spacing::Between, 0, 0);
    row->setSpacing(Spacing::Between);
    row->addStretch(1);
    for (Button* button : {view, edit, remove}) {
        button->setAccessibleDescription(game.name + u" Draw"_s);
        row->addWidget(button);
    }
    // F10mainviewbutton_Click, F10thunderviewbutton_Click.
    ConnectGuarded(view, &QPushButton::clicked, this, [this] { OpenSelectedDraw(game.IsMain() ? 14 : 15); });
    // F10maineditbutton_Click, F10thundereditbutton_Click.
    ConnectGuarded(edit, &QPushButton::clicked, this, [this] { OpenSelectedDraw(game.IsMain() ? 16 : 17); });
    ConnectGuarded(remove, &QPushButton::clicked, this, [this] { Delete_Click(); });
    return row;
}

void DrawGridSection::Fill()
{
    shown = DrawListOf(game).List();
    model->Show(shown.Count(), [this](int row, int column) { return DrawCell(shown[row], column); });
    const bool empty = model->rowCount() == 0;
    grid->setHidden(empty);
    noDraws->setVisible(empty);
    for (Button* button : {view, edit, remove})
        button->setEnabled(!empty);
    grid->SelectRow(0);
}

void DrawGridSection::OpenSelectedDraw(int page)
{
    const GridView::RowSpan rows = grid->SelectedRows();
    if (rows.Count() > 1)
        ShowMessage(u"Select only ONE draw."_s);
    // An assistive tool can take a selection away.
    if (rows.Count() != 1)
        return;
    MoveToDraw(DrawListOf(game), shown[rows.first].Mark(), "The draw could not be shown");
    pages.Page(page)->Prepare();
}

void DrawGridSection::Delete_Click()
{
    const GridView::RowSpan rows = grid->SelectedRows();
    if (rows.Count() == 0)
        return;
    const QString question = rows.Count() == 1 ? u"delete this %1 draw?"_s : u"delete these %1 draws?"_s;
    if (!AskYesNo(u"Are you sure you want to"_s + Crlf + question.arg(game.InSentence()))) {
        ShowMessage(u"Data delete has been aborted."_s);
        return;
    }
    DeleteDraws(game, shown.Marks(rows.first, rows.last));
    Fill();
    ShowMessage(u"Deleted"_s);
}

DrawGridsPage::DrawGridsPage(PageSwitch& pages)
    : PageFrame(10, QString()),
      mainSection(new DrawGridSection(MainGame, pages)),
      thunderballSection(new DrawGridSection(ThunderballGame, pages))
{
    setAccessibleName(u"View or Edit All Draws"_s);
    Body()->addWidget(mainSection, 1);
    Body()->addWidget(thunderballSection, 1);
}

void DrawGridsPage::Prepare()
{
    mainSection->Fill();
    thunderballSection->Fill();
    show();
}
