#pragma once

#include "balls/ball_line.h"
#include "store/draw_records.h"

class BallFields;
class QComboBox;
struct BallFieldRule;

/// What can be typed of a draw: its balls and, where the game has them, its machine and set of balls, two lists into
/// which any text may be typed. Enter leads through them.
class DrawFields : public QWidget
{
    Q_OBJECT

public:
    /// The captions of the two lists follow those of the balls in their array.
    struct Names
    {
        BallLine::Names balls;
        QString machine;
        QString ballSet;
    };

    DrawFields(const Game& drawGame, const BallFieldRule& rule, const Names& names);

    BallFields* Balls() const { return balls; }
    void Show(const DrawRow& draw);
    /// Empties all fields; the lists keep their items.
    void Clear();
    /// What is typed, without a date. The balls may be no draw of the game.
    EnteredDraw Read() const;
    /// Puts the main balls into ascending order.
    void Sort();

Q_SIGNALS:
    /// Enter was pressed in the last field.
    void Completed();

private:
    void AddLists(const Names& names);
    void FillLists(const QString& machineText, const QString& ballSetText);

    const Game& game;
    BallFields* balls;
    QComboBox* machine = nullptr;
    QComboBox* ballSet = nullptr;
};
