#pragma once

#include "game/draw_row.h"
#include "records/record_row.h"

#include <QDate>
#include <QString>

#include <string>

class RecordSet;
struct Game;

/// A row of a draw table or list.
DrawRow ReadDraw(const RecordRow& row, const Game& game);

/// Moves the table to the first row of the given date; false, and at the end, when there is none.
bool FindDrawByDate(RecordSet& table, QDate date);

/// Whether the list stands on a record of the given date.
bool IsOnDate(RecordSet& list, QDate date);

/// Moves the list to the last of its records of the given date; false, and at the start, when there is none.
bool FindLastDrawOfDate(RecordSet& list, QDate date);

/// Moves the table or list to the draw of the given bookmark. Throws Failure where there is none any more; `doing` is
/// the clause that it carries.
void MoveToDraw(RecordSet& set, const Bookmark& mark, const std::string& doing);

/// What a page knows of a draw that is to be stored.
struct EnteredDraw
{
    QDate date;
    /// Main balls ascending.
    DrawBalls balls{};
    QString machine;
    QString ballSet;
};

/// Adds the draw to the game's table as a new row with the next number. Throws Failure; nothing is stored then.
void AddDraw(RecordSet& table, const Game& game, const EnteredDraw& draw);

/// Writes balls, machine and set of balls over the table's current row; number, date and day stay. Throws Failure.
void OverwriteDraw(RecordSet& table, const Game& game, const EnteredDraw& draw);
