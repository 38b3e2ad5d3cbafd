#include "builder/entry_generator_page.h"

#include "base/numbers.h"
#include "builder/draw_day_window.h"
#include "builder/number_window.h"
#include "builder/random_source.h"
#include "builder/step_card.h"
#include "controls/card.h"
#include "controls/grid_view.h"
#include "controls/guard.h"
#include "controls/message_box.h"
#include "controls/page_switch.h"
#include "controls/text_box.h"
#include "game/game.h"
#include "look/button.h"
#include "look/input_watch.h"
#include "look/theme.h"
#include "store/entry_changes.h"
#include "store/open_databases.h"
#include "users/choices.h"

#include <QComboBox>
#include <QPushButton>
#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

std::vector<EntryRow> AsEntries(const std::vector<Line>& lines)
{
    std::vector<EntryRow> entryRows(lines.size());
    for (size_t i = 0; i < lines.size(); ++i)
        std::copy(lines[i].begin(), lines[i].end(), entryRows[i].numbers.begin());
    return entryRows;
}

} // namespace

EntryGeneratorPage::EntryGeneratorPage(PageSwitch& pageSwitch)
    : PageFrame(26, u"Main Draw Entry Generator"_s),
      pages(pageSwitch),
      card(new StepCard),
      F26combo(card->F26combo),
      gridCard(KeepingRoom(new Card)),
      F26grid(new GridView(u"F26grid"_s, u"Built entries"_s))
{
    F26grid->setModel(&lines);
    F26grid->SetColumnShares(lines.ColumnShares());
    gridCard->Content()->setContentsMargins(Spacing::Between, Spacing::Between, Spacing::Between, Spacing::Between);
    gridCard->Content()->addWidget(F26grid);
    auto* cards = new CardRow;
    cards->addWidget(card, 5, Qt::AlignTop);
    cards->addWidget(gridCard, 6);
    Body()->addLayout(cards, 1);
    F26store = KeepingRoom(AddFooterDefault(u"Store Entries"_s, u"F26store"_s));
    ConnectHandlers();
}

void EntryGeneratorPage::ConnectHandlers()
{
    ConnectGuarded(F26combo[0], &QComboBox::activated, this, [this] { UserChosen(); });
    ConnectGuarded(F26combo[1], &QComboBox::activated, this, [this] { TypeChosen(); });
    ConnectGuarded(F26combo[2], &QComboBox::activated, this, [this] { OptionChosen(); });
    ConnectGuarded(card->F26text, &TextBox::EnterPressed, this, [this] { CountGiven(); });
    ConnectGuarded(card->F26text, &TextBox::Left, this, [this] { CountGiven(); });
    ConnectGuarded(card->F26info, &QPushButton::clicked, this, [this] { F26info_Click(); });
    ConnectGuarded(card->F26choose, &QPushButton::clicked, this, [this] { F26choose_Click(); });
    ConnectGuarded(card->F26go, &QPushButton::clicked, this, [this] { F26go_Click(); });
    ConnectGuarded(F26store, &QPushButton::clicked, this, [this] { StoreBuiltEntries(); });
}

void EntryGeneratorPage::ShowBuilt(std::vector<EntryRow> rows)
{
    built = std::move(rows);
    lines.Show(static_cast<int>(built.size()),
               [this](int row, int column) { return EntryCell(built.at(static_cast<size_t>(row)), row, column); });
}

void EntryGeneratorPage::Prepare()
{
    steps.Begin();
    ShowBuilt({});
    if (FillUserList(F26combo[0], pages, u"You cannot store entries until you have created a user profile."_s).empty())
        return;
    F26combo[0]->setCurrentIndex(-1);
    F26combo[1]->clear();
    for (const BuildType& type : BuildTypes)
        F26combo[1]->addItem(type.name);
    F26combo[1]->setCurrentIndex(-1);
    show();
    F26combo[0]->setFocus(Qt::TabFocusReason);
    ShowControls();
}

void EntryGeneratorPage::ShowControls()
{
    const ShownControls shown = steps.Shown();
    card->Show(shown);
    F26grid->setVisible(shown.grid);
    gridCard->setVisible(shown.grid);
    F26store->setVisible(shown.store);
}

