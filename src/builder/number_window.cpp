#include "builder/number_window.h"

#include "builder/number_board.h"
#include "builder/random_source.h"
#include "controls/card.h"
#include "controls/guard.h"
#include "controls/label.h"
#include "controls/page_frame.h"
#include "look/button.h"
#include "look/theme.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

NumberWindow::NumberWindow(BuilderState& builderState, QWidget* parent)
    : QDialog(parent),
      state(builderState),
      board(new NumberBoard),
      countLabel(MakeLabel({}, TextRole::Body, u"Label_1"_s)),
      store(new Button(u"Store"_s, u"store"_s))
{
    setObjectName(u"frmnumsel"_s);
    setWindowTitle(u"Tavenor 3 --- Number Selection"_s);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Spacing::Page, Spacing::Page, Spacing::Page, Spacing::Page);
    layout->setSpacing(Spacing::Between);
    auto* card = new Card;
    card->Content()->addWidget(board, 0, Qt::AlignCenter);
    auto* fillRow = new QHBoxLayout;
    auto* endRow = new QHBoxLayout;
    const auto addButton = [this](QHBoxLayout* row, const QString& caption, const QString& name, auto handler) {
        auto* button = new Button(caption, name);
        row->addWidget(button);
        ConnectGuarded(button, &QPushButton::clicked, this, handler);
    };
    fillRow->setSpacing(Spacing::Between);
    addButton(fillRow, u"Select All"_s, u"Selall"_s, [this] { board->SetAll(true); });
    addButton(fillRow, u"Clear All"_s, u"clear"_s, [this] { board->SetAll(false); });
    addButton(fillRow, u"Random Selection"_s, u"random"_s, [this] { random_Click(); });
    fillRow->addStretch(1);
    endRow->setSpacing(Spacing::Between);
    endRow->addStretch(1);
    addButton(endRow, u"Go Back Without Storing"_s, u"nostore"_s, [this] { nostore_Click(); });
    endRow->addWidget(store);
    // The button keeps its room while it is hidden, so that the window does not jump.
    QSizePolicy keepsRoom = store->sizePolicy();
    keepsRoom.setRetainSizeWhenHidden(true);
    store->setSizePolicy(keepsRoom);
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

void NumberWindow::UpdateSelectionCount()
{
    const int count = static_cast<int>(board->TickedNumbers().size());
    store->setVisible(count == state.NumbersRequired);
    countLabel->setText(count == 1 ? u"Your have 1 number selected."_s
                                   : u"Your have %1 numbers selected."_s.arg(count));
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
