#pragma once

#include "game/entry_row.h"
#include "game/game.h"

#include <QDate>
#include <QString>

#include <optional>
#include <span>
#include <vector>

/// The draw that one section of the report checks against.
struct CheckedDraw
{
    /// Invalid where the file holds something that is no date; no entry is played on its day then.
    QDate date;
    DrawBalls balls{};
    QString shownDate = {};
};

/// The user of one block of the report.
struct CheckedUser
{
    std::int64_t number = 0;
    QString name;
};

/// One section of every block: a game, and the draw that was found for it, if any.
struct CheckedGame
{
    const Game* game;
    std::optional<CheckedDraw> draw;
};

/// A stretch of the report. Its lines end with carriage return and line feed.
struct ReportPart
{
    QString text;
    bool emphasised;
};

/// How an entry fared against a draw.
struct EntryResult
{
    int mainMatches = 0;
    /// Whether the bonus ball is among the entry's numbers, or the thunderballs are the same.
    bool extraMatched = false;
};

EntryResult CompareEntry(const Game& game, const EntryRow& entry, const CheckedDraw& draw);

/// Whether the result wins a prize of the game.
bool IsWin(const Game& game, const EntryResult& result);

/// The report on the given users, in their order, each with its sections in the order of `games`. Entries may come in
/// any mix of users and games; within a section they keep their order.
std::vector<ReportPart> WriteCheckReport(std::span<const CheckedUser> users, std::span<const CheckedGame> games,
                                         std::span<const EntryRow> entries);
