#include "checking/check_report.h"

#include "base/dates.h"

#include <QStringBuilder>

#include <algorithm>
#include <unordered_map>

using namespace Qt::StringLiterals;

namespace {

const QString LineBreak = u"\r\n"_s;

bool IsPlayed(const EntryRow& entry, const Game& game, const CheckedDraw& draw)
{
    return entry.drawType == game.drawType && draw.date.isValid() &&
           entry.days.at(static_cast<std::size_t>(DaySetIndex(draw.date)));
}

QString ResultText(const Game& game, const EntryResult& result)
{
    return (game.IsMain() ? u"  "_s : u"    "_s) % QString::number(result.mainMatches) %
           (result.mainMatches == 1 ? u" main ball"_s : u" main balls"_s) %
           (result.extraMatched ? u" + %1. "_s.arg(game.extraBallName.toLower()) : u". "_s) %
           (IsWin(game, result) ? u"<<WIN>>"_s : QString());
}

QString SectionText(const CheckedGame& checked, const std::vector<const EntryRow*>& owned)
{
    const Game& game = *checked.game;
    if (!checked.draw)
        return u"  No %1 draw on this date."_s.arg(game.InSentence()) + LineBreak;
    QString text = u"  Draw type: %1 ("_s.arg(game.name) + checked.draw->shownDate + u')' + LineBreak;
    int counter = 1;
    for (const EntryRow* entry : owned)
        if (IsPlayed(*entry, game, *checked.draw))
            text += u"    "_s % QString::number(counter++) % u'>' %
                    ResultText(game, CompareEntry(game, *entry, *checked.draw)) % LineBreak;
    if (counter == 1)
        text += u"    No %1 entries on this date."_s.arg(game.InSentence()) + LineBreak;
    return text;
}

} // namespace

EntryResult CompareEntry(const Game& game, const EntryRow& entry, const CheckedDraw& draw)
{
    const auto mainBalls = static_cast<std::size_t>(game.mainBalls);
    const double extra = draw.balls.at(mainBalls);
    EntryResult result;
    for (std::size_t i = 0; i < mainBalls; ++i)
        for (std::size_t j = 0; j < mainBalls; ++j)
            result.mainMatches += entry.numbers[i] == draw.balls[j] ? 1 : 0;
    result.extraMatched = game.extraFromSameMachine
                              ? std::find(entry.numbers.begin(), entry.numbers.end(), extra) != entry.numbers.end()
                              : entry.numbers.back() == extra;
    return result;
}

bool IsWin(const Game& game, const EntryResult& result)
{
    return result.mainMatches >= 3 || (!game.IsMain() && result.mainMatches >= 1 && result.extraMatched);
}

std::vector<ReportPart> WriteCheckReport(std::span<const CheckedUser> users, std::span<const CheckedGame> games,
                                         std::span<const EntryRow> entries)
{
    std::vector<ReportPart> report{{u"Tavenor v3.0"_s + LineBreak + LineBreak, true}};
    if (entries.empty()) {
        report.push_back({u"There are no user entries stored."_s, false});
        return report;
    }
    std::unordered_map<std::int64_t, std::vector<const EntryRow*>> entriesOf;
    for (const EntryRow& entry : entries)
        entriesOf[entry.userId].push_back(&entry);
    for (const CheckedUser& user : users) {
        // As much of it as can be typed; a file may hold a name of any length, and to lay that out takes a minute.
        constexpr qsizetype longestTyped = 32767;
        report.push_back({u"User: "_s + user.name.left(longestTyped) + LineBreak, true});
        QString sections;
        for (const CheckedGame& checked : games)
            sections += SectionText(checked, entriesOf[user.number]);
        report.push_back({sections + LineBreak, false});
    }
    return report;
}
