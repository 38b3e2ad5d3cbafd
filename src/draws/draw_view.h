#pragma once

#include "game/draw_row.h"

#include <QWidget>

class BallRow;
class QLabel;
struct Game;

/// One stored draw, to be read only: its date, its balls and, where the game has them, machine and set of balls.
class DrawView : public QWidget
{
    Q_OBJECT

public:
    /// The object names of the controls; a part without a name is left out.
    struct Names
    {
        QString date;
        QString number;
        QString disc;
        QString caption;
        QString machine;
        QString ballSet;
    };
    /// What stands before machine and set of balls, with the blanks that follow it.
    struct Prefixes
    {
        QString machine;
        QString ballSet;
    };

    DrawView(const Game& drawGame, const Names& names, const Prefixes& textPrefixes, QWidget* parent = nullptr);

    void Show(const DrawRow& draw);
    BallRow* Balls() const { return balls; }

private:
    const Game& game;
    Prefixes prefixes;
    QLabel* date = nullptr;
    BallRow* balls;
    QLabel* machine = nullptr;
    QLabel* ballSet = nullptr;
};
