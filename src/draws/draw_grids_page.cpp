#include "draws/draw_grids_page.h"

#include "controls/card.h"
#include "controls/guard.h"
#include "controls/label.h"
#include "controls/message_box.h"
#include "controls/page_switch.h"
#include "draws/draw_grid_model.h"
#include "game/game.h"
#include "look/button.h"
#include "look/theme.h"
#include "store/draw_changes.h"
#include "store/open_databases.h"

#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// What differs between the two sections.
struct SectionTexts
{
    int index;
    QString title;
    QString grid;
    QString noDraws;
    /// The game in the buttons' names and in the questions.
    QString inNames;
    QString inQuestions;
    int detailPage;
    int editPage;
};

const SectionTexts MainTexts{
    0, u"Main Draw"_s, u"F10Grid1"_s, u"There are no main draws stored."_s, u"main"_s, u"main"_s, 14, 16};
const SectionTexts ThunderballTexts{1,
                                    u"Thunderball Draw"_s,
                                    u"F10Grid2"_s,
                                    u"There are no Thunderball draws stored."_s,
                                    u"thunder"_s,
                                    u"thunderball"_s,
                                    15,
                                    17};

const SectionTexts& TextsOf(const Game& game)
{
    return game.IsMain() ? MainTexts : ThunderballTexts;
}

} // namespace

DrawGridSection::DrawGridSection(const Game& drawGame, PageSwitch& pageSwitch, QWidget* parent)
    : QWidget(parent),
      game(drawGame),
      pages(pageSwitch),
      model(new DrawGridModel(game, this)),
      card(new Card),
      grid(new GridView(TextsOf(game).grid, TextsOf(game).title)),
      noDraws(MakeLabel(TextsOf(game).noDraws, TextRole::Body, ElementName(u"Label"_s, TextsOf(game).index)))
{
    grid->setModel(model);
    grid->SetColumnShares(DrawGridModel::ColumnShares(game));
    noDraws->setAlignment(Qt::AlignCenter);
    card->Content()->setContentsMargins(Spacing::Between, Spacing::Inside, Spacing::Between, Spacing::Between);
    card->Content()->addWidget(grid);
    card->Content()->addWidget(noDraws);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Spacing::Inside);
    layout->addWidget(
        MakeLabel(TextsOf(game).title, TextRole::Heading, ElementName(u"labeltitle"_s, TextsOf(game).index)));
    layout->addWidget(card, 1);
    BuildButtons();
    ConnectGuarded(grid, &GridView::Opened, this, [this] { View_Click(); });
    ConnectGuarded(grid, &GridView::DeletePressed, this, [this] { Delete_Click(); });
}

void DrawGridSection::BuildButtons()
{
    const auto name = [this](const QString& action) { return u"F10%1%2button"_s.arg(TextsOf(game).inNames, action); };
    view = new Button(u"View in Detail"_s, name(u"view"_s));
    edit = new Button(u"Edit"_s, name(u"edit"_s));
    remove = new Button(u"Delete"_s, name(u"delete"_s));
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, Spacing::Inside, 0, 0);
    row->setSpacing(Spacing::Between);
    row->addStretch(1);
    for (Button* button : {view, edit, remove}) {
        button->setAccessibleDescription(TextsOf(game).title);
        row->addWidget(button);
    }
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
    ConnectGuarded(view, &QPushButton::clicked, this, [this] { View_Click(); });
    ConnectGuarded(edit, &QPushButton::clicked, this, [this] { Edit_Click(); });
    ConnectGuarded(remove, &QPushButton::clicked, this, [this] { Delete_Click(); });
}

void DrawGridSection::Fill()
{
    model->Fill(DrawListOf(game));
    const bool empty = model->rowCount() == 0;
    // What vanishes or can no longer be pressed would hand the keys to the menu.
    if (empty && isAncestorOf(window()->focusWidget()))
        Q_EMIT Emptied();
    grid->setHidden(empty);
    noDraws->setVisible(empty);
    for (Button* button : {view, edit, remove})
        button->setEnabled(!empty);
    grid->SelectRow(0);
}

bool DrawGridSection::MoveToSelectedDraw() const
{
    const GridView::RowSpan rows = grid->SelectedRows();
    if (rows.Count() > 1)
        ShowMessage(u"Select only ONE draw."_s);
    if (rows.Count() != 1)
        return false;
    MoveToDraw(DrawListOf(game), model->Rows()[rows.first].Mark(), "The draw could not be shown");
    return true;
}

void DrawGridSection::TakeFocus()
{
    (grid->isHidden() ? parentWidget() : static_cast<QWidget*>(grid))->setFocus();
}

void DrawGridSection::View_Click()
{
    if (MoveToSelectedDraw())
        pages.Page(TextsOf(game).detailPage)->Prepare();
}

void DrawGridSection::Edit_Click()
{
    if (MoveToSelectedDraw())
        pages.Page(TextsOf(game).editPage)->Prepare();
}

void DrawGridSection::Delete_Click()
{
    const GridView::RowSpan rows = grid->SelectedRows();
    if (rows.Count() == 0)
        return;
    const QString question = rows.Count() == 1 ? u"delete this %1 draw?"_s : u"delete these %1 draws?"_s;
    if (!AskYesNo(u"Are you sure you want to"_s + Crlf + question.arg(TextsOf(game).inQuestions))) {
        ShowMessage(u"Data delete has been aborted."_s);
        return;
    }
    DeleteDraws(game, model->Rows().Marks(rows.first, rows.last));
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
    ConnectGuarded(mainSection, &DrawGridSection::Emptied, this, [this] { thunderballSection->TakeFocus(); });
    ConnectGuarded(thunderballSection, &DrawGridSection::Emptied, this, [this] { mainSection->TakeFocus(); });
}

void DrawGridsPage::Prepare()
{
    mainSection->Fill();
    thunderballSection->Fill();
    show();
}
