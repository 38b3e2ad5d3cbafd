#pragma once

#include "game/draw_row.h"

#include <QFrame>

class BallRow;
class QLabel;
struct Game;

/// One stored draw, to be read only: its date, its balls and, where the game has them, machine and set of balls.
class DrawView : public QFrame
{
    Q_OBJECT

public:
    /// The object names of the controls. A date or captions without a name are left out.
    struct Names
    {
        QString date;
        QString number;
        QString disc;
        QString caption;
        QString machine;
        QString ballSet;
    };

    /// `machineText` and `ballSetText` stand before machine and set of balls, with the blanks that follow them.
    DrawView(const Game& drawGame, const Names& names, const QString& machineText, const QString& ballSetText);

    void Show(const DrawRow& draw);
    BallRow* Balls() const { return balls; }

private:
    const Game& game;
    QString machinePrefix;
    QString ballSetPrefix;
    BallRow* balls;
    QLabel* date = nullptr;
    QLabel* machine = nullptr;
    QLabel* ballSet = nullptr;
};
