#pragma once

#include "balls/ball_fields.h"

#include <QComboBox>

class QGridLayout;
struct Game;

/// The object names of the ball fields of a draw page: index 0 is the extra ball, indices from 1 the main balls.
BallFields::Names DrawFieldNames(const Game& game, const QString& field, const QString& disc, const QString& caption);

/// The captions of a draw's balls in slot order.
QStringList DrawBallCaptions(const Game& game);

/// An editable list that keeps every typed text as it is.
QComboBox* MakeEditableList(const QString& name, const QString& accessibleName);

/// The two lists with their captions, elements 7 and 8 of the caption array.
QGridLayout* MakeMachineForm(QComboBox* machine, QComboBox* ballSet, const QString& captionArray);

/// Empties the list and its text, and fills it with the given items.
template <typename Names>
void RefillList(QComboBox* list, const Names& items)
{
    list->clear();
    for (const QString& item : items)
        list->addItem(item);
    list->setCurrentIndex(-1);
    list->clearEditText();
}
