#include "draws/draw_controls.h"

#include "draws/game.h"

#include <QComboBox>

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
