#include "store/draw_records.h"

#include "base/dates.h"
#include "base/failure.h"
#include "game/game.h"
#include "records/record_set.h"
#include "store/draw_tables.h"

namespace {

void SetDrawnBalls(RecordSet& table, const Game& game, const EnteredDraw& draw)
{
    for (int slot = 0; slot < game.BallCount(); ++slot)
        table.SetField(DrawField::FirstBall + slot, draw.balls.at(static_cast<size_t>(slot)));
    if (game.hasMachine) {
        table.SetField(DrawField::Machine, draw.machine.toStdString());
        table.SetField(DrawField::BallSet, draw.ballSet.toStdString());
    }
}

} // namespace

DrawRow ReadDraw(const RecordRow& row, const Game& game)
{
    DrawRow draw;
    draw.date = row.Text(DrawField::Date);
    draw.day = row.Text(DrawField::Day);
    for (int slot = 0; slot < game.BallCount(); ++slot)
        draw.balls[static_cast<size_t>(slot)] = row.Number(DrawField::FirstBall + slot);
    if (game.hasMachine) {
        draw.machine = row.Text(DrawField::Machine);
        draw.ballSet = row.Text(DrawField::BallSet);
    }
    return draw;
}

bool FindDrawByDate(RecordSet& table, QDate date)
{
    for (table.MoveFirst(); !table.Eof(); table.MoveNext())
        if (DateFromIso(table.Text(DrawField::Date)) == date)
            return true;
    return false;
}

bool IsOnDate(RecordSet& list, QDate date)
{
    return !list.Bof() && !list.Eof() && DateFromIso(list.Text(DrawField::Date)) == date;
}

bool FindLastDrawOfDate(RecordSet& list, QDate date)
{
    for (list.MoveLast(); !list.Bof(); list.MovePrevious())
        if (DateFromIso(list.Text(DrawField::Date)) == date)
            return true;
    return false;
}

void MoveToDraw(RecordSet& set, const Bookmark& mark, const std::string& doing)
{
    if (!set.MoveTo(mark))
        throw Failure(doing, "another copy of the program has deleted it meanwhile", "the row is gone");
}

void AddDraw(RecordSet& table, const Game& game, const EnteredDraw& draw)
{
    table.AddNew();
    table.SetField(DrawField::DrawId, static_cast<double>(table.NextNumber()));
    table.SetField(DrawField::Day, ShortDayName(draw.date).toStdString());
    table.SetField(DrawField::Date, IsoDate(draw.date));
    SetDrawnBalls(table, game, draw);
    table.Update();
}

void OverwriteDraw(RecordSet& table, const Game& game, const EnteredDraw& draw)
{
    table.Edit();
    SetDrawnBalls(table, game, draw);
    table.Update();
}
