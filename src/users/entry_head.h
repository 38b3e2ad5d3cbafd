#pragma once

#include "controls/card.h"

#include <QLabel>

class QLineEdit;
struct Game;

/// Whose entry a page shows, and of which game: two text boxes that cannot be typed in.
class EntryHead : public Card
{
    Q_OBJECT

public:
    /// `prefix` stands before the names of all controls.
    explicit EntryHead(const QString& prefix, QWidget* parent = nullptr);

    void Show(const QString& userName, const Game& game);
    /// The game that is shown.
    const Game& ShownGame() const;

private:
    QLineEdit* user;
    QLineEdit* type;
};

/// The captions of an entry's six balls, for assistive tools.
QStringList EntryBallCaptions();

/// Leaves a row of balls without captions but for the last one, which says "Thunderball" and is shown for an entry of
/// that game only.
template <typename Balls>
void KeepThunderballCaptionOnly(Balls* balls, const QString& name)
{
    using namespace Qt::StringLiterals;
    for (int slot = 0; slot < 6; ++slot)
        balls->Caption(slot)->hide();
    balls->Caption(5)->setObjectName(name);
    balls->Caption(5)->setText(u"Thunderball"_s);
}
