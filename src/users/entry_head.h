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

private:
    QLineEdit* user;
    QLineEdit* type;
};
