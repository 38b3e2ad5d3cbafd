#include "support/disk_calls.h"
#include "support/failure_of.h"
#include "support/file_bytes.h"
#include "support/forked.h"
#include "support/raw_file.h"
#include "support/test_window.h"

#include "records/held_file.h"
#include "utilities/backup.h"
#include "utilities/database_file.h"
#include "utilities/import.h"

#include <QDir>

#include <csignal>
#include <sys/stat.h>

namespace {

/// The two files, closed, with a user in them, and a folder for the player's own ones.
struct ClosedFiles
{
    explicit ClosedFiles(TestFolder::Content content = TestFolder::Content::Empty) : folder(content)
    {
        InAnotherCopy(UserDataPath, {}, UsersTable(), [](RecordSet& table) { AddUser(table, "Old", 1); });
    }
    QList<QByteArray> Bytes() const
    {
        return {BytesOf(folder.Path("drawdata.tv3")), BytesOf(folder.Path("userdata.tv3"))};
    }
    QString Own(const QString& file) const { return own.filePath(file); }

    TestFolder folder;
    QTemporaryDir own;
};

void ImportFrom(const QString& chosen, const DatabaseFile& file = UserDatabaseFile())
{
    Import import(file, chosen.toStdString());
    import.Prove();
    import.Complete();
}

QString ReasonOf(const std::function<void()>& action)
{
    return FailureOf(action).reason;
}

} // namespace

class DatabaseFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void RefusedActionsChangeNothing()
    {
        const ClosedFiles files;
        const QList<QByteArray> bytes = files.Bytes();
        QVERIFY(QFile::link(files.folder.Path("drawdata.tv3"), files.Own("link")));
        QVERIFY(::mkfifo(files.Own("pipe").toLocal8Bit().constData(), 0600) == 0);
        for (const char* name : {"used", "unfinished", "unfinished-journal"})
            WriteBytes(files.Own(name), "own");
        FileLock otherCopy;
        otherCopy.Share(files.Own("used").toStdString(), "The other copy could not open the file");
        const QString unfinished = "the chosen file is being changed, or a change of it was cut short";
        const QString working = "the chosen name is that of one of the program's own working files";
        QList<std::tuple<QString, QString, QString>> rows{
            {files.Own("link"), "it would take the place of one of the program's own files", {}},
            // Beside the new file it would be taken for a journal of that one.
            {files.Own("unfinished"), unfinished, unfinished},
            {files.Own("used"), "another copy of the program is using the chosen file, or it may not be changed", {}},
            {files.Own(QString(256, u'n')), "the chosen name is too long", {}},
            {files.Own("pipe"), {}, "it cannot be read"},
            {files.Own("nothing"), {}, "it cannot be read"}};
        for (const char* name : {"drawdata.tp1", "userdata.tp2", "userdata.tv3.unfinished-x", "userdata.tv3-journal"})
            rows.append({files.folder.Path(name), working, working});
        for (const auto& [path, saving, importing] : rows) {
            if (!saving.isEmpty())
                QCOMPARE(ReasonOf([&, to = path] { BackUp(UserDatabaseFile(), to.toStdString()); }), saving);
            if (!importing.isEmpty())
                QCOMPARE(ReasonOf([from = path] { ImportFrom(from); }), importing);
        }
        QVERIFY(files.Bytes() == bytes && BytesOf(files.Own("used")) == "own");
    }

    void AnyOtherNameServes()
    {
        const ClosedFiles files;
        for (const QString& path : {files.Own(QString(255, u'n')), files.Own("drawdata.tp1"),
                                    files.folder.Path("userdata.tp0"), files.folder.Path("userdata.tv3.new")}) {
            WriteBytes(path, "old");
            BackUp(UserDatabaseFile(), path.toStdString());
            const QByteArray live = files.Bytes()[1];
            QCOMPARE(BytesOf(path), live);
            QFile::setPermissions(path, QFile::ReadOwner);
            RunSql(UserDataPath, {}, "DELETE FROM users");
            ImportFrom(path);
            QVERIFY(files.Bytes()[1] == live && BytesOf(path) == live);
            QVERIFY(QFile::permissions(files.folder.Path("userdata.tv3")) & QFile::WriteOwner);
        }
    }

    void LeftoversAreClearedAwayWhereTheyCan()
    {
        const ClosedFiles files;
        const auto inFolder = [&](const char* name) { return files.folder.Path(name); };
        WriteBytes(files.Own("letter"), "mine");
        for (const char* name : {"drawdata.tp1", "drawdata.tp2", "userdata.tv3.unfinished-x", "drawdata.tp1-journal"})
            WriteBytes(inFolder(name), "left");
        for (const char* name : {"userdata.tp1", "userdata.tp2", "userdata.tv3.new", "drawdata.tp0"})
            QVERIFY(QFile::link(files.Own("letter"), inFolder(name)));
        QCOMPARE(CloseAndCompactFiles(), QString());
        QCOMPARE(files.folder.Files(),
                 (QStringList{"drawdata.tp0", "drawdata.tv3", "userdata.tv3", "userdata.tv3.new"}));
        QCOMPARE(BytesOf(files.Own("letter")), QByteArray("mine"));
        QVERIFY(QDir().mkdir(inFolder("drawdata.tp1")));
        QVERIFY(CloseAndCompactFiles().contains("drawdata.tp1 could not be deleted"));
        QCOMPARE(TestFolder::StoredRows("users"), QStringList{"1,Old,1"});
    }

    void TemporaryFileIsThePlayersOwnOrToldInWords()
    {
        const ClosedFiles files;
        for (const auto& [name, reason] :
             {std::pair(std::string("userdata.tv3"), "an old temporary file is in the way"),
              {"/sys/x", "the file or its folder may not be changed"},
              {"userdata.tv3/x", "the disk reported an error"},
              {std::string(256, 'n'), "its name is too long"}})
            QCOMPARE(ReasonOf([path = ProgramDir / name] { const TemporaryFile made(path); }), QString(reason));
        const TemporaryFile made(ProgramDir / "new");
        QCOMPARE(std::filesystem::status(made.Path()).permissions(), std::filesystem::perms{0600});
    }

    void BadFileIsNotTaken()
    {
        const ClosedFiles files(TestFolder::Content::Starter);
        const QByteArray draws = files.Bytes()[0];
        const QByteArray people = files.Bytes()[1];
        QByteArray damaged = draws;
        damaged[damaged.size() / 2] = static_cast<char>(damaged[damaged.size() / 2] ^ 1);
        const QByteArray garbage(100000, 'g');
        // The file that it is to replace, its bytes, and what a tool has done to it with a password.
        const std::tuple<DatabaseFile, QByteArray, const char*, std::string> rows[] = {
            {DrawDatabaseFile(), garbage, "", {}},
            {UserDatabaseFile(), garbage, "", {}},
            {UserDatabaseFile(), {}, "", {}},
            {UserDatabaseFile(), QByteArray("SQLite format 3\0", 16), "", {}},
            {DrawDatabaseFile(), draws.left(draws.size() / 2), "", {}},
            {DrawDatabaseFile(), damaged, "", {}},
            {DrawDatabaseFile(), people, "", {}},
            {DrawDatabaseFile(), {}, "CREATE TABLE ukmain(a)", ";pwd=other"},
            {DrawDatabaseFile(), draws, "DROP VIEW ukmainlist", DrawConnect},
            {UserDatabaseFile(), people, "ALTER TABLE users RENAME UserId TO Id", {}}};
        for (const auto& [file, bytes, sql, connect] : rows) {
            const QString bad = files.Own("bad.tv3");
            WriteBytes(bad, bytes);
            RunSql(bad.toStdString(), connect, sql);
            QVERIFY(!ReasonOf([&, target = file] { ImportFrom(bad, target); }).isEmpty());
            QCOMPARE(files.Bytes(), (QList<QByteArray>{draws, people}));
            QCOMPARE(files.folder.Files(), (QStringList{"drawdata.tv3", "userdata.tv3"}));
        }
    }

    void AnotherRunningCopyIsRespected()
    {
        const ClosedFiles files;
        const QByteArray bytes = files.Bytes()[1];
        FileLock otherCopy;
        otherCopy.Share(UserDataPath, "The other copy could not open the file");
        const QString copy = files.Own("copy.tv3");
        const auto theirBackup = TemporaryFile::Beside(copy.toStdString(), "userdata.tv3");
        const QString theirs = files.folder.Path("userdata.tp2");
        WriteBytes(theirs, "theirs");
        BackUp(UserDatabaseFile(), copy.toStdString());
        QVERIFY(BytesOf(copy) == bytes && BytesOf(theirs) == "theirs");
        QVERIFY(std::filesystem::exists(theirBackup.Path()));
        QCOMPARE(ReasonOf([&] { ImportFrom(copy); }),
                 QString("another copy of the program is using it, or it may not be changed"));
        QCOMPARE(files.Bytes()[1], bytes);
        otherCopy.Release();
        ImportFrom(copy);
    }

    void UnfinishedChangeIsTakenBackBeforeTheFileIsReplaced()
    {
        // In the folder, or where a link in it leads to.
        for (const bool link : {false, true}) {
            const ClosedFiles files;
            const QString live = files.folder.Path("userdata.tv3");
            const QString real = link ? files.Own("real.tv3") : live;
            const QString chosen = files.Own("chosen.tv3");
            QFile::copy(live, chosen);
            RunSql(chosen.toStdString(), {}, "UPDATE users SET UserName = 'New'");
            if (link)
                QVERIFY(QFile::rename(live, real) && QFile::link(real, live));
            // Another program is killed in the middle of a change that has reached the file already.
            RunForked([](const Say&) {
                const Engine engine = OpenEngine(UserDataPath, SQLITE_OPEN_READWRITE, "");
                Execute(engine.get(),
                        "PRAGMA cache_size = 1; BEGIN; UPDATE users SET UserName = 'Half'; CREATE TABLE filler(a);"
                        "INSERT INTO filler VALUES (zeroblob(100000)); INSERT INTO filler SELECT * FROM filler",
                        "");
                ::kill(::getpid(), SIGKILL);
            });
            QVERIFY(QFile::exists(real + "-journal"));
            Import import(UserDatabaseFile(), chosen.toStdString());
            QVERIFY(!QFile::exists(real + "-journal"));
            // Nobody opens a file whose import is not proved.
            if (!link)
                QCOMPARE(ReasonOf(OpenDatabaseFiles), QString("another program is using the file"));
            import.Prove();
            QCOMPARE(TestFolder::StoredRows("users"), QStringList{"1,Old,1"});
            import.Complete();
            QCOMPARE(TestFolder::StoredRows("users"), QStringList{"1,New,1"});
            QCOMPARE(QFileInfo(live).isSymLink(), link);
        }
    }

    void CopyThatDiffersIsRefused()
    {
        const ClosedFiles files;
        const HeldFile live(UserDataPath, {}, "The file could not be copied");
        TemporaryFile copy(files.Own("copy.tv3").toStdString());
        PlanDiskFault(DiskFault::FailuresFromThen, 1);
        const FailureOf copying([&] { live.CopyTo(copy); });
        PlanDiskFault(DiskFault::FailuresFromThen, 0);
        QCOMPARE(copying.detail, QString("the copy differs"));
    }

    void JournalThatNamesAnotherFileIsRefused()
    {
        const ClosedFiles files;
        for (const char* live : {"userdata.tv3", "drawdata.tv3"}) {
            // How the name of a further file ends, which the engine would delete.
            const QString planted = files.folder.Path(QString(live) + "-journal");
            WriteBytes(planted, QByteArray(600, 1) + QByteArray::fromHex("d9d505f920a163d7"));
            const QString told = "the journal beside it names another file";
            QCOMPARE(ReasonOf(OpenDatabaseFiles), told);
            QVERIFY(CloseAndCompactFiles().contains(told) && QFile::exists(planted));
            QVERIFY(QFile::remove(planted));
        }
    }
};

TAVENOR_TEST(DatabaseFilesTest)
#include "database_files_test.moc"
