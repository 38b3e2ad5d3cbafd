#include "balls/ball_fields.h"

#include "balls/ball_disc.h"
#include "balls/ball_edit.h"
#include "base/numbers.h"
#include "controls/guard.h"
#include "controls/label.h"
#include "controls/message_box.h"
#include "game/game.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// While it lives, no press of the mouse and no key does anything.
class InputPause : public QObject
{
public:
    InputPause() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        return event->type() == QEvent::MouseButtonPress || event->type() == QEvent::KeyPress ||
               event->type() == QEvent::Shortcut;
    }
};

} // namespace

BallFields::BallFields(const Names& names, const Game* drawGame) : BallLine(names, drawGame)
{
    for (int slot = 0; slot < Count(); ++slot) {
        auto* field = new BallEdit(Disc(slot));
        field->setObjectName(ElementName(names.number, ElementOf(slot, drawGame)));
        Disc(slot)->Carry(field);
        fields.append(field);
        givenTexts.append(QString());
        SetCaption(slot, Caption(slot)->text());
        ConnectGuarded(field, &BallEdit::EnterPressed, this,
                       [this, slot] { slot + 1 < Count() ? FocusField(slot + 1) : Completed(); });
        ConnectGuarded(field, &BallEdit::Left, this, [this, slot] { FieldLeft(slot); });
    }
}

QString BallFields::Text(int slot) const
{
    return Field(slot)->text();
}

double BallFields::NumberIn(int slot) const
{
    return NumericValue(Text(slot));
}

void BallFields::SetText(int slot, const QString& text)
{
    givenTexts[slot] = text;
    Field(slot)->setText(text);
}

void BallFields::SetTexts(const QStringList& texts)
{
    for (int slot = 0; slot < texts.size(); ++slot)
        SetText(slot, texts[slot]);
    for (int slot = 0; slot < Count(); ++slot)
        SetColours(slot, Check(slot).colours);
}

void BallFields::Show(std::span<const double> numbers)
{
    QStringList texts;
    for (const double number : numbers.first(static_cast<size_t>(Count())))
        texts.append(PlainNumber(number));
    SetTexts(texts);
}

void BallFields::Sort(int count)
{
    QStringList texts;
    for (int slot = 0; slot < count; ++slot)
        texts.append(Text(slot));
    std::stable_sort(texts.begin(), texts.end(), [](const QString& left, const QString& right) {
        return NumericValue(left) < NumericValue(right);
    });
    SetTexts(texts);
}

void BallFields::Clear()
{
    SetTexts(QStringList(Count()));
}

void BallFields::FocusField(int slot)
{
    Field(slot)->setFocus(Qt::TabFocusReason);
}

void BallFields::SetCaption(int slot, const QString& caption)
{
    Caption(slot)->setText(caption);
    Field(slot)->setAccessibleName(caption == MainGame.extraBallName ? u"Bonus ball"_s : caption);
}

BallFieldVerdict BallFields::Check(int slot) const
{
    if (!Text(slot).isEmpty() && Text(slot) == givenTexts[slot])
        return {ColoursOfBall(*rule.game, slot, NumberIn(slot)), {}};
    return CheckBallField(rule, slot, Text(slot));
}

void BallFields::FieldLeft(int slot)
{
    const BallFieldVerdict verdict = Check(slot);
    if (!verdict.IsRefused()) {
        SetColours(slot, verdict.colours);
        return;
    }
    // The message waits until the focus has arrived where it was going: a box opened in between would lose it. Until
    // then nothing is pressed, neither by the click that left the field nor by keys that were typed ahead.
    QTimer::singleShot(0, this, [this, slot, verdict, pause = std::make_shared<InputPause>()]() mutable {
        pause.reset();
        if (isVisible())
            TellRefusal(slot, verdict);
    });
}

void BallFields::TellRefusal(int slot, const BallFieldVerdict& verdict)
{
    if (rule.greying == Greying::BeforeMessage)
        SetColours(slot, verdict.colours);
    ShowMessage(verdict.message);
    SetText(slot, {});
    SetColours(slot, verdict.colours);
    FocusField(slot);
}

bool BallFields::AreAccepted()
{
    for (int slot = 0; slot < Count(); ++slot) {
        const BallFieldVerdict verdict = Check(slot);
        if (!verdict.IsRefused())
            continue;
        TellRefusal(slot, verdict);
        return false;
    }
    return true;
}

void BallFields::SetColours(int slot, const BallColours& colours)
{
    Disc(slot)->SetColour(QColor::fromRgb(colours.ball));
    Field(slot)->SetColours(QColor::fromRgb(colours.ball), QColor::fromRgb(colours.number));
}
