#include "builder/number_window.h"

#include "builder/number_board.h"
#include "builder/random_source.h"
#include "controls/card.h"
#include "controls/guard.h"
#include "controls/keeping_room.h"
#include "controls/label.h"
#include "look/button.h"
#include "look/theme.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

NumberWindow::NumberWindow(BuilderState& builderState, QWidget* parent)
    : SmallWindow(u"frmnumsel"_s, u"Tavenor 3 --- Number Selection"_s, parent),
      state(builderState),
      board(new NumberBoard),
      countLabel(MakeLabel({}, TextRole::Body, u"Label_1"_s)),
      store(new Button(u"Store"_s, u"store"_s))
{
    QVBoxLayout* layout = Content();
    layout->setSpacing(Spacing::Between);
    auto* card = new Card;
    card->Content()->addWidget(board, 0, Qt::AlignCenter);
    auto* fillRow = new QHBoxLayout;
    auto* endRow = new QHBoxLayout;
    fillRow->setSpacing(Spacing::Between);
    AddButton(fillRow, u"Select All"_s, u"Selall"_s, &NumberWindow::Selall_Click);
    AddButton(fillRow, u"Clear All"_s, u"clear"_s, &NumberWindow::clear_Click);
    AddButton(fillRow, u"Random Selection"_s, u"random"_s, &NumberWindow::random_Click);
    fillRow->addStretch(1);
    endRow->setSpacing(Spacing::Between);
    endRow->addStretch(1);
    AddButton(endRow, u"Go Back Without Storing"_s, u"nostore"_s, &NumberWindow::nostore_Click);
    endRow->addWidget(store);
    KeepingRoom(store);
    store->setDefault(true);
    board->setFocus();

    layout->addWidget(MakeLabel(u"Select %1 numbers."_s.arg(state.NumbersRequired), TextRole::Heading, u"Label_0"_s));
    layout->addWidget(countLabel);
    layout->addWidget(card);
    layout->addLayout(fillRow);
    layout->addLayout(endRow);
    ConnectGuarded(store, &QPushButton::clicked, this, [this] { store_Click(); });

    for (const int number : state.ChosenNumbers)
        if (number > 0)
            board->Tick(number);
    connect(board, &NumberBoard::Changed, this, &NumberWindow::UpdateSelectionCount);
    UpdateSelectionCount();
}

void NumberWindow::AddButton(QHBoxLayout* row, const QString& caption, const QString& name,
                             void (NumberWindow::*handler)())
{
    auto* button = new Button(caption, name);
    row->addWidget(button);
    ConnectGuarded(button, &QPushButton::clicked, this, [this, handler] { (this->*handler)(); });
}

void NumberWindow::UpdateSelectionCount()
{
    const int count = static_cast<int>(board->TickedNumbers().size());
    store->setVisible(count == state.NumbersRequired);
    countLabel->setText(count == 1 ? u"Your have 1 number selected."_s
                                   : u"Your have %1 numbers selected."_s.arg(count));
}

void NumberWindow::Selall_Click()
{
    board->SetAll(true);
}

void NumberWindow::clear_Click()
{
    board->SetAll(false);
}

void NumberWindow::random_Click()
{
    RandomSource& random = SharedRandomSource();
    random.ReseedFromTimeOfDay();
    board->SetAll(false);
    for (const int number : DrawDifferentNumbers(state.NumbersRequired, random))
        board->Tick(number);
}

void NumberWindow::store_Click()
{
    const std::vector<int> numbers = board->TickedNumbers();
    state.ChosenNumbers.fill(0);
    std::copy(numbers.begin(), numbers.end(), state.ChosenNumbers.begin() + 1);
    state.NumbersChosen = true;
    accept();
}

void NumberWindow::nostore_Click()
{
    state.NumbersChosen = false;
    reject();
}
