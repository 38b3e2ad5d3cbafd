#pragma once

#include "store/draw_records.h"

// Every change of the stored draws. Each function is one transaction, on disk when the function returns; the game's
// list shows the change then. All throw Failure, and nothing has been changed then.

/// Stores a draw as a new row with the next number, whatever other draws its date has.
void StoreNewDraw(const Game& game, const EnteredDraw& draw);

/// Writes balls, machine and set of balls over the first draw of the same date. Where another copy of the program has
/// deleted that draw meanwhile, a new row is stored.
void OverwriteDrawOfDate(const Game& game, const EnteredDraw& draw);

/// Writes balls, machine and set of balls over the draw of this bookmark; its number, date and day stay. Fails where
/// there is none any more.
void ChangeDraw(const Game& game, const Bookmark& mark, const EnteredDraw& draw);

/// Deletes the draws of these bookmarks. One that is gone already is no failure.
void DeleteDraws(const Game& game, const std::vector<Bookmark>& marks);
