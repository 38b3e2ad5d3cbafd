#include "checking/check_report.h"

#include "base/dates.h"

#include <algorithm>
#include <charconv>
#include <unordered_map>

using namespace Qt::StringLiterals;

namespace {

const QString LineBreak = u"\r\n"_s;

/// The words in which the report of a game differs from the other's.
struct GameWords
{
    QString game;
    QString extraMatched;
    QString noDraw;
    QString noEntries;
    QString indent;
};

const GameWords MainWords{u"Main"_s, u" + bonus. "_s, u"  No main draw on this date."_s,
                          u"    No main entries on this date."_s, u" "_s};
const GameWords ThunderballWords{u"Thunderball"_s, u" + thunderball. "_s, u"  No thunderball draw on this date."_s,
                                 u"    No thunderball entries on this date."_s, u"   "_s};

const GameWords& WordsOf(const Game& game)
{
    return game.IsMain() ? MainWords : ThunderballWords;
}

/// The entries that a section checks, by user, as indexes in their stored order.
using EntriesByUser = std::unordered_map<std::int64_t, std::vector<std::size_t>>;

EntriesByUser PlayedEntries(const CheckedGame& checked, std::span<const EntryRow> entries)
{
    EntriesByUser played;
    if (!checked.draw || !checked.draw->date.isValid())
        return played;
    const auto day = static_cast<std::size_t>(DaySetIndex(checked.draw->date));
    for (std::size_t i = 0; i < entries.size(); ++i)
        if (entries[i].drawType == checked.game->drawType && entries[i].days.at(day))
            played[entries[i].userId].push_back(i);
    return played;
}

/// Appends a count as composed messages write it, with one leading space. A report has a hundred thousand of them, so
/// none makes a text of its own.
void AppendSpaced(QString& text, int count)
{
    std::array<char, 12> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), count).ptr;
    text += u' ';
    text += QLatin1String(digits.data(), end - digits.data());
}

void AppendResult(QString& text, const Game& game, const EntryResult& result)
{
    const GameWords& words = WordsOf(game);
    text += words.indent;
    AppendSpaced(text, result.mainMatches);
    text += u" main ball"_s;
    if (result.mainMatches != 1)
        text += u's';
    text += result.extraMatched ? words.extraMatched : u". "_s;
    if (IsWin(game, result))
        text += u"<<WIN>>"_s;
    text += LineBreak;
}

void AppendSection(QString& text, const CheckedGame& checked, const std::vector<std::size_t>* played,
                   std::span<const EntryRow> entries)
{
    const GameWords& words = WordsOf(*checked.game);
    if (!checked.draw) {
        text += words.noDraw + LineBreak;
        return;
    }
    const CheckedDraw& draw = *checked.draw;
    text += u"  Draw type: "_s + words.game + u" ("_s + (draw.date.isValid() ? ShortDate(draw.date) : draw.storedDate) +
            u')' + LineBreak;
    if (played == nullptr) {
        text += words.noEntries + LineBreak;
        return;
    }
    int counter = 1;
    for (const std::size_t index : *played) {
        text += u"   "_s;
        AppendSpaced(text, counter++);
        text += u'>';
        AppendResult(text, *checked.game, CompareEntry(*checked.game, entries[index], draw));
    }
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
    if (result.mainMatches >= 3)
        return true;
    return !game.IsMain() && result.mainMatches >= 1 && result.extraMatched;
}

CheckReport WriteCheckReport(std::span<const CheckedUser> users, std::span<const CheckedGame> games,
                             std::span<const EntryRow> entries)
{
    std::vector<EntriesByUser> played;
    for (const CheckedGame& checked : games)
        played.push_back(PlayedEntries(checked, entries));
    CheckReport report;
    constexpr qsizetype usualLineLength = 32;
    report.text.reserve(static_cast<qsizetype>(entries.size()) * usualLineLength);
    const auto appendEmphasised = [&report](const QString& line) {
        report.emphasised.push_back({report.text.size(), line.size()});
        report.text += line;
    };
    appendEmphasised(u"Tavenor v3.0"_s + LineBreak + LineBreak);
    if (entries.empty()) {
        report.text += u"There are no user entries stored."_s;
        return report;
    }
    for (const CheckedUser& user : users) {
        appendEmphasised(u"User: "_s + user.name + LineBreak);
        for (std::size_t i = 0; i < games.size(); ++i) {
            const auto found = played[i].find(user.number);
            AppendSection(report.text, games[i], found == played[i].end() ? nullptr : &found->second, entries);
        }
        report.text += LineBreak;
    }
    return report;
}
