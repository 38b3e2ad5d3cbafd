#pragma once

#include "balls/ball_line.h"
#include "game/ball_field_rules.h"

#include <span>

class BallEdit;

/// A row of ball fields: text fields on discs. Enter moves from field to field; a field that is left is checked and
/// coloured, and one that is refused is told, emptied and focused again. What a page puts into a field is not checked
/// as long as the player leaves it as it is.
class BallFields : public BallLine
{
    Q_OBJECT

public:
    /// Without a game the balls are those of an entry.
    explicit BallFields(const Names& names, const Game* drawGame = nullptr);

    /// The rule by which a field is checked, to be set before anything else; it may be changed at any time.
    void SetRule(const BallFieldRule& fieldRule) { rule = fieldRule; }

    QString Text(int slot) const;
    /// The numeric values of all fields, as DrawBalls or EntryNumbers.
    template <typename Numbers>
    Numbers Typed() const
    {
        Numbers numbers{};
        for (int slot = 0; slot < Count(); ++slot)
            numbers.at(static_cast<size_t>(slot)) = NumberIn(slot);
        return numbers;
    }

    /// Checks every field, as if it were left; tells the first one that is refused, and empties and focuses it.
    bool AreAccepted();
    /// Shows stored numbers, in slot order, in their colours.
    void Show(std::span<const double> numbers);
    /// Puts the first `count` fields into ascending order of their values, and colours all of them.
    void Sort(int count);
    /// Empties every field and makes it grey.
    void Clear();

    void FocusField(int slot);
    BallEdit* Field(int slot) const { return fields[slot]; }
    /// Names a slot for the eye and for a screen reader.
    void SetCaption(int slot, const QString& caption);

Q_SIGNALS:
    /// Enter was pressed in the last field.
    void Completed();

private:
    void FieldLeft(int slot);
    BallFieldVerdict Check(int slot) const;
    void TellRefusal(int slot, const BallFieldVerdict& verdict);
    double NumberIn(int slot) const;
    void SetText(int slot, const QString& text);
    /// Puts the texts into the first fields, and colours all.
    void SetTexts(const QStringList& texts);
    void SetColours(int slot, const BallColours& colours);

    BallFieldRule rule = {};
    QList<BallEdit*> fields;
    /// What the page has put into each field.
    QStringList givenTexts;
};
