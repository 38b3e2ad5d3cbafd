#include "draws/draw_fields.h"

#include "balls/ball_fields.h"
#include "base/texts.h"
#include "controls/label.h"
#include "game/game.h"
#include "look/theme.h"

#include <QComboBox>
#include <QCompleter>
#include <QGridLayout>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

QComboBox* MakeTypedList(const QString& name, const QString& accessibleName)
{
    auto* list = new QComboBox;
    list->setObjectName(name);
    list->setAccessibleName(accessibleName);
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
    list->lineEdit()->setAccessibleName(accessibleName);
    // What is begun in any case is completed as the item is written; what is typed to its end stays as it is typed.
    QObject::connect(list->lineEdit(), &QLineEdit::textEdited, list, [list](const QString& typed) {
        const bool isWhole = list->findText(typed, Qt::MatchFixedString) >= 0;
        list->completer()->setCaseSensitivity(isWhole ? Qt::CaseSensitive : Qt::CaseInsensitive);
    });
    return list;
}

template <typename Items>
void Refill(QComboBox* list, const Items& items, const QString& text)
{
    list->clear();
    for (const QString& item : items)
        list->addItem(item);
    list->setCurrentIndex(-1);
    // A text that is not touched is not taken for the item that differs from it in its case.
    list->completer()->setCaseSensitivity(Qt::CaseSensitive);
    list->setEditText(text);
}

} // namespace

DrawFields::DrawFields(const Game& drawGame, const BallFieldRule& rule, const Names& names)
    : game(drawGame), balls(new BallFields(names.balls, &drawGame))
{
    balls->SetRule(rule);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2 * Spacing::Between);
    layout->addWidget(balls);
    if (game.hasMachine)
        AddLists(names);
    else
        connect(balls, &BallFields::Completed, this, &DrawFields::Completed);
}

void DrawFields::AddLists(const Names& names)
{
    machine = MakeTypedList(names.machine, u"Machine"_s);
    ballSet = MakeTypedList(names.ballSet, u"Set of Balls"_s);
    auto* form = new QGridLayout;
    form->setHorizontalSpacing(Spacing::Page);
    form->setVerticalSpacing(Spacing::Between);
    int row = 0;
    for (QComboBox* list : {machine, ballSet}) {
        const QString captionName = ElementName(names.balls.caption, game.BallCount() + row);
        form->addWidget(MakeLabel(list->accessibleName(), TextRole::Caption, captionName), row, 0);
        form->addWidget(list, row, 1);
        ++row;
    }
    form->setColumnMinimumWidth(1, qMax(220, 28 * machine->fontMetrics().averageCharWidth()));
    form->setColumnStretch(2, 1);
    static_cast<QVBoxLayout*>(layout())->addLayout(form);
    connect(balls, &BallFields::Completed, machine, [this] { machine->setFocus(Qt::TabFocusReason); });
    connect(machine->lineEdit(), &QLineEdit::returnPressed, ballSet, [this] { ballSet->setFocus(Qt::TabFocusReason); });
    connect(ballSet->lineEdit(), &QLineEdit::returnPressed, this, &DrawFields::Completed);
}

void DrawFields::Show(const DrawRow& draw)
{
    balls->Show(draw.balls);
    FillLists(FromUtf8(draw.machine), FromUtf8(draw.ballSet));
}

void DrawFields::Clear()
{
    balls->Clear();
    FillLists({}, {});
}

void DrawFields::FillLists(const QString& machineText, const QString& ballSetText)
{
    if (!game.hasMachine)
        return;
    Refill(machine, MachineNames, machineText);
    Refill(ballSet, BallSetNames, ballSetText);
}

EnteredDraw DrawFields::Read() const
{
    EnteredDraw draw;
    draw.balls = balls->Typed<DrawBalls>();
    if (game.hasMachine) {
        draw.machine = machine->currentText();
        draw.ballSet = ballSet->currentText();
    }
    return draw;
}

void DrawFields::Sort()
{
    balls->Sort(game.mainBalls);
}
