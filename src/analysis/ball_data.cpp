#include "analysis/ball_data.h"

#include "base/dates.h"
#include "base/numbers.h"
#include "base/texts.h"
#include "game/game.h"
#include "records/record_set.h"
#include "store/draw_tables.h"

#include <cmath>

using namespace Qt::StringLiterals;

BallRole MainBallRole(const Game& game)
{
    return {SlotsOf(game, BallType::MainBalls), u"a main ball"_s};
}

BallRole ExtraBallRole(const Game& game)
{
    return {SlotsOf(game, BallType::ExtraBall), game.IsMain() ? u"the bonus ball"_s : u"the thunderball"_s};
}

BallAppearances FindBall(RecordSet& list, const BallRole& role, int ball)
{
    const auto holdsBall = [&] {
        for (int slot = role.slots.first; slot < role.slots.end; ++slot)
            if (list.Number(DrawField::FirstBall + slot) == ball)
                return true;
        return false;
    };
    BallAppearances found;
    int drawsAgo = 0;
    for (list.MoveFirst(); !list.Eof(); list.MoveNext(), ++drawsAgo) {
        if (!holdsBall())
            continue;
        if (found.count == 0) {
            found.drawsAgo = drawsAgo;
            found.day = ShownText(list.Text(DrawField::Day));
            found.date = StoredDateInWords(list.Text(DrawField::Date));
        }
        ++found.count;
    }
    return found;
}

std::optional<int> TypedBall(const Game& game, const QString& text)
{
    const double number = std::trunc(NumericValue(text));
    if (!IsWholeBetween(number, 1, game.highestMain))
        return std::nullopt;
    return static_cast<int>(number);
}

QString TwoDigits(int ball)
{
    return u"%1"_s.arg(ball, 2, 10, QChar(u'0'));
}

QString LastDrawnSentence(const BallRole& role, const BallAppearances& found)
{
    if (found.count == 0)
        return u"This ball has never been drawn as %1."_s.arg(role.name);
    return u"This ball was last drawn as "_s + role.name + SpacedNumber(found.drawsAgo) + u" draws ago, on "_s +
           found.day + u' ' + found.date + u'.';
}

QString CountSentence(const BallRole& role, const BallAppearances& found)
{
    if (found.count == 0)
        return {};
    return u"This ball has been drawn"_s + SpacedNumber(found.count) + u" times as "_s + role.name + u'.';
}
