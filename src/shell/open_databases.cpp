#include "shell/open_databases.h"

#include "draws/draw_tables.h"
#include "draws/game.h"
#include "platform/failure.h"
#include "platform/files.h"
#include "records/compaction.h"
#include "records/file_lock.h"
#include "records/key_store.h"
#include "users/user_tables.h"

#include <QStringList>

const QString Crlf = QStringLiteral("\r\n");

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

std::filesystem::path Temporary(const std::filesystem::path& live, const char* ending)
{
    auto path = live;
    return path.replace_extension(ending);
}

void CompactThroughTemporaries(const std::filesystem::path& live, const std::string& connect)
{
    const auto first = Temporary(live, ".tp1");
    const auto second = Temporary(live, ".tp2");
    // What an interrupted run left behind must not stand in the way of this one.
    DeleteFileIfThere(second);
    CopyFileOver(live, first);
    CompactDatabase(first, second, connect);
    DeleteFileIfThere(first);
    CopyFileOver(second, live);
    DeleteFileIfThere(second);
}

void ClearTemporaries(const std::filesystem::path& live)
{
    DeleteFileIfThere(Temporary(live, ".tp1"));
    DeleteFileIfThere(Temporary(live, ".tp2"));
}

QString CloseAndCompactFile(Database& database, const std::filesystem::path& live, const std::string& connect)
{
    database.Close();
    try {
        FileLock lock;
        lock.Share(live, "The file " + live.filename().string() + " could not be compacted");
        if (!lock.TryAlone())
            return {};
        try {
            CompactThroughTemporaries(live, connect);
        } catch (const Failure&) {
            ClearTemporaries(live);
            throw;
        }
    } catch (const Failure& failure) {
        return QString::fromStdString(failure.Doing() + ": " + failure.Reason() + ".");
    }
    return {};
}

} // namespace

RecordSet& DrawsOf(const Game& game)
{
    return game.drawType == MainGame.drawType ? ukmain : ukthunder;
}

RecordSet& DrawListOf(const Game& game)
{
    return game.drawType == MainGame.drawType ? ukmainlist : ukthunderlist;
}

void SetProgramDir(const std::filesystem::path& folder)
{
    ProgramDir = folder;
    UserDataPath = ProgramDir / "userdata.tv3";
    DrawDataPath = ProgramDir / "drawdata.tv3";
}

void OpenDatabaseFiles()
{
    DrawDb.Open(DrawDataPath, DrawConnect);
    ukmain.Open(DrawDb, DrawTable(MainGame));
    ukthunder.Open(DrawDb, DrawTable(ThunderballGame));
    ukmainlist.Open(DrawDb, DrawList(MainGame));
    ukthunderlist.Open(DrawDb, DrawList(ThunderballGame));
    links.Open(DrawDb, LinksTable());
    UserDb.Open(UserDataPath);
    users.Open(UserDb, UsersTable());
    entries.Open(UserDb, EntriesTable());
}

QString CloseAndCompactFiles()
{
    QStringList failures{CloseAndCompactFile(DrawDb, DrawDataPath, DrawConnect),
                         CloseAndCompactFile(UserDb, UserDataPath, {})};
    failures.removeAll(QString());
    WipeDerivedKeys();
    return failures.join(Crlf);
}
