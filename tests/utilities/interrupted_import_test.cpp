#include "support/disk_calls.h"
#include "support/failure_of.h"
#include "support/file_bytes.h"
#include "support/forked.h"
#include "support/raw_file.h"
#include "support/test_window.h"

#include "records/held_file.h"
#include "utilities/database_file.h"
#include "utilities/import.h"

#include <QtEndian>

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
        // In the folder, or where a link in it leads to.
        for (const bool link : {false, true}) {
            const TestFolder folder(TestFolder::Content::Empty);
            const QTemporaryDir own;
            const QString live = folder.Path("userdata.tv3");
            const QString real = link ? own.filePath("real.tv3") : live;
            QFile::copy(live, own.filePath("chosen.tv3"));
            RunSql(own.filePath("chosen.tv3").toStdString(), {}, "INSERT INTO users VALUES (1, 'New', 1)");
            RunSql(UserDataPath, {}, "INSERT INTO users VALUES (1, 'Old', 1)");
            if (link)
                QVERIFY(QFile::rename(live, real) && QFile::link(real, live));
            QVERIFY(LeaveUnfinishedChange() && QFile::exists(real + "-journal"));
            Import import(UserDatabaseFile(), own.filePath("chosen.tv3").toStdString());
            QVERIFY(!QFile::exists(real + "-journal"));
            import.Prove();
            QCOMPARE(TestFolder::StoredRows("users"), QStringList{"1,Old,1"});
            import.Complete();
            QCOMPARE(TestFolder::StoredRows("users"), QStringList{"1,New,1"});
            QVERIFY(QFileInfo(live).isSymLink() == link);
        }
    }

    void CopyThatDiffersIsRefused()
    {
        const TestFolder folder(TestFolder::Content::Empty);
        const HeldFile live(UserDataPath, {}, "The file could not be copied");
        TemporaryFile copy(folder.Path("copy.tv3").toStdString());
        PlanDiskFault(DiskFault::WrongBytes, 1);
        const FailureOf copying([&] { live.CopyTo(copy); });
        PlanDiskFault(DiskFault::WrongBytes, 0);
        QCOMPARE(copying.detail, QString("the copy differs"));
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

    void NoCopyOpensAFileWhoseImportIsNotProved()
    {
        const TestFolder folder(TestFolder::Content::Empty);
        const QTemporaryDir own;
        QFile::copy(folder.Path("userdata.tv3"), own.filePath("chosen.tv3"));
        {
            Import import(UserDatabaseFile(), own.filePath("chosen.tv3").toStdString());
            QCOMPARE(FailureOf(OpenDatabaseFiles).reason, QString("another program is using the file"));
            import.Prove();
            import.Complete();
        }
        OpenDatabaseFiles();
        QCOMPARE(users.Count(), 0);
    }

    void JournalThatNamesAnotherFileIsRefused()
    {
        const TestFolder folder(TestFolder::Content::Empty);
        const QTemporaryDir own;
        const QString letter = own.filePath("letter");
        const QByteArray mark = QByteArray::fromHex("d9d505f920a163d7");
        const QByteArray name = letter.toLocal8Bit();
        QByteArray journal = mark;
        journal.resize(600);
        quint32 sum = 0;
        for (const char byte : name)
            sum += static_cast<quint32>(byte);
        const auto number = [](quint32 value) {
            QByteArray bytes(4, 0);
            qToBigEndian(value, bytes.data());
            return bytes;
        };
        journal += number(0x40000001) + name + number(static_cast<quint32>(name.size())) + number(sum) + mark;
        for (const char* live : {"userdata.tv3", "drawdata.tv3"}) {
            WriteBytes(letter, "mine");
            WriteBytes(folder.Path(QString(live) + "-journal"), journal);
            QCOMPARE(FailureOf(OpenDatabaseFiles).reason, QString("the journal beside it names another file"));
            QVERIFY(CloseAndCompactFiles().contains("the journal beside it names another file"));
            QCOMPARE(BytesOf(letter), QByteArray("mine"));
            QVERIFY(QFile::remove(folder.Path(QString(live) + "-journal")));
        }
    }
};

TAVENOR_TEST(InterruptedImportTest)
#include "interrupted_import_test.moc"
