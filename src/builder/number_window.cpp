#include "builder/number_window.h"

#include "builder/number_board.h"
#include "platform/card.h"
#include "platform/guard.h"
#include "platform/page_frame.h"
#include "platform/random_source.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>

NumberWindow::NumberWindow(BuilderState& builderState, QWidget* parent)
    : QDialog(parent),
      state(builderState),
      board(new NumberBoard),
      countLabel(MakeLabel({}, TextRole::Body, QStringLiteral("Label_1"))),
      store(new Button(QStringLiteral("Store"), QStringLiteral("store")))
{
    setObjectName(QStringLiteral("frmnumsel"));
    setWindowTitle(QStringLiteral("Tavenor 3 --- Number Selection"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Spacing::Page, Spacing::Page, Spacing::Page, Spacing::Page);
    layout->setSpacing(Spacing::Between);
    auto* card = new Card;
    card->Content()->addWidget(board, 0, Qt::AlignCenter);
    auto* fillRow = new QHBoxLayout;
    auto* endRow = new QHBoxLayout;
    const auto addButton = [this](QHBoxLayout* row, const char* caption, const char* name, auto handler) {
        auto* button = new Button(QLatin1String(caption), QLatin1String(name));
        row->addWidget(button);
        ConnectGuarded(button, &QPushButton::clicked, this, handler);
    };
    fillRow->setSpacing(Spacing::Between);
    addButton(fillRow, "Select All", "Selall", [this] { board->SetAll(true); });
    addButton(fillRow, "Clear All", "clear", [this] { board->SetAll(false); });
    addButton(fillRow, "Random Selection", "random", [this] { random_Click(); });
    fillRow->addStretch(1);
    endRow->setSpacing(Spacing::Between);
    endRow->addStretch(1);
    addButton(endRow, "Go Back Without Storing", "nostore", [this] { nostore_Click(); });
    endRow->addWidget(store);
    // The button keeps its room while it is hidden, so that the window does not jump.
    QSizePolicy keepsRoom = store->sizePolicy();
    keepsRoom.setRetainSizeWhenHidden(true);
    store->setSizePolicy(keepsRoom);
    store->setDefault(true);
    board->setFocus();

    layout->addWidget(MakeLabel(QStringLiteral("Select %1 numbers.").arg(state.NumbersRequired), TextRole::Heading,
                                QStringLiteral("Label_0")));
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
    countLabel->setText(count == 1 ? QStringLiteral("Your have 1 number selected.")
                                   : QStringLiteral("Your have %1 numbers selected.").arg(count));
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
