#pragma once

#include "balls/ball_line.h"
#include "game/ball_field_rules.h"
#include "game/draw_row.h"
#include "game/entry_row.h"

#include <span>

class BallEdit;

/// A row of ball fields: text fields on discs. Enter moves from field to field; a field that is left is checked and
/// coloured, and one that is refused is told, emptied and focused again. What a page puts into a field is not checked
/// as long as the player leaves it as it is.
class BallFields : public BallLine
{
    Q_OBJECT

public:
    BallFields(const Names& names, const QStringList& captionTexts, QWidget* parent = nullptr);

    /// The rule by which a field is checked. It may be changed at any time.
    void SetRule(const BallFieldRule& fieldRule) { rule = fieldRule; }

    QString Text(int slot) const;
    /// The numeric values of all fields, as the balls of a draw or the numbers of an entry.
    DrawBalls TypedDraw() const;
    EntryNumbers TypedEntry() const;

    /// Checks every field, as if it were left; tells the first one that is refused, and empties and focuses it.
    bool AreAccepted();
    /// Shows stored numbers, in slot order, in their colours.
    void Show(std::span<const double> numbers);
    /// Puts the first `count` fields into ascending order of their values, and colours all of them.
    void Sort(int count);
    /// Empties every field and makes it grey.
    void Clear();

    void FocusField(int slot);
    BallEdit* Field(int slot) const { return fields.at(static_cast<size_t>(slot)); }
    /// Names a slot for the eye and for a screen reader.
    void SetCaption(int slot, const QString& caption);
    /// Selects the whole text of a field that gets the focus, so that typing replaces it.
    void SelectTextOnFocus();

Q_SIGNALS:
    /// Enter was pressed in the last field.
    void Completed();

private:
    void EnterPressed(int slot);
    void FieldLeft(int slot);
    BallFieldVerdict Check(int slot) const;
    void TellRefusal(int slot, const BallFieldVerdict& verdict);
    double NumberIn(int slot) const;
    void SetText(int slot, const QString& text);
    void Recolour();
    void SetColours(int slot, const BallColours& colours);

    BallFieldRule rule = {};
    std::vector<BallEdit*> fields;
    /// What the page has put into each field.
    std::vector<QString> givenTexts;
};
