#include "draws/machine_fields.h"

#include "controls/label.h"
#include "game/game.h"
#include "look/theme.h"
#include "store/draw_records.h"

#include <QComboBox>
#include <QCompleter>
#include <QGridLayout>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

QComboBox* MakeList(const QString& name, const QString& accessibleName)
{
    auto* list = new QComboBox;
    list->setObjectName(name);
    list->setAccessibleName(accessibleName);
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
    list->lineEdit()->setAccessibleName(accessibleName);
    // What differs from an item in its letters' case alone is a text of its own.
    list->completer()->setCaseSensitivity(Qt::CaseSensitive);
    return list;
}

template <typename Names>
void Refill(QComboBox* list, const Names& items, const QString& text)
{
    list->clear();
    for (const QString& item : items)
        list->addItem(item);
    list->setCurrentIndex(-1);
    list->setEditText(text);
}

} // namespace

MachineFields::MachineFields(const QString& machineName, const QString& ballSetName, const QString& captionArray,
                             QWidget* parent)
    : QWidget(parent), machine(MakeList(machineName, u"Machine"_s)), ballSet(MakeList(ballSetName, u"Set of Balls"_s))
{
    setFocusProxy(machine);
    auto* form = new QGridLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setHorizontalSpacing(Spacing::Page);
    form->setVerticalSpacing(Spacing::Between);
    form->addWidget(MakeLabel(u"Machine"_s, TextRole::Caption, ElementName(captionArray, 7)), 0, 0);
    form->addWidget(machine, 0, 1);
    form->addWidget(MakeLabel(u"Set of Balls"_s, TextRole::Caption, ElementName(captionArray, 8)), 1, 0);
    form->addWidget(ballSet, 1, 1);
    form->setColumnMinimumWidth(1, 28 * machine->fontMetrics().averageCharWidth());
    form->setColumnStretch(2, 1);
    connect(machine->lineEdit(), &QLineEdit::returnPressed, ballSet, [this] { ballSet->setFocus(Qt::TabFocusReason); });
    connect(ballSet->lineEdit(), &QLineEdit::returnPressed, this, &MachineFields::Completed);
}

void MachineFields::Show(const QString& machineText, const QString& ballSetText)
{
    Refill(machine, MachineNames, machineText);
    Refill(ballSet, BallSetNames, ballSetText);
}

void MachineFields::Read(EnteredDraw& draw) const
{
    draw.machine = machine->currentText();
    draw.ballSet = ballSet->currentText();
}
