#include "analysis/ball_data.h"

#include "base/dates.h"
#include "base/numbers.h"
#include "base/texts.h"
#include "store/draw_tables.h"
#include "store/open_databases.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

bool HoldsBall(const RecordSet& list, SlotRange slots, int ball)
{
    for (int slot = slots.first; slot < slots.end; ++slot)
        if (list.Number(DrawField::FirstBall + slot) == ball)
            return true;
    return false;
}

QString NameOf(const Game& game, BallType role)
{
    if (role == BallType::MainBalls)
        return u"a main ball"_s;
    return game.IsMain() ? u"the bonus ball"_s : u"the thunderball"_s;
}

} // namespace

BallSentences DescribeBall(const Game& game, BallType role, int ball)
{
    const QString name = NameOf(game, role);
    BallSentences told{u"This ball has never been drawn as %1."_s.arg(name), {}};
    int count = 0;
    int drawsAgo = 0;
    RecordSet& list = DrawListOf(game);
    for (list.MoveFirst(); !list.Eof(); list.MoveNext(), ++drawsAgo) {
        if (!HoldsBall(list, SlotsOf(game, role), ball))
            continue;
        if (++count == 1)
            told.lastDrawn = u"This ball was last drawn as "_s + name + SpacedNumber(drawsAgo) + u" draws ago, on "_s +
                             ShownText(list.Text(DrawField::Day)) + u' ' +
                             StoredDateInWords(list.Text(DrawField::Date)) + u'.';
    }
    if (count > 0)
        told.count = u"This ball has been drawn"_s + SpacedNumber(count) + u" times as "_s + name + u'.';
    return told;
}

std::optional<int> TypedBall(const Game& game, const QString& text)
{
    const double number = std::trunc(NumericValue(text));
    if (!IsWholeBetween(number, 1, game.highestMain))
        return std::nullopt;
    return static_cast<int>(number);
}
