#pragma once

#include "game/ball_field_rules.h"
#include "game/draw_row.h"
#include "game/entry_row.h"

#include <QStringList>
#include <QWidget>

#include <vector>

class BallDisc;
class BallEdit;
class QHBoxLayout;
class QLabel;

/// A row of ball fields: text fields on discs with their captions, in slot order. Enter moves from field to field; a
/// field that is left is checked and coloured, and what it refuses is told, emptied and focused again.
class BallFields : public QWidget
{
    Q_OBJECT

public:
    /// The object names of the control arrays, and the index of each slot in them.
    struct Names
    {
        QString field;
        QString disc;
        QString caption;
        std::vector<int> indices;
        /// The index of the first caption; the others follow it.
        int firstCaption = 0;
    };

    BallFields(const Names& names, const QStringList& captions, QWidget* parent = nullptr);

    /// The rule by which a field is checked. It may be changed at any time.
    void SetRule(const BallFieldRule& fieldRule) { rule = fieldRule; }

    int Count() const { return static_cast<int>(fields.size()); }
    QString Text(int slot) const;
    void SetText(int slot, const QString& text);
    /// The numeric value of what stands in a field.
    double NumberIn(int slot) const;
    /// The numeric values of all fields, as the balls of a draw or the numbers of an entry.
    DrawBalls TypedDraw() const;
    EntryNumbers TypedEntry() const;

    /// Puts the texts of the first `count` fields into ascending order of their values.
    void Sort(int count);
    /// Gives every field the colours of its text.
    void Recolour();
    /// Empties every field and makes it grey.
    void Clear();

    void FocusField(int slot);
    BallEdit* Field(int slot) const { return fields.at(static_cast<size_t>(slot)); }
    BallDisc* Disc(int slot) const { return discs.at(static_cast<size_t>(slot)); }
    QLabel* Caption(int slot) const { return captionLabels.at(static_cast<size_t>(slot)); }
    /// Names a slot for the eye and for a screen reader.
    void SetCaption(int slot, const QString& caption);
    /// Selects the whole text of a field that gets the focus, so that typing replaces it.
    void SelectTextOnFocus();
    /// The gap before the last field, where the extra ball stands apart.
    void SetLastApart(bool apart);

Q_SIGNALS:
    /// Enter was pressed in the last field.
    void Completed();

private:
    void FieldLeft(int slot, bool byMouse);
    void SetColours(int slot, const BallColours& colours);

    BallFieldRule rule = {};
    QHBoxLayout* row;
    std::vector<BallEdit*> fields;
    std::vector<BallDisc*> discs;
    std::vector<QLabel*> captionLabels;
    QWidget* gap = nullptr;
};
