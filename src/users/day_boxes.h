#pragma once

#include "game/entry_row.h"

#include <QWidget>

#include <array>

class QCheckBox;

/// The seven day check boxes, Monday to Sunday, with the buttons that tick and untick them all where these have names.
class DayBoxes : public QWidget
{
    Q_OBJECT

public:
    struct Names
    {
        QString box;
        QString selectAll;
        QString clearAll;
    };

    /// `captionPrefix` stands before every day's name.
    DayBoxes(const Names& names, const QString& captionPrefix, QWidget* parent = nullptr);

    DaySet Days() const;
    void SetDays(const DaySet& days);
    bool AnyTicked() const { return Days() != DaySet{}; }
    void SetAll(bool ticked);

Q_SIGNALS:
    void Changed();

private:
    std::array<QCheckBox*, DaysOfWeek> boxes{};
};
