#include "builder/entry_generator_page.h"

#include "builder/built_entries.h"
#include "builder/number_window.h"
#include "platform/card.h"
#include "platform/guard.h"
#include "platform/message_box.h"
#include "platform/numbers.h"
#include "platform/random_source.h"
#include "platform/text_box.h"
#include "shell/open_databases.h"
#include "shell/page_switch.h"
#include "users/draw_day_window.h"
#include "users/user_records.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>

#include <algorithm>

namespace {

/// Controls that come and go keep their room, so that the page stands still.
template <typename Widget>
Widget* KeepingRoom(Widget* widget)
{
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
    return widget;
}

QComboBox* MakeList(int index, const QString& caption)
{
    auto* list = KeepingRoom(new QComboBox);
    list->setObjectName(ElementName(QStringLiteral("F26combo"), index));
    list->setAccessibleName(caption);
    // A long name is cut off in the list; it does not widen the page.
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->setMinimumContentsLength(16);
    return list;
}

TextBox* MakeCountBox()
{
    auto* box = KeepingRoom(new TextBox);
    box->setObjectName(QStringLiteral("F26text"));
    box->setText(QStringLiteral("200"));
    box->setFixedWidth(box->fontMetrics().averageCharWidth() * 16);
    return box;
}

Button* MakeButton(const char* caption, const char* name)
{
    return KeepingRoom(new Button(QLatin1String(caption), QLatin1String(name)));
}

QLabel* MakeStepLabel(const char* caption, TextRole role, int index)
{
    return KeepingRoom(MakeLabel(QLatin1String(caption), role, ElementName(QStringLiteral("Label"), index)));
}

std::vector<EntryRow> AsEntries(const std::vector<Line>& lines)
{
    std::vector<EntryRow> entryRows(lines.size());
    for (size_t i = 0; i < lines.size(); ++i)
        std::copy(lines[i].begin(), lines[i].end(), entryRows[i].numbers.begin());
    return entryRows;
}

} // namespace

EntryGeneratorPage::EntryGeneratorPage(PageSwitch& pageSwitch)
    : PageFrame(26, QStringLiteral("Main Draw Entry Generator")),
      pages(pageSwitch),
      F26combo{MakeList(0, QStringLiteral("Select User")), MakeList(1, QStringLiteral("Select Build Type")),
               MakeList(2, QStringLiteral("Select Options"))},
      F26text(MakeCountBox()),
      F26info(MakeButton("i", "F26info")),
      F26choose(MakeButton("Choose Numbers", "F26choose")),
      F26go(MakeButton("GO !", "F26go")),
      F26grid(new GridView(QStringLiteral("F26grid"), QStringLiteral("Built entries"))),
      gridCard(KeepingRoom(new Card)),
      entriesLabel(MakeStepLabel("1- 200 entries", TextRole::Caption, 8)),
      promptLabel(MakeStepLabel("How many entries? (1 - 200)", TextRole::Caption, 9)),
      noNumbersLabel(MakeStepLabel("No numbers needed", TextRole::Body, 12))
{
    F26info->setAccessibleName(QStringLiteral("About this build type"));
    F26info->setFixedWidth(F26info->sizeHint().height());
    F26go->MakeAccent();
    auto* stepCard = new Card;
    LayOutSteps(stepCard);
    F26grid->setModel(&lines);
    F26grid->SetColumnShares(EntryGridModel::ColumnShares());
    gridCard->Content()->addWidget(F26grid);
    auto* cards = new QHBoxLayout;
    cards->setSpacing(Spacing::Cards);
    cards->addWidget(stepCard, 5, Qt::AlignTop);
    cards->addWidget(gridCard, 6);
    Body()->addLayout(cards, 1);
    F26store = KeepingRoom(AddFooterDefault(QStringLiteral("Store Entries"), QStringLiteral("F26store")));
    ConnectHandlers();
}

void EntryGeneratorPage::LayOutSteps(Card* card)
{
    QVBoxLayout* column = card->Content();
    column->setSpacing(Spacing::Inside);
    const auto addStep = [column](const char* number, const char* title) {
        auto* heading = new QHBoxLayout;
        heading->setSpacing(Spacing::Inside);
        if (column->count() > 0)
            column->addSpacing(Spacing::Between);
        QLabel* step = MakeLabel(QLatin1String(number), TextRole::Caption);
        heading->addWidget(step, 0, Qt::AlignBaseline);
        heading->addWidget(MakeLabel(QLatin1String(title), TextRole::Strong), 1, Qt::AlignBaseline);
        column->addLayout(heading);
    };
    // Of two controls in one place at most one is seen at a time.
    const auto addInOnePlace = [column](QWidget* first, QWidget* second, Qt::Alignment alignmentOfFirst) {
        auto* place = new QGridLayout;
        place->addWidget(first, 0, 0, alignmentOfFirst);
        place->addWidget(second, 0, 0, Qt::AlignLeft | Qt::AlignVCenter);
        column->addLayout(place);
    };
    addStep("Step 1:", "Select User");
    column->addWidget(F26combo[0]);
    addStep("Step 2:", "Select Build Type");
    auto* typeRow = new QHBoxLayout;
    typeRow->setSpacing(Spacing::Inside);
    typeRow->addWidget(F26combo[1], 1);
    typeRow->addWidget(F26info);
    column->addLayout(typeRow);
    column->addWidget(entriesLabel);
    addStep("Step 3:", "Select Options");
    column->addWidget(promptLabel);
    addInOnePlace(F26combo[2], F26text, {});
    addStep("Step 4:", "Select Numbers");
    addInOnePlace(F26choose, noNumbersLabel, Qt::AlignLeft);
    addStep("Step 5:", "Start Build Process");
    column->addWidget(F26go, 0, Qt::AlignLeft);
}

