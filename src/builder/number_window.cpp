#include "builder/number_window.h"

#include "builder/number_toggle.h"
#include "builder/random_source.h"
#include "controls/card.h"
#include "controls/guard.h"
#include "controls/keeping_room.h"
#include "controls/label.h"
#include "look/button.h"
#include "look/theme.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

NumberWindow::NumberWindow(BuilderState& builderState, QWidget* parent)
    : SmallWindow(u"frmnumsel"_s, u"Tavenor 3 --- Number Selection"_s, parent),
      state(builderState),
      countLabel(MakeLabel({}, TextRole::Body, u"Label_1"_s)),
      store(new Button(u"Store"_s, u"store"_s))
{
    QVBoxLayout* layout = Content();
    layout->setSpacing(Spacing::Between);
    auto* card = new Card;
    card->Content()->addWidget(BuildBoard(), 0, Qt::AlignCenter);
    auto* fillRow = new QHBoxLayout;
    auto* endRow = new QHBoxLayout;
    fillRow->setContentsMargins(0, Spacing::Inside, 0, 0);
    fillRow->setSpacing(Spacing::Between);
    AddButton(fillRow, u"Select All"_s, u"Selall"_s, [this] { TickAll(true); });
    AddButton(fillRow, u"Clear All"_s, u"clear"_s, [this] { TickAll(false); });
    AddButton(fillRow, u"Random Selection"_s, u"random"_s, [this] { random_Click(); });
    fillRow->addStretch(1);
    endRow->setSpacing(Spacing::Between);
    endRow->addStretch(1);
    AddButton(endRow, u"Go Back Without Storing"_s, u"nostore"_s, [this] { reject(); });
    endRow->addWidget(store);
    KeepingRoom(store);
    store->setDefault(true);

    layout->addWidget(MakeLabel(u"Select %1 numbers."_s.arg(state.NumbersRequired), TextRole::Heading, u"Label_0"_s));
    layout->addWidget(countLabel);
    layout->addWidget(card);
    layout->addLayout(fillRow);
    layout->addLayout(endRow);
    ConnectGuarded(store, &QPushButton::clicked, this, [this] { store_Click(); });

    for (const int number : state.ChosenNumbers)
        if (number > 0)
            Tick(number);
    UpdateSelectionCount();
}

QWidget* NumberWindow::BuildBoard()
{
    constexpr int side = 7;
    auto* board = new QWidget;
    board->setAccessibleName(u"Numbers 1 to 49"_s);
    auto* grid = new QGridLayout(board);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(Spacing::Inside / 2);
    // The Tab key stops at the button of a group that had the focus last.
    auto* group = new QButtonGroup(board);
    group->setExclusive(false);
    for (int number = 1; number <= HighestNumber; ++number) {
        auto* toggle = new NumberToggle(number);
        toggles.at(static_cast<size_t>(number) - 1) = toggle;
        grid->addWidget(toggle, (number - 1) / side, (number - 1) % side);
        group->addButton(toggle);
        connect(toggle, &QCheckBox::toggled, this, &NumberWindow::UpdateSelectionCount);
    }
    return board;
}

std::vector<int> NumberWindow::TickedNumbers() const
{
    std::vector<int> numbers;
    for (int number = 1; number <= HighestNumber; ++number)
        if (toggles.at(static_cast<size_t>(number) - 1)->isChecked())
            numbers.push_back(number);
    return numbers;
}

void NumberWindow::TickAll(bool ticked)
{
    for (NumberToggle* toggle : toggles)
        toggle->setChecked(ticked);
}

void NumberWindow::Tick(int number)
{
    toggles.at(static_cast<size_t>(number) - 1)->setChecked(true);
}

void NumberWindow::AddButton(QHBoxLayout* row, const QString& caption, const QString& name,
                             const std::function<void()>& handler)
{
    auto* button = new Button(caption, name);
    row->addWidget(button);
    ConnectGuarded(button, &QPushButton::clicked, this, handler);
}

void NumberWindow::UpdateSelectionCount()
{
    const int count = static_cast<int>(TickedNumbers().size());
    store->setVisible(count == state.NumbersRequired);
    countLabel->setText(count == 1 ? u"Your have 1 number selected."_s
                                   : u"Your have %1 numbers selected."_s.arg(count));
}

void NumberWindow::random_Click()
{
    RandomSource& random = SharedRandomSource();
    random.ReseedFromTimeOfDay();
    TickAll(false);
    for (const int number : DrawDifferentNumbers(state.NumbersRequired, random))
        Tick(number);
}

void NumberWindow::store_Click()
{
    const std::vector<int> numbers = TickedNumbers();
    state.ChosenNumbers.fill(0);
    std::copy(numbers.begin(), numbers.end(), state.ChosenNumbers.begin() + 1);
    state.NumbersChosen = true;
    accept();
}
