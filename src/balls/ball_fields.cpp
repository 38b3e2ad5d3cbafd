#include "balls/ball_fields.h"

#include "balls/ball_disc.h"
#include "balls/ball_edit.h"
#include "base/numbers.h"
#include "controls/guard.h"
#include "controls/label.h"
#include "controls/message_box.h"
#include "look/theme.h"

#include <QHBoxLayout>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

BallFields::BallFields(const Names& names, const QStringList& captions, QWidget* parent)
    : QWidget(parent), row(new QHBoxLayout(this))
{
    row->setContentsMargins(0, 0, 0, 0);
    // The balls bring room for their shadows and their rings.
    row->setSpacing(0);
    for (int slot = 0; slot < captions.size(); ++slot) {
        const int index = names.indices.at(static_cast<size_t>(slot));
        auto* disc = new BallDisc(this);
        disc->setObjectName(ElementName(names.disc, index));
        auto* field = new BallEdit(disc);
        field->setObjectName(ElementName(names.field, index));
        disc->Carry(field);
        QLabel* caption =
            MakeLabel(captions[slot], TextRole::Caption, ElementName(names.caption, names.firstCaption + slot));
        caption->setAlignment(Qt::AlignCenter);
        fields.push_back(field);
        discs.push_back(disc);
        captionLabels.push_back(caption);
        SetCaption(slot, captions[slot]);
        if (slot + 1 == captions.size()) {
            gap = new BallDivider(this);
            row->addWidget(gap);
        }
        auto* column = new QVBoxLayout;
        column->setSpacing(Spacing::Inside);
        column->addWidget(disc, 0, Qt::AlignHCenter | Qt::AlignTop);
        column->addWidget(caption, 0, Qt::AlignHCenter);
        row->addLayout(column);
        ConnectGuarded(field, &BallEdit::Left, this, [this, slot](bool byMouse) { FieldLeft(slot, byMouse); });
        ConnectGuarded(field, &BallEdit::EnterPressed, this, [this, slot] {
            if (slot + 1 < Count())
                FocusField(slot + 1);
            else
                Q_EMIT Completed();
        });
    }
    row->addStretch(1);
}

QString BallFields::Text(int slot) const
{
    return Field(slot)->text();
}

void BallFields::SetText(int slot, const QString& text)
{
    Field(slot)->setText(text);
}

double BallFields::NumberIn(int slot) const
{
    return NumericValue(Text(slot));
}

DrawBalls BallFields::TypedDraw() const
{
    DrawBalls balls{};
    for (int slot = 0; slot < Count(); ++slot)
        balls.at(static_cast<size_t>(slot)) = NumberIn(slot);
    return balls;
}

EntryNumbers BallFields::TypedEntry() const
{
    EntryNumbers numbers{};
    for (int slot = 0; slot < Count(); ++slot)
        numbers.at(static_cast<size_t>(slot)) = NumberIn(slot);
    return numbers;
}

void BallFields::Sort(int count)
{
    bool exchanged = true;
    while (exchanged) {
        exchanged = false;
        for (int slot = 0; slot + 1 < count; ++slot) {
            if (NumberIn(slot) <= NumberIn(slot + 1))
                continue;
            const QString text = Text(slot);
            SetText(slot, Text(slot + 1));
            SetText(slot + 1, text);
            exchanged = true;
        }
    }
}

void BallFields::Recolour()
{
    for (int slot = 0; slot < Count(); ++slot)
        SetColours(slot, CheckBallField(rule, slot, Text(slot)).colours);
}

void BallFields::Clear()
{
    for (BallEdit* field : fields)
        field->clear();
    Recolour();
}

void BallFields::FocusField(int slot)
{
    Field(slot)->setFocus(Qt::TabFocusReason);
}

void BallFields::SetCaption(int slot, const QString& caption)
{
    Caption(slot)->setText(caption);
    const bool numbered = caption.startsWith("Ball"_L1);
    Field(slot)->setAccessibleName(numbered || caption == "Thunderball"_L1 ? caption : caption + u" ball"_s);
}

void BallFields::SelectTextOnFocus()
{
    for (BallEdit* field : fields)
        field->SelectTextOnFocus();
}

void BallFields::SetLastApart(bool apart)
{
    gap->setVisible(apart);
}

void BallFields::FieldLeft(int slot, bool byMouse)
{
    const BallFieldVerdict verdict = CheckBallField(rule, slot, Text(slot));
    SetColours(slot, verdict.colours);
    if (!verdict.IsRefused())
        return;
    if (byMouse)
        SwallowMousePressInProgress();
    // The message waits until the focus has arrived where it was going: a box opened in between would lose it.
    QTimer::singleShot(0, this, [this, slot, verdict] {
        if (!isVisible())
            return;
        ShowMessage(verdict.message);
        Field(slot)->clear();
        SetColours(slot, verdict.colours);
        FocusField(slot);
    });
}

void BallFields::SetColours(int slot, const BallColours& colours)
{
    Disc(slot)->SetColour(QColor::fromRgb(colours.ball));
    Field(slot)->SetColours(QColor::fromRgb(colours.ball), QColor::fromRgb(colours.number));
}
