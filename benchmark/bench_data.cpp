#include "bench_data.h"

#include "game/game.h"
#include "records/database.h"
#include "records/record_set.h"
#include "store/draw_records.h"
#include "store/draw_tables.h"
#include "store/open_databases.h"
#include "store/user_records.h"
#include "store/user_tables.h"

#include <algorithm>
#include <numeric>
#include <random>

using namespace Qt::StringLiterals;

namespace {

/// Numbers that are the same on every machine, which the standard library's distributions are not.
class Chance
{
public:
    explicit Chance(unsigned seed) : engine(seed) {}
    int Below(int bound) { return static_cast<int>(engine() % static_cast<unsigned>(bound)); }

    /// Different numbers from 1 to `highest`; the first `sorted` of them ascending.
    std::vector<int> Balls(int count, int highest, int sorted)
    {
        std::vector<int> balls(static_cast<size_t>(highest));
        std::iota(balls.begin(), balls.end(), 1);
        for (int i = 0; i < count; ++i)
            std::swap(balls.at(static_cast<size_t>(i)),
                      balls.at(static_cast<size_t>(i) + static_cast<size_t>(Below(highest - i))));
        balls.resize(static_cast<size_t>(count));
        std::sort(balls.begin(), balls.begin() + sorted);
        return balls;
    }

private:
    std::mt19937 engine;
};

EnteredDraw MakeDraw(const Game& game, QDate date, Chance& chance)
{
    EnteredDraw draw;
    draw.date = date;
    std::vector<int> balls =
        chance.Balls(game.mainBalls + (game.extraFromSameMachine ? 1 : 0), game.highestMain, game.mainBalls);
    if (!game.extraFromSameMachine)
        balls.push_back(1 + chance.Below(game.highestExtra));
    std::copy(balls.begin(), balls.end(), draw.balls.begin());
    if (game.hasMachine) {
        draw.machine = MachineNames.at(static_cast<size_t>(chance.Below(4)));
        draw.ballSet = BallSetNames.at(static_cast<size_t>(chance.Below(8)));
    }
    return draw;
}

EntryRow MakeEntry(const Game& game, Chance& chance)
{
    EntryRow entry;
    entry.drawType = game.drawType;
    std::vector<int> balls = chance.Balls(game.mainBalls, game.highestMain, game.mainBalls);
    if (!game.extraFromSameMachine)
        balls.push_back(1 + chance.Below(game.highestExtra));
    std::copy(balls.begin(), balls.end(), entry.numbers.begin());
    for (bool& day : entry.days)
        day = chance.Below(4) != 0;
    return entry;
}

void MakeDraws(int count, const std::filesystem::path& file)
{
    CreateDatabase(file, DrawConnect, DrawDatabaseLayouts());
    Database database;
    database.Open(file, DrawConnect);
    Chance chance(3);
    for (const Game* game : {&MainGame, &ThunderballGame}) {
        RecordSet table;
        table.Open(database, DrawTable(*game));
        Transaction transaction(database, "The draws could not be stored");
        for (int day = 0; day < count; ++day)
            AddDraw(table, *game, MakeDraw(*game, QDate(1750, 1, 1).addDays(day), chance));
        transaction.Commit();
    }
}

void MakeUsers(const DataSize& size, int entriesOfFirstUser, const std::filesystem::path& file)
{
    CreateDatabase(file, {}, {UsersTable(), EntriesTable()});
    Database database;
    database.Open(file);
    RecordSet userTable;
    RecordSet entryTable;
    userTable.Open(database, UsersTable());
    entryTable.Open(database, EntriesTable());
    Chance chance(4);
    Transaction transaction(database, "The entries could not be stored");
    for (int user = 1; user <= size.users; ++user)
        AddUser(userTable, u"Player %1"_s.arg(user), 1000000);
    for (int number = 1; number <= size.entries; ++number) {
        const bool ofFirstUser = number <= entriesOfFirstUser;
        EntryRow entry = MakeEntry(ofFirstUser || chance.Below(4) != 0 ? MainGame : ThunderballGame, chance);
        entry.number = number;
        entry.userId = ofFirstUser ? 1 : 1 + number % size.users;
        AddEntry(entryTable, entry);
    }
    transaction.Commit();
}

} // namespace

void MakeData(const DataSize& size, const std::filesystem::path& starter, const std::filesystem::path& folder)
{
    std::filesystem::create_directories(folder);
    const auto draws = folder / "drawdata.tv3";
    if (size.draws == 0)
        std::filesystem::copy_file(starter / "drawdata.tv3", draws);
    else
        MakeDraws(size.draws, draws);
    MakeUsers(size, 0, folder / "userdata.tv3");
    MakeUsers(size, size.entriesOfFirstUser, folder / FirstUserFile);
}

std::vector<EntryRow> MakeLines(int count)
{
    Chance chance(5);
    std::vector<EntryRow> lines(static_cast<size_t>(count));
    for (EntryRow& line : lines)
        line = MakeEntry(MainGame, chance);
    return lines;
}