void EntryGeneratorPage::ConnectHandlers()
{
    ConnectGuarded(F26combo[0], &QComboBox::activated, this, [this] { UserChosen(); });
    ConnectGuarded(F26combo[1], &QComboBox::activated, this, [this] { TypeChosen(); });
    ConnectGuarded(F26combo[2], &QComboBox::activated, this, [this] { OptionChosen(); });
    ConnectGuarded(F26text, &TextBox::EnterPressed, this, [this] { CountGiven(); });
    ConnectGuarded(F26text, &TextBox::Left, this, [this] { CountGiven(); });
    ConnectGuarded(F26info, &QPushButton::clicked, this, [this] { F26info_Click(); });
    ConnectGuarded(F26choose, &QPushButton::clicked, this, [this] { F26choose_Click(); });
    ConnectGuarded(F26go, &QPushButton::clicked, this, [this] { F26go_Click(); });
    ConnectGuarded(F26store, &QPushButton::clicked, this, [this] { StoreBuiltEntries(); });
}

void EntryGeneratorPage::Prepare()
{
    steps.Begin();
    lines.SetEntries({});
    F26combo[0]->clear();
    const std::vector<UserRow> allUsers = ReadAllUsers(users);
    if (allUsers.empty()) {
        pages.ChooseMenu(3, 1);
        ShowMessage(QStringLiteral("You cannot store entries until you have created a user profile."));
        return;
    }
    for (const UserRow& user : allUsers)
        F26combo[0]->addItem(user.name);
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
    F26combo[1]->setVisible(shown.buildType);
    F26info->setVisible(shown.info);
    entriesLabel->setVisible(shown.entries);
    promptLabel->setVisible(shown.optionPrompt);
    F26combo[2]->setVisible(shown.option);
    F26text->setVisible(shown.count);
    F26choose->setVisible(shown.choose);
    noNumbersLabel->setVisible(shown.noNumbersNeeded);
    F26go->setVisible(shown.go);
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
    if (F26combo[1]->currentIndex() < 0)
        return;
    steps.ChooseType(static_cast<BuildMethod>(F26combo[1]->currentIndex()));
    const BuildType& type = TypeOf(*steps.Method());
    entriesLabel->setText(type.entries);
    promptLabel->setText(type.optionPrompt);
    F26text->clear();
    F26combo[2]->clear();
    for (const BuildOption& option : type.options)
        F26combo[2]->addItem(option.text);
    F26combo[2]->setCurrentIndex(-1);
    for (QWidget* input : {static_cast<QWidget*>(F26text), static_cast<QWidget*>(F26combo[2])})
        input->setAccessibleName(type.optionPrompt);
    ShowControls();
    switch (type.input) {
    case OptionInput::Count:
        F26text->setFocus(Qt::TabFocusReason);
        break;
    case OptionInput::Option:
        F26combo[2]->setFocus(Qt::TabFocusReason);
        break;
    case OptionInput::Nothing:
        F26go->setFocus(Qt::TabFocusReason);
        break;
    }
}

void EntryGeneratorPage::OptionChosen()
{
    steps.ChooseOption();
    state.NumbersChosen = false;
    ShowControls();
}

void EntryGeneratorPage::CountGiven()
{
    if (!steps.Shown().count)
        return;
    const bool possible = IsPossibleEntryCount(NumericValue(F26text->text()));
    steps.GiveCount(possible);
    if (!possible)
        F26text->clear();
    ShowControls();
    if (possible)
        F26go->setFocus(Qt::TabFocusReason);
}

void EntryGeneratorPage::F26info_Click()
{
    if (!steps.Method())
        return;
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
    lines.SetEntries(AsEntries(Build()));
    F26grid->scrollToTop();
    steps.LinesBuilt();
    ShowControls();
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
        return BuildRandomEntries(static_cast<int>(NumericValue(F26text->text())), random);
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
        if (!AskYesNo(QStringLiteral("This users spend limit is to low to allow you to store these entries.") + Crlf +
                      QStringLiteral("Do you want to raise the spend limit."))) {
            ShowMessage(QStringLiteral("These entries have NOT been stored."));
            return;
        }
        raise = RaiseLimit::Yes;
    }
    DrawDayWindow(state.BuilderDays, this).exec();
    StoreEntriesOfUser(userName, lines.Entries(), state.BuilderDays, raise);
    ShowMessage(QStringLiteral("The entries have been stored."));
    Prepare();
}
