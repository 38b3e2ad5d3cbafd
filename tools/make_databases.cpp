// Makes drawdata.tv3 and userdata.tv3 from lists of draws and links:
//
//     tavenor3-databases MAIN.csv THUNDERBALL.csv LINKS.csv FOLDER
//
// Draws go in by date, numbered from 1. A row that cannot be a draw stops it with file, line and reason; files of an
// earlier run in the folder are replaced only when everything is right.

#include "base/dates.h"
#include "base/files.h"
#include "base/numbers.h"
#include "game/game.h"
#include "records/database.h"
#include "records/record_set.h"
#include "store/draw_records.h"
#include "store/draw_tables.h"
#include "store/open_databases.h"
#include "store/user_tables.h"

#include <QFile>
#include <QStringList>
#include <QTextStream>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <vector>

namespace {

struct CsvRow
{
    QString place;
    QStringList fields;
};

[[noreturn]] void Refuse(const QString& place, const QString& reason)
{
    throw std::runtime_error((place + ": " + reason).toStdString());
}

std::vector<CsvRow> ReadCsv(const QString& path, const QString& heading)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        Refuse(path, file.errorString());
    QTextStream stream(&file);
    if (stream.readLine() != heading)
        Refuse(path + ":1", "the heading is not " + heading);
    const auto columns = heading.split(u',').size();
    std::vector<CsvRow> rows;
    for (int line = 2; !stream.atEnd(); ++line) {
        const CsvRow row{path + u':' + QString::number(line), stream.readLine().split(u',')};
        if (row.fields.size() != columns)
            Refuse(row.place, QString("%1 fields instead of %2").arg(row.fields.size()).arg(columns));
        rows.push_back(row);
    }
    return rows;
}

EnteredDraw ReadDrawn(const CsvRow& row, const Game& game)
{
    EnteredDraw draw;
    draw.date = DateFromIso(row.fields[0].toStdString());
    if (!draw.date.isValid())
        Refuse(row.place, row.fields[0] + " is not a date");
    for (int slot = 0; slot < game.BallCount(); ++slot) {
        bool whole = false;
        draw.balls.at(static_cast<size_t>(slot)) = row.fields[slot + 1].toInt(&whole);
        if (!whole)
            Refuse(row.place, row.fields[slot + 1] + " is not a ball");
    }
    if (!IsPossibleDraw(game, draw.balls))
        Refuse(row.place, "a ball is out of range or stands twice");
    if (!std::is_sorted(draw.balls.begin(), draw.balls.begin() + game.mainBalls))
        Refuse(row.place, "the main balls are not in ascending order");
    if (game.hasMachine) {
        draw.machine = row.fields[game.BallCount() + 1];
        draw.ballSet = row.fields[game.BallCount() + 2];
    }
    return draw;
}

QString DrawHeading(const Game& game)
{
    QStringList names{"Date"};
    for (int ball = 1; ball <= game.mainBalls; ++ball)
        names.append(QString("Ball%1").arg(ball));
    names.append(game.extraBallName);
    return names.join(u',') + (game.hasMachine ? ",Machine,BallSet" : "");
}

int StoreDraws(Database& database, const Game& game, const QString& path)
{
    std::vector<EnteredDraw> draws;
    for (const CsvRow& row : ReadCsv(path, DrawHeading(game)))
        draws.push_back(ReadDrawn(row, game));
    std::stable_sort(draws.begin(), draws.end(),
                     [](const EnteredDraw& a, const EnteredDraw& b) { return a.date < b.date; });
    RecordSet table;
    table.Open(database, DrawTable(game));
    Transaction transaction(database, "The draws could not be stored");
    for (const EnteredDraw& draw : draws)
        AddDraw(table, game, draw);
    transaction.Commit();
    return static_cast<int>(draws.size());
}

int StoreLinks(Database& database, const QString& path)
{
    const auto rows = ReadCsv(path, "SiteName,WebAddress,MailAddress,Description1,Description2");
    RecordSet table;
    table.Open(database, LinksTable());
    Transaction transaction(database, "The links could not be stored");
    for (const CsvRow& row : rows) {
        table.AddNew();
        for (int field = 0; field < row.fields.size(); ++field) {
            const std::string text = row.fields[field].toStdString();
            table.SetField(field, std::string_view(text));
        }
        table.Update();
    }
    transaction.Commit();
    return static_cast<int>(rows.size());
}

void MakeDrawDatabase(const std::filesystem::path& file, const QStringList& sources)
{
    CreateDatabase(file, DrawConnect, DrawDatabaseLayouts());
    Database database;
    database.Open(file, DrawConnect);
    const int mainDraws = StoreDraws(database, MainGame, sources[0]);
    const int thunderballDraws = StoreDraws(database, ThunderballGame, sources[1]);
    const int linkCount = StoreLinks(database, sources[2]);
    std::printf("%d Main draws, %d Thunderball draws, %d links\n", mainDraws, thunderballDraws, linkCount);
}

void MakeAll(const QStringList& sources, const std::filesystem::path& folder)
{
    std::filesystem::create_directories(folder);
    const auto work = folder / "unfinished";
    std::filesystem::remove_all(work);
    std::filesystem::create_directories(work);
    MakeDrawDatabase(work / "drawdata.tv3", sources);
    CreateDatabase(work / "userdata.tv3", {}, {UsersTable(), EntriesTable()});
    for (const char* name : {"drawdata.tv3", "userdata.tv3"}) {
        const Descriptor made = OpenToRead(work / name);
        TemporaryFile copy = TemporaryFile::Beside(folder / name, name);
        copy.CopyFrom(made.Number());
        copy.TakeRightsOf(made.Number());
        copy.RenameOver();
    }
    std::filesystem::remove_all(work);
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 5) {
        std::fputs("Usage: tavenor3-databases MAIN.csv THUNDERBALL.csv LINKS.csv FOLDER\n", stderr);
        return 2;
    }
    try {
        MakeAll({QString::fromLocal8Bit(arguments[1]), QString::fromLocal8Bit(arguments[2]),
                 QString::fromLocal8Bit(arguments[3])},
                arguments[4]);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "tavenor3-databases: %s\n", failure.what());
        return 1;
    }
    return 0;
}
