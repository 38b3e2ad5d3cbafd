#include "draws/machine_fields.h"

#include "controls/label.h"
#include "game/game.h"
#include "look/theme.h"

#include <QComboBox>
#include <QGridLayout>

using namespace Qt::StringLiterals;

BallFields::Names DrawFieldNames(const Game& game, const QString& field, const QString& disc, const QString& caption)
{
    BallFields::Names names{field, disc, caption, {}};
    for (int slot = 0; slot < game.BallCount(); ++slot)
        names.indices.push_back(game.IsExtra(slot) ? 0 : slot + 1);
    return names;
}

QStringList DrawBallCaptions(const Game& game)
{
    QStringList captions;
    for (int slot = 0; slot < game.BallCount(); ++slot)
        captions.append(game.BallCaption(slot));
    return captions;
}

QComboBox* MakeEditableList(const QString& name, const QString& accessibleName)
{
    auto* list = new QComboBox;
    list->setObjectName(name);
    list->setAccessibleName(accessibleName);
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
    list->setCompleter(nullptr);
    return list;
}

QGridLayout* MakeMachineForm(QComboBox* machine, QComboBox* ballSet, const QString& captionArray)
{
    auto* form = new QGridLayout;
    form->setHorizontalSpacing(Spacing::Page);
    form->setVerticalSpacing(Spacing::Between);
    form->addWidget(MakeLabel(u"Machine"_s, TextRole::Caption, ElementName(captionArray, 7)), 0, 0);
    form->addWidget(machine, 0, 1);
    form->addWidget(MakeLabel(u"Set of Balls"_s, TextRole::Caption, ElementName(captionArray, 8)), 1, 0);
    form->addWidget(ballSet, 1, 1);
    form->setColumnMinimumWidth(1, 28 * machine->fontMetrics().averageCharWidth());
    form->setColumnStretch(2, 1);
    return form;
}
