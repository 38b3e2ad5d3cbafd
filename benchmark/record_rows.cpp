#include "rows.h"

#include "analysis/charts.h"
#include "base/dates.h"
#include "bench_data.h"
#include "checking/check_report.h"
#include "game/game.h"
#include "plain_engine.h"
#include "records/engine.h"
#include "store/draw_records.h"
#include "store/draw_tables.h"
#include "store/entry_changes.h"
#include "store/open_databases.h"
#include "store/user_records.h"

#include <QStringList>

#include <memory>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

std::shared_ptr<PlainFile> OpenPlainly(const std::filesystem::path& file, const std::string& connect)
{
    return std::make_shared<PlainFile>(file, connect.empty() ? std::string() : KeyOf(file, PasswordOf(connect)));
}

CheckedDraw NewestMainDraw()
{
    ukmainlist.MoveFirst();
    const DrawRow draw = ReadDraw(ukmainlist, MainGame);
    return {DateFromIso(draw.date), draw.balls};
}

/// Played entries, matches of main balls, matches of the bonus ball.
using WinCounts = std::vector<std::int64_t>;

WinCounts CompareAll(const CheckedDraw& draw)
{
    const auto day = static_cast<size_t>(DaySetIndex(draw.date));
    WinCounts counting(3);
    for (const EntryRow& entry : ReadAllEntries(entries)) {
        if (entry.drawType != MainGame.drawType || !entry.days.at(day))
            continue;
        const EntryResult result = CompareEntry(MainGame, entry, draw);
        counting[0] += 1;
        counting[1] += result.mainMatches;
        counting[2] += result.extraMatched ? 1 : 0;
    }
    return counting;
}

std::string CountingQuery(const CheckedDraw& draw)
{
    QStringList drawn;
    for (int slot = 0; slot < MainGame.BallCount(); ++slot)
        drawn.append(QString::number(draw.balls.at(static_cast<size_t>(slot))));
    const QString bonus = drawn.takeLast();
    QStringList matches;
    for (int ball = 1; ball <= MainGame.mainBalls; ++ball)
        matches.append(u"(Ball%1 IN (%2))"_s.arg(ball).arg(drawn.join(u',')));
    return u"SELECT count(*), sum(%1), sum(%2 IN (Ball1,Ball2,Ball3,Ball4,Ball5,Ball6)) FROM entries "
           u"WHERE DrawType = 1 AND %3 <> 0"_s
               .arg(matches.join(u'+'), bonus, DayNames.at(static_cast<size_t>(DaySetIndex(draw.date))))
               .toStdString();
}

Row ComparisonRow(const std::filesystem::path& work)
{
    const auto engine = OpenPlainly(work / "userdata.tv3", {});
    const CheckedDraw draw = NewestMainDraw();
    if (CompareAll(draw) != engine->FirstRow(CountingQuery(draw)))
        throw std::runtime_error("The comparison and the engine's query count differently");
    return {u"comparison of all entries, without the text"_s,
            {0.2, 0.2},
            [draw] { return Milliseconds([&] { CompareAll(draw); }); },
            [engine, query = CountingQuery(draw)] { return Milliseconds([&] { engine->FirstRow(query); }); }};
}

Row RequeryRow(const std::filesystem::path& work)
{
    const auto engine = OpenPlainly(work / "drawdata.tv3", DrawConnect);
    return {u"requery of the Main list after a change"_s,
            {0.6, 0.2},
            [] {
                ukmain.MoveFirst();
                Transaction transaction(DrawDb, "The draw could not be stored");
                ukmain.Edit();
                ukmain.SetField(DrawField::FirstBall, ukmain.Number(DrawField::FirstBall));
                ukmain.Update();
                transaction.Commit();
                return Milliseconds([] { ukmainlist.Requery(); });
            },
            [engine] {
                engine->Run("UPDATE ukmain SET Ball1 = Ball1 WHERE rowid = 1");
                return Milliseconds([&] { engine->ReadAll("SELECT * FROM ukmainlist"); });
            }};
}

void DeleteLast(RecordSet& table, int count)
{
    std::vector<Bookmark> marks;
    table.MoveLast();
    for (int row = 0; row < count; ++row, table.MovePrevious())
        marks.push_back(table.Mark());
    Transaction transaction(UserDb, "The entries could not be deleted");
    DeleteRecords(table, marks);
    transaction.Commit();
    table.MoveFirst();
}

Row StoringRow(const std::filesystem::path& work)
{
    const auto engine = OpenPlainly(work / "userdata.tv3", {});
    // As surely on the disk as the program stores them.
    engine->Run("PRAGMA synchronous = EXTRA");
    const std::vector<EntryRow> lines = MakeLines(BuiltLines);
    return {u"storing %1 built lines"_s.arg(BuiltLines),
            {1.3, 1.2},
            [lines] {
                users.MoveFirst();
                const QString user = ReadUser(users).name;
                const double time = Milliseconds([&] { StoreEntriesOfUser(user, lines, {true}, RaiseLimit::Yes); });
                DeleteLast(entries, BuiltLines);
                return time;
            },
            [engine, lines] {
                const double time = Milliseconds([&] { engine->Insert(lines); });
                engine->Run("DELETE FROM entries WHERE rowid > (SELECT max(rowid) FROM entries) - " +
                            std::to_string(BuiltLines));
                return time;
            }};
}

} // namespace

std::vector<Row> RecordRows(const std::filesystem::path& work)
{
    return {ComparisonRow(work), RequeryRow(work), StoringRow(work)};
}
