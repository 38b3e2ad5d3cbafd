#include "support/failure_of.h"
#include "support/file_bytes.h"
#include "support/forked.h"
#include "support/raw_file.h"
#include "support/test_window.h"

#include "utilities/database_file.h"
#include "utilities/import.h"
#include "utilities/start_up.h"

#include <csignal>
#include <sys/stat.h>

namespace {

/// Another program is killed in the middle of a change that has reached the file of the users already.
bool LeaveUnfinishedChange()
{
    return RunForked([](const ForkedProcess::Say&) {
               sqlite3* engine = nullptr;
               sqlite3_open(UserDataPath.c_str(), &engine);
               Execute(engine,
                       "PRAGMA cache_size = 1; BEGIN; UPDATE users SET UserName = 'Half'; CREATE TABLE filler(a);"
                       "INSERT INTO filler VALUES (zeroblob(100000)); INSERT INTO filler SELECT * FROM filler",
                       "");
               ::kill(::getpid(), SIGKILL);
           }).signal == SIGKILL;
}

} // namespace

class InterruptedImportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void UnfinishedChangeIsTakenBackBeforeTheFileIsReplaced()
    {
        TestFolder folder(TestFolder::Content::Empty);
        OpenDatabaseFiles();
        AddUser(users, "Old", 1);
        CloseDatabaseFiles();
        QVERIFY(LeaveUnfinishedChange());
        QVERIFY(QFile::exists(folder.Path("userdata.tv3-journal")));
        const QTemporaryDir own;
        WriteBytes(own.filePath("garbage.tv3"), "garbage");
        {
            const Import import(UserDatabaseFile(), own.filePath("garbage.tv3").toStdString());
            QVERIFY(!QFile::exists(folder.Path("userdata.tv3-journal")));
        }
        OpenDatabasesAtStart();
        QCOMPARE(TestFolder::StoredRows("users"), QStringList{"1,Old,1"});
    }

    void JournalBesideTheFileBehindALinkIsNotTakenForTheOldFiles()
    {
        const TestFolder folder(TestFolder::Content::Empty);
        const QTemporaryDir own;
        RunSql(UserDataPath, {}, "INSERT INTO users VALUES (1, 'Old', 1)");
        QFile::rename(folder.Path("userdata.tv3"), folder.Path("userdata.tp0"));
        QFile::copy(folder.Path("userdata.tp0"), own.filePath("real.tv3"));
        QFile::link(own.filePath("real.tv3"), folder.Path("userdata.tv3"));
        RunSql(UserDataPath, {}, "DELETE FROM users; INSERT INTO users VALUES (2, hex(zeroblob(20000)), 2)");
        QVERIFY(LeaveUnfinishedChange());
        QVERIFY(QFile::exists(own.filePath("real.tv3-journal")));
        OpenDatabasesAtStart();
        QCOMPARE(TestFolder::StoredRows("users"), QStringList{"1,Old,1"});
        QVERIFY(QFileInfo(folder.Path("userdata.tv3")).isSymLink());
    }

    void PipeIsNoFileToImport()
    {
        const TestFolder folder(TestFolder::Content::Empty);
        const QTemporaryDir own;
        const std::string pipe = own.filePath("pipe.tv3").toStdString();
        QCOMPARE(::mkfifo(pipe.c_str(), 0600), 0);
        QCOMPARE(FailureOf([&] { const Import import(UserDatabaseFile(), pipe); }).reason,
                 QString("it cannot be read"));
        QCOMPARE(folder.Files(), (QStringList{"drawdata.tv3", "userdata.tv3"}));
    }

    void OtherCopysImportIsLeftAlone()
    {
        TestFolder folder(TestFolder::Content::Empty);
        const QTemporaryDir own;
        const QString chosen = own.filePath("chosen.tv3");
        QFile::copy(folder.Path("userdata.tv3"), chosen);
        RunSql(chosen.toStdString(), {}, "INSERT INTO users VALUES (1, 'New', 1)");
        Import import(UserDatabaseFile(), chosen.toStdString());
        // A second copy of the program starts while the first one is still about to open the new file.
        OpenDatabasesAtStart();
        QCOMPARE(TestFolder::StoredRows("users"), QStringList{"1,New,1"});
        QVERIFY(QFile::exists(folder.Path("userdata.tp0")));
        import.Complete();
        QCOMPARE(folder.Files(), (QStringList{"drawdata.tv3", "userdata.tv3"}));
    }
};

TAVENOR_TEST(InterruptedImportTest)
#include "interrupted_import_test.moc"
