#include "store/open_databases.h"

#include "base/failure.h"
#include "game/game.h"
#include "records/held_file.h"
#include "records/key_store.h"
#include "store/draw_tables.h"
#include "store/user_tables.h"

#include <QStringList>

using namespace Qt::StringLiterals;

const QString Crlf = u"\r\n"_s;

std::filesystem::path ProgramDir;
std::filesystem::path DrawDataPath;
std::filesystem::path UserDataPath;
const std::string DrawConnect = ";pwd=kTrWbNxLqZeHsM";

Database DrawDb;
Database UserDb;
RecordSet ukmain;
RecordSet ukthunder;
RecordSet ukmainlist;
RecordSet ukthunderlist;
RecordSet links;
RecordSet users;
RecordSet entries;

namespace {

QString CloseAndCompactFile(Database& database, const std::filesystem::path& live, const std::string& connect)
{
    database.Close();
    try {
        HeldFile file(live, connect, "The file " + live.filename().string() + " could not be compacted");
        if (file.Alone())
            file.Compact();
    } catch (const Failure& failure) {
        return QString::fromStdString(failure.Doing() + ": " + failure.Reason() + ".");
    } catch (const std::exception& failure) {
        return QString::fromLocal8Bit(failure.what());
    }
    return {};
}

} // namespace

RecordSet& DrawsOf(const Game& game)
{
    return game.IsMain() ? ukmain : ukthunder;
}

RecordSet& DrawListOf(const Game& game)
{
    return game.IsMain() ? ukmainlist : ukthunderlist;
}

void SetProgramDir(const std::filesystem::path& folder)
{
    ProgramDir = folder;
    UserDataPath = ProgramDir / "userdata.tv3";
    DrawDataPath = ProgramDir / "drawdata.tv3";
}

void OpenDatabaseFiles()
{
    OpenDatabaseFilesWith(DrawDataPath, DrawDataPath);
}

void OpenDatabaseFilesWith(const std::filesystem::path& other, const std::filesystem::path& replacedLive)
{
    DrawDb.Open(replacedLive == DrawDataPath ? other : DrawDataPath, DrawConnect);
    ukmain.Open(DrawDb, DrawTable(MainGame));
    ukthunder.Open(DrawDb, DrawTable(ThunderballGame));
    ukmainlist.Open(DrawDb, DrawList(MainGame));
    ukthunderlist.Open(DrawDb, DrawList(ThunderballGame));
    links.Open(DrawDb, LinksTable());
    UserDb.Open(replacedLive == UserDataPath ? other : UserDataPath);
    users.Open(UserDb, UsersTable());
    entries.Open(UserDb, EntriesTable());
}

void CloseDatabaseFiles()
{
    DrawDb.Close();
    UserDb.Close();
}

void ReadEveryRow()
{
    for (RecordSet* set : {&ukmain, &ukthunder, &ukmainlist, &ukthunderlist, &links, &users, &entries})
        set->Requery();
}

QString CloseAndCompactFiles()
{
    QStringList failures{CloseAndCompactFile(DrawDb, DrawDataPath, DrawConnect),
                         CloseAndCompactFile(UserDb, UserDataPath, {})};
    failures.removeAll(QString());
    WipeDerivedKeys();
    return failures.join(Crlf);
}
