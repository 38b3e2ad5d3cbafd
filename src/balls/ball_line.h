#pragma once

#include <QLabel>
#include <QList>
#include <QWidget>

class BallDisc;
struct Game;

/// Balls side by side in slot order, with captions under them: what a row to be read and a row to be typed in share.
class BallLine : public QWidget
{
    Q_OBJECT

public:
    /// The object names of the control arrays. Captions without a name are hidden.
    struct Names
    {
        QString number;
        QString disc;
        QString caption = {};
    };

    int Count() const { return static_cast<int>(discs.size()); }
    BallDisc* Disc(int slot) const { return discs[slot]; }
    QLabel* Caption(int slot) const { return captions[slot]; }
    QLabel* LastCaption() const { return captions.last(); }
    /// The divider before the last ball, where the extra ball stands apart.
    void SetLastApart(bool apart) { divider->setVisible(apart); }

protected:
    /// The balls of a draw of the game, or of an entry where there is none: then they have the captions of a Main
    /// entry.
    BallLine(const Names& names, const Game* drawGame);

    /// The index of a slot in the control arrays of the balls: 0 for the extra ball of a draw; all others count from 1.
    static int ElementOf(int slot, const Game* drawGame);

private:
    QList<BallDisc*> discs;
    QList<QLabel*> captions;
    QWidget* divider;
};
