#include "support/failure_of.h"
#include "support/file_bytes.h"
#include "support/full_disk.h"
#include "support/raw_file.h"
#include "support/test_window.h"

#include "utilities/backup.h"
#include "utilities/database_file.h"
#include "utilities/start_and_end.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QPushButton>

namespace {

const QString DrawNotStored = "The draw database has not been stored.";
const QString DrawNotAltered = "The draw database has not been altered.";
const QString UserNotStored = "The user entry database has not been stored.";
const QString UserNotAltered = "The user entry database has not been altered.";
const QStringList BothFiles{"drawdata.tv3", "userdata.tv3"};

/// What is said of either file.
struct Kind
{
    QString name;
    QString stored;
    QString replaced;
};
const Kind Kinds[] = {
    {"draw", "A copy of the draw record database has been stored.", "The draw record database has been replaced."},
    {"user", "A copy of the user entry database has been stored.", "The user entry database has been replaced."}};

/// The program with a user, entries and draws in it, some of them deleted, and a folder for the player's own files.
class Utilities
{
public:
    Utilities()
    {
        AddUser(users, QString(30000, u'x'), 5);
        AddUser(users, "Ann", 5);
        users.MoveFirst();
        users.Delete();
        Transaction manyDeletions(DrawDb, "The draws could not be deleted");
        for (int deleted = 0; deleted < 500; ++deleted) {
            ukmain.MoveFirst();
            ukmain.Delete();
        }
        manyDeletions.Commit();
        rows = Rows();
    }

    static QStringList Rows() { return TestFolder::StoredRows("ukmain") + TestFolder::StoredRows("users"); }
    QString Own(const QString& file) const { return own.filePath(file); }
    QString Live(const QString& kind) const { return window.files.Path(kind + "data.tv3"); }

    /// Presses a button of frmadvanced, types a path into the file dialog and accepts it.
    void Do(const QString& button, const QString& path, const QList<QMessageBox::StandardButton>& answers)
    {
        Choose(button, [path](QFileDialog& dialog) {
            QTimer::singleShot(0, &dialog, [&dialog, path] {
                auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
                name->setText(path);
                QTest::keyClick(name, Qt::Key_Return);
                // Still there when the question about overwriting was answered with No.
                if (dialog.isVisible())
                    dialog.reject();
            });
        });
        for (const auto answer : answers)
            window.modals.WillPress(answer);
        window.Click("advanced");
    }

    /// The same with something else done in the dialog.
    void Choose(const QString& button, const std::function<void(QFileDialog&)>& inDialog)
    {
        window.modals.WillDo([button](QDialog& advanced) {
            // The look-out for modal windows must be free again before the button opens the next one.
            QTimer::singleShot(0, &advanced, [&advanced, button] {
                QTest::mouseClick(advanced.findChild<QPushButton*>(button), Qt::LeftButton);
                QTest::keyClick(&advanced, Qt::Key_Escape);
            });
        });
        window.modals.WillDo([inDialog](QDialog& dialog) { inDialog(dynamic_cast<QFileDialog&>(dialog)); });
    }

    /// Ends the program and starts it again in the same folder.
    static void StartAgain()
    {
        CloseDatabaseFiles();
        OpenDatabases();
    }

    TestWindow window{TestFolder::Content::Starter};
    QTemporaryDir own;
    QStringList rows;
};

} // namespace

class AdvancedWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void DialogsAskForTheirFiles()
    {
        Utilities utilities;
        QStringList seen;
        const QByteArray draws = BytesOf(utilities.Live("draw"));
        QVERIFY(QDir::home().mkdir("Downloads"));
        for (const QString button : {"exportdraw", "importdraw", "exportuser", "importuser"}) {
            utilities.Choose(button, [&](QFileDialog& dialog) {
                seen = QStringList{dialog.windowTitle(), dialog.objectName(),
                                   dialog.findChild<QLineEdit*>("fileNameEdit")->text()} +
                       dialog.nameFilters() + QStringList(dialog.directory().path());
                dialog.reject();
            });
            utilities.window.Click("advanced");
            const bool saving = button.startsWith("export");
            QCOMPARE(seen, (QStringList{saving ? "Backup" : "Import", "CommonDialog1", button.mid(6) + "data.tv3",
                                        "Tavenor 3 Files (*.tv3)", QDir::homePath() + (saving ? "" : "/Downloads")}));
        }
        QCOMPARE(BytesOf(utilities.Live("draw")), draws);
    }

    void EnterOnTheOfferedNameStoresABackup()
    {
        Utilities utilities;
        const QString stored = QDir::home().filePath("userdata.tv3");
        utilities.Choose("exportuser", [](QFileDialog& dialog) {
            QTimer::singleShot(0, &dialog, [&dialog] { QTest::keyClick(dialog.focusWidget(), Qt::Key_Return); });
        });
        utilities.window.Click("advanced", {QMessageBox::Ok});
        QCOMPARE(BytesOf(stored), BytesOf(utilities.Live("user")));
        QVERIFY(QFile::remove(stored) && QDir::home().rmdir("Downloads"));
    }

    void BackupEqualsTheCompactedLiveFile()
    {
        for (const Kind& kind : Kinds) {
            Utilities utilities;
            const QString live = utilities.Live(kind.name);
            const qint64 before = QFileInfo(live).size();
            utilities.Do("export" + kind.name, utilities.Own("copy"), {QMessageBox::Ok});
            QCOMPARE(utilities.window.modals.TakeTexts(), QStringList{kind.stored});
            QCOMPARE(BytesOf(utilities.Own("copy.tv3")), BytesOf(live));
            QVERIFY(QFileInfo(live).size() < before);
            QCOMPARE(utilities.window.files.Files(), BothFiles);
            QCOMPARE(utilities.rows, Utilities::Rows());
            QVERIFY(users.Count() == 1 && ukmain.Count() > 100);
        }
    }

    void OverwritingIsAskedFor()
    {
        Utilities utilities;
        const QString copy = utilities.Own("copy.tv3");
        WriteBytes(copy, "old");
        const auto refused = [&](const QString& why) {
            utilities.Do("exportuser", copy, {QMessageBox::Yes, QMessageBox::Ok});
            const QString told = utilities.window.modals.TakeTexts().last();
            QVERIFY2(told.startsWith(UserNotStored + "\r\n") && told.contains(why), qPrintable(told));
            QCOMPARE(BytesOf(copy), QByteArray("old"));
        };
        // Beside the new file it would be taken for a journal of that one.
        const QString journal = utilities.Own("copy.tv3-journal");
        WriteBytes(journal, "old");
        refused("a change of it was cut short");
        QVERIFY(QFile::remove(journal));
        FileLock otherCopy;
        otherCopy.Share(copy.toStdString(), "The other copy could not open the file");
        refused("another copy of the program is using the chosen file");
        otherCopy.Release();
        utilities.Do("exportuser", copy, {QMessageBox::No});
        QCOMPARE(BytesOf(copy), QByteArray("old"));
        // The player's own, whatever names they have.
        WriteBytes(copy + ".new", "own");
        WriteBytes(copy + ".new-journal", "own");
        utilities.Do("exportuser", copy, {QMessageBox::Yes, QMessageBox::Ok});
        QCOMPARE(BytesOf(copy), BytesOf(utilities.Live("user")));
        QVERIFY(BytesOf(copy + ".new") == "own" && BytesOf(copy + ".new-journal") == "own");
    }

    void LongNameIsTakenOrRefusedAtOnce()
    {
        Utilities utilities;
        for (const auto& [length, reason] : {std::pair(250, ""), {255, ""}, {256, "the chosen name is too long"}}) {
            const QByteArray before = BytesOf(utilities.Live("user"));
            const QString copy = utilities.Own(QString(length - 4, u'n') + ".tv3");
            CloseDatabaseFiles();
            QCOMPARE(FailureOf([&] { BackUp(UserDatabaseFile(), copy.toStdString()); }).reason, QString(reason));
            QCOMPARE(BytesOf(*reason == '\0' ? copy : utilities.Live("user")),
                     *reason == '\0' ? BytesOf(utilities.Live("user")) : before);
        }
        // In the program's own folder, too.
        const QString beside = utilities.window.files.Path("copy.tv3");
        BackUp(UserDatabaseFile(), beside.toStdString());
        QCOMPARE(BytesOf(beside), BytesOf(utilities.Live("user")));
    }

    void LiveFilesAreRefused()
    {
        Utilities utilities;
        const QList<QByteArray> bytes{BytesOf(utilities.Live("draw")), BytesOf(utilities.Live("user"))};
        const auto refused = [&](const QString& button, const QString& path, const QString& message) {
            QList<QMessageBox::StandardButton> answers{QMessageBox::Ok};
            if (button.startsWith("export") && QFile::exists(path))
                answers.prepend(QMessageBox::Yes);
            utilities.Do(button, path, answers);
            QVERIFY(utilities.window.modals.TakeTexts().last().startsWith(message));
        };
        for (const QString& live : {utilities.Live("draw"), utilities.Live("user")}) {
            refused("exportdraw", live, "You can't overwrite the current database files,\r\n" + DrawNotStored);
            refused("exportuser", live, "You can't overwrite the current database files,\r\n" + UserNotStored);
            refused("importdraw", live, "You can't use the current database files,\r\n" + DrawNotAltered);
            refused("importuser", live, "You can't use the current database files,\r\n" + UserNotAltered);
        }
        QVERIFY(QFile::link(utilities.Live("user"), utilities.Own("other.tv3")));
        refused("exportdraw", utilities.Own("other.tv3"), DrawNotStored + "\r\n");
        for (const QString name :
             {"drawdata.tp1", "userdata.tp2", "userdata.tv3.unfinished-x", "userdata.tv3-journal"}) {
            const QString own = utilities.window.files.Path(name);
            refused("exportdraw", own, DrawNotStored + "\r\n");
            WriteBytes(own, {});
            refused("importdraw", own, DrawNotAltered + "\r\n");
            QVERIFY(QFile::remove(own));
        }
        QFile::copy(TAVENOR_STARTER "/userdata.tv3", utilities.Own("unfinished.tv3"));
        WriteBytes(utilities.Own("unfinished.tv3-journal"), "rows");
        refused("importuser", utilities.Own("unfinished.tv3"),
                UserNotAltered + "\r\nThe file userdata.tv3 could not be replaced, because the chosen file");
        QCOMPARE((QList<QByteArray>{BytesOf(utilities.Live("draw")), BytesOf(utilities.Live("user"))}), bytes);
    }

    void LeftoversAreClearedAwayWhereTheyCan()
    {
        Utilities utilities;
        const auto inFolder = [&](const char* name) { return utilities.window.files.Path(name); };
        WriteBytes(utilities.Own("letter"), "mine");
        for (const char* name : {"drawdata.tp1", "drawdata.tp2", "userdata.tv3.unfinished-x"})
            WriteBytes(inFolder(name), "left");
        WriteBytes(inFolder("drawdata.tp1-journal"), {});
        for (const char* name :
             {"userdata.tp1", "userdata.tp2", "userdata.tv3.new", "drawdata.tv3.new", "drawdata.tp0"})
            QVERIFY(QFile::link(utilities.Own("letter"), inFolder(name)));
        QCOMPARE(FailureOf([&] { const TemporaryFile made(inFolder("drawdata.tp0").toStdString()); }).reason,
                 QString("an old temporary file is in the way"));
        QCOMPARE(CloseAndCompactFiles(), QString());
        QCOMPARE(utilities.window.files.Files(),
                 (QStringList{"drawdata.tp0", "drawdata.tv3", "drawdata.tv3.new", "userdata.tv3", "userdata.tv3.new"}));
        QCOMPARE(BytesOf(utilities.Own("letter")), QByteArray("mine"));
        QVERIFY(QDir().mkdir(inFolder("drawdata.tp1")));
        Utilities::StartAgain();
        QVERIFY(!utilities.window.ended);
        QCOMPARE(Utilities::Rows(), utilities.rows);
        QVERIFY(CloseAndCompactFiles().contains("drawdata.tp1 could not be deleted"));
        QCOMPARE(Utilities::Rows(), utilities.rows);
    }

    void ImportReplacesOneFileOnly()
    {
        // Names that the program has no files of its own under; a file without an ending is taken too.
        for (const auto& [kind, name] :
             {std::pair(Kinds[0], "drawdata.tp0"), {Kinds[1], "userdata.tv3.new"}, {Kinds[1], "entries"}}) {
            Utilities utilities;
            const QString other = utilities.Live(kind.name == "draw" ? "user" : "draw");
            const QString chosen = utilities.window.files.Path(name);
            QFile::copy(TAVENOR_STARTER "/" + kind.name + "data.tv3", chosen);
            QFile::setPermissions(chosen, QFile::ReadOwner);
            const QByteArray untouched = BytesOf(other);
            utilities.Do("import" + kind.name, chosen, {QMessageBox::Ok});
            QCOMPARE(utilities.window.modals.TakeTexts(), QStringList{kind.replaced});
            QCOMPARE(BytesOf(utilities.Live(kind.name)), BytesOf(TAVENOR_STARTER "/" + kind.name + "data.tv3"));
            QCOMPARE(BytesOf(other), untouched);
            QVERIFY(QFile::remove(chosen));
            QVERIFY(QFile::permissions(utilities.Live(kind.name)) & QFile::WriteOwner);
            QCOMPARE(utilities.window.files.Files(), BothFiles);
            AddUser(users, "Bob", 1);
            const QStringList rows = Utilities::Rows();
            Utilities::StartAgain();
            QCOMPARE(Utilities::Rows(), rows);
        }
    }

    void BadFileCostsOneStartAndNoData()
    {
        const QByteArray draws = BytesOf(TAVENOR_STARTER "/drawdata.tv3");
        const QByteArray people = BytesOf(TAVENOR_STARTER "/userdata.tv3");
        QByteArray damaged = draws;
        damaged[damaged.size() / 2] = static_cast<char>(damaged[damaged.size() / 2] ^ 1);
        const auto costs = [](const char* name, const QString& kind, const QByteArray& bytes, const char* sql = "",
                              const std::string& connect = {}) {
            Utilities utilities;
            const QString bad = utilities.Own("bad.tv3");
            WriteBytes(bad, bytes);
            RunSql(bad.toStdString(), connect, sql);
            // Before the process ends, another copy of the program is at work already.
            EndProcess = [&utilities] {
                utilities.window.ended = true;
                InAnotherCopy(UserDataPath, {}, UsersTable(), [](RecordSet& theirs) { AddUser(theirs, "Eve", 1); });
            };
            utilities.Do("import" + kind, bad, {QMessageBox::Ok});
            const QList<SeenBox> seen = utilities.window.modals.TakeSeen();
            QVERIFY2(seen.size() == 1 && seen[0].icon == QMessageBox::Critical && utilities.window.ended, name);
            QVERIFY(seen[0].text.startsWith("There is a problem with the database files."));
            Utilities::StartAgain();
            QVERIFY2(Utilities::Rows() == utilities.rows + QStringList{"3,Eve,1"}, name);
            QCOMPARE(utilities.window.files.Files(), BothFiles);
            // The player does as the message says; no file of another kind takes the good one's place.
            CloseDatabaseFiles();
            WriteBytes(utilities.window.files.Path("userdata.tp0"), "kept");
            RunSql(UserDataPath, {}, "DELETE FROM users");
            OpenDatabases();
            QVERIFY(users.IsEmpty());
        };
        costs("garbage as draws", "draw", QByteArray(100000, 'g'));
        costs("garbage as users", "user", QByteArray(100000, 'g'));
        costs("nothing as draws", "draw", {});
        costs("nothing as users", "user", {});
        costs("a heading only", "user", QByteArray("SQLite format 3\0", 16));
        costs("cut off", "draw", draws.left(draws.size() / 2));
        costs("damaged in the middle", "draw", damaged);
        costs("users in the place of draws", "draw", people);
        costs("another password", "draw", {}, "CREATE TABLE ukmain(a)", ";pwd=other");
        costs("users with a password", "user", {}, "CREATE TABLE users(a)", ";pwd=other");
        costs("no links", "draw", draws, "DROP TABLE links", DrawConnect);
        costs("no list", "draw", draws, "DROP VIEW ukmainlist", DrawConnect);
        costs("columns in another order", "user", people,
              "DROP TABLE users; CREATE TABLE users(UserName, UserId, SpendLimit)");
    }

    void FailingStepIsToldAndLeavesAllAsItWas()
    {
        const auto fails = [](const QString& button, int importedBytes, rlim_t room, const QString& message) {
            Utilities utilities;
            const QString file = utilities.Own("file.tv3");
            if (importedBytes > 0)
                WriteBytes(file, QByteArray(importedBytes, 'g'));
            {
                const FullDisk full(room);
                utilities.Do(button, file, {QMessageBox::Ok});
            }
            const QString told = utilities.window.modals.TakeTexts().value(0);
            QVERIFY2(told.startsWith(message + " could not be written, because the disk is full.\r\n("),
                     qPrintable(told));
            QCOMPARE(utilities.window.files.Files(), BothFiles);
            QCOMPARE(QFile::exists(file), importedBytes > 0);
            QCOMPARE(users.Count(), 1);
            Utilities::StartAgain();
            QCOMPARE(Utilities::Rows(), utilities.rows);
        };
        fails("exportdraw", 0, 40000, DrawNotStored + "\r\nThe file drawdata.tp1");
        fails("importuser", 200000, 150000, UserNotAltered + "\r\nThe file userdata.tv3");
    }

    void AnotherRunningCopyIsRespected()
    {
        Utilities utilities;
        const QString live = utilities.Live("user");
        FileLock otherCopy;
        otherCopy.Share(live.toStdString(), "The other copy could not open the file");
        const auto theirBackup = TemporaryFile::Beside(utilities.Own("copy.tv3").toStdString(), "userdata.tv3");
        const QByteArray bytes = BytesOf(live);
        const QString theirs = utilities.window.files.Path("userdata.tp2");
        WriteBytes(theirs, "theirs");
        const auto told = [&](const QString& button) {
            utilities.Do(button, utilities.Own("copy.tv3"), {QMessageBox::Ok});
            return utilities.window.modals.TakeTexts().value(0);
        };
        QCOMPARE(told("exportuser"), Kinds[1].stored);
        QVERIFY(BytesOf(theirs) == "theirs" && std::filesystem::exists(theirBackup.Path()));
        QVERIFY(QFile::remove(theirs));
        QVERIFY(told("importuser")
                    .startsWith(UserNotAltered + "\r\nThe file userdata.tv3 could not be replaced, because another "
                                                 "copy of the program"));
        QCOMPARE(BytesOf(live), bytes);
        QCOMPARE(utilities.window.files.Files(), BothFiles);
        otherCopy.Release();
        QCOMPARE(told("importuser"), Kinds[1].replaced);
        QCOMPARE(Utilities::Rows(), utilities.rows);
    }

    void cleanupTestCase()
    {
        // The dialogs were opened and closed many times by now.
        QCOMPARE(QDir(qEnvironmentVariable("HOME")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList());
    }
};

TAVENOR_TEST(AdvancedWindowTest)
#include "advanced_window_test.moc"