void EntryGeneratorPage::UserChosen()
{
    const bool another = steps.ChooseUser(F26combo[0]->currentIndex());
    if (another)
        F26combo[1]->setCurrentIndex(-1);
    ShowControls();
    if (another)
        F26combo[1]->setFocus(Qt::TabFocusReason);
}

void EntryGeneratorPage::TypeChosen()
{
    steps.ChooseType(static_cast<BuildMethod>(F26combo[1]->currentIndex()));
    const BuildType& type = TypeOf(*steps.Method());
    card->Describe(type);
    ShowControls();
    // In the order of OptionInput.
    const std::array<QWidget*, 3> next{card->F26text, F26combo[2], card->F26go};
    next.at(static_cast<size_t>(type.input))->setFocus(Qt::TabFocusReason);
}

void EntryGeneratorPage::OptionChosen()
{
    steps.ChooseOption();
    ShowControls();
}

void EntryGeneratorPage::CountGiven()
{
    const bool possible = IsPossibleEntryCount(NumericValue(card->F26text->text()));
    steps.GiveCount(possible);
    const bool isLeft = !card->F26text->hasFocus();
    if (!possible && !card->F26text->text().isEmpty()) {
        card->F26text->clear();
        // After it there is no field to which the Tab key could go.
        if (isLeft && LastInputWasKey())
            QTimer::singleShot(0, card->F26text, [this] { card->F26text->setFocus(Qt::TabFocusReason); });
    }
    ShowControls();
    if (possible)
        card->F26go->setFocus(Qt::TabFocusReason);
}

void EntryGeneratorPage::F26info_Click()
{
    const BuildType& type = TypeOf(*steps.Method());
    ShowInformation(type.name, type.description.join(Crlf));
}

void EntryGeneratorPage::F26choose_Click()
{
    steps.BeginNumbers();
    state.NumbersChosen = false;
    state.NumbersRequired = ChosenOptionNumbers();
    ShowControls();
    NumberWindow(state, this).exec();
    steps.EndNumbers(state.NumbersChosen);
    ShowControls();
    if (state.NumbersChosen)
        card->F26go->setFocus(Qt::TabFocusReason);
}

int EntryGeneratorPage::ChosenOptionNumbers() const
{
    return TypeOf(*steps.Method()).options.at(static_cast<size_t>(F26combo[2]->currentIndex())).numbersRequired;
}

void EntryGeneratorPage::F26go_Click()
{
    // The press may have taken the focus from a count that was refused.
    if (!steps.MayBuild())
        return;
    ShowBuilt(AsEntries(Build()));
    steps.LinesBuilt();
    ShowControls();
    // A selected row is what shows that the grid has the keys.
    F26grid->SelectRow(0);
    F26info_Click();
    steps.OfferStore();
    ShowControls();
}

std::vector<Line> EntryGeneratorPage::Build()
{
    RandomSource& random = SharedRandomSource();
    const std::span<const int> chosen = std::span(state.ChosenNumbers).subspan(1);
    switch (*steps.Method()) {
    case BuildMethod::Random:
        random.ReseedFromTimeOfDay();
        return BuildRandomEntries(static_cast<int>(NumericValue(card->F26text->text())), random);
    case BuildMethod::KeyNumbers:
        return BuildKeyNumberEntries(chosen.first(static_cast<size_t>(ChosenOptionNumbers())), random);
    case BuildMethod::WheeledPairs:
        return BuildWheeledPairEntries(chosen.first(static_cast<size_t>(ChosenOptionNumbers())));
    case BuildMethod::FullSelection:
        return BuildFullSelectionEntries(random);
    }
    return {};
}

void EntryGeneratorPage::StoreBuiltEntries()
{
    const QString userName = F26combo[0]->currentText();
    RaiseLimit raise = RaiseLimit::No;
    if (ExceedsSpendLimit(userName, lines.rowCount())) {
        if (!AskYesNo(u"This users spend limit is to low to allow you to store these entries."_s + Crlf +
                      u"Do you want to raise the spend limit."_s)) {
            ShowMessage(u"These entries have NOT been stored."_s);
            return;
        }
        raise = RaiseLimit::Yes;
    }
    DrawDayWindow(state.BuilderDays, this).exec();
    StoreEntriesOfUser(userName, built, state.BuilderDays, raise);
    ShowMessage(u"The entries have been stored."_s);
    Prepare();
}
