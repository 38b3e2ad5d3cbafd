#include "support/raw_file.h"
#include "support/test_window.h"

#include "draws/draw_tables.h"
#include "draws/game.h"
#include "records/file_lock.h"
#include "shell/start_up.h"
#include "users/user_records.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>

#include <csignal>
#include <sys/resource.h>

namespace {

const QString Critical =
    "There is a problem with the database files.\r\nIf the problem persists, download with database "
    "files\r\nfrom https://www.tavenor.example and put them in the Tavenor 3 directory\r\nor contact "
    "us at support@tavenor.example";
const QString DrawNotStored = "The draw database has not been stored.";
const QString DrawNotAltered = "The draw database has not been altered.";
const QString UserNotStored = "The user entry database has not been stored.";
const QString UserNotAltered = "The user entry database has not been altered.";

QByteArray Bytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no such file)");
}

void Write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

/// No file of the process grows beyond a size while this lives, as on a full disk.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limit{bytes, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before); }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit before{};
};

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

    /// Presses a button of frmadvanced, types a path into the file dialog and accepts it.
    void Do(const QString& button, const QString& path, std::initializer_list<QMessageBox::StandardButton> answers)
    {
        Choose(button, [path](QFileDialog& dialog) { Accept(dialog, path); });
        for (const auto answer : answers)
            window.modals.WillPress(answer);
        Finish();
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

    void Finish()
    {
        window.Click("advanced");
        QVERIFY(window.modals.AllCame());
    }

    static void Accept(QFileDialog& dialog, const QString& path)
    {
        QTimer::singleShot(0, &dialog, [&dialog, path] {
            auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
            name->setText(path);
            QTest::keyClick(name, Qt::Key_Return);
            // Still there when the question about overwriting was answered with No.
            if (dialog.isVisible())
                dialog.reject();
        });
    }

    /// Ends the program and starts it again in the same folder.
    static void StartAgain()
    {
        CloseDatabaseFiles();
        OpenDatabasesAtStart();
    }

    TestWindow window{TestFolder::Content::Starter};
    QTemporaryDir own;
    QStringList rows;
};

void PairsOfActions(const std::function<void(const char*, const QString&, const QString&, const QString&)>& row)
{
    row("draw", "drawdata.tv3", "exportdraw", "importdraw");
    row("user", "userdata.tv3", "exportuser", "importuser");
}

} // namespace

class AdvancedWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void WindowHasItsControls()
    {
        Utilities utilities;
        QString title;
        QStringList captions;
        utilities.window.modals.WillDo([&](QDialog& advanced) {
            title = advanced.objectName() + u'|' + advanced.windowTitle();
            for (const char* name : {"Label_0", "Label_1", "Label_2"})
                captions.append(advanced.findChild<QLabel*>(name)->text());
            for (const char* name : {"exportdraw", "importdraw", "exportuser", "importuser", "back"})
                captions.append(advanced.findChild<QPushButton*>(name)->text());
            QTest::mouseClick(advanced.findChild<QPushButton*>("back"), Qt::LeftButton);
        });
        utilities.window.Click("advanced");
        QCOMPARE(title, QString("frmadvanced|Tavenor 3 --- Advanced Options"));
        QCOMPARE(captions, (QStringList{"Database Utilities", "Draw Records", "User Entries", "Backup Draw Database",
                                        "Import Updated Draw Database", "Backup User Entry Database",
                                        "Import User Entry Database", "BACK"}));
        QVERIFY(utilities.window.modals.AllCame());
    }

    void DialogOffersTheNameAndTheFilter_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("name");
        PairsOfActions([](const char* row, const QString& name, const QString& backup, const QString& import) {
            QTest::addRow("backup %s", row) << backup << name;
            QTest::addRow("import %s", row) << import << name;
        });
    }

    void DialogOffersTheNameAndTheFilter()
    {
        QFETCH(QString, button);
        QFETCH(QString, name);
        Utilities utilities;
        const QByteArray draws = Bytes(utilities.window.files.Path("drawdata.tv3"));
        QStringList said;
        utilities.Choose(button, [&](QFileDialog& dialog) {
            said = QStringList{dialog.objectName(), dialog.findChild<QLineEdit*>("fileNameEdit")->text()} +
                   dialog.nameFilters();
            dialog.reject();
        });
        utilities.Finish();
        QCOMPARE(said, (QStringList{"CommonDialog1", name, "Tavenor 3 Files (*.tv3)"}));
        QCOMPARE(Bytes(utilities.window.files.Path("drawdata.tv3")), draws);
        QVERIFY(utilities.window.modals.TakeTexts().isEmpty());
    }

    void BackupEqualsTheCompactedLiveFile_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("message");
        QTest::newRow("draw") << "drawdata.tv3"
                              << "exportdraw"
                              << "A copy of the draw record database has been stored.";
        QTest::newRow("user") << "userdata.tv3"
                              << "exportuser"
                              << "A copy of the user entry database has been stored.";
    }

    void BackupEqualsTheCompactedLiveFile()
    {
        QFETCH(QString, name);
        QFETCH(QString, button);
        QFETCH(QString, message);
        Utilities utilities;
        const QString live = utilities.window.files.Path(name);
        const qint64 before = QFileInfo(live).size();
        utilities.Do(button, utilities.Own("copy"), {QMessageBox::Ok});
        QCOMPARE(utilities.window.modals.TakeTexts(), QStringList{message});
        QCOMPARE(Bytes(utilities.Own("copy.tv3")), Bytes(live));
        QVERIFY(QFileInfo(live).size() < before);
        QCOMPARE(utilities.window.files.Files(), (QStringList{"drawdata.tv3", "userdata.tv3"}));
        QCOMPARE(utilities.rows, Utilities::Rows());
        QCOMPARE(users.Count(), 1);
        QVERIFY(ukmain.Count() > 100);
    }

    void OverwritingIsAskedFor_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("answer");
        QTest::newRow("no") << QMessageBox::No;
        QTest::newRow("yes") << QMessageBox::Yes;
    }

    void OverwritingIsAskedFor()
    {
        QFETCH(QMessageBox::StandardButton, answer);
        Utilities utilities;
        Write(utilities.Own("copy.tv3"), "old");
        // Beside the new file it would be taken for a journal of that one.
        Write(utilities.Own("copy.tv3-journal"), "old");
        utilities.Choose("exportuser",
                         [&](QFileDialog& dialog) { Utilities::Accept(dialog, utilities.Own("copy.tv3")); });
        utilities.window.modals.WillPress(answer);
        if (answer == QMessageBox::Yes)
            utilities.window.modals.WillPress(QMessageBox::Ok);
        utilities.Finish();
        QCOMPARE(Bytes(utilities.Own("copy.tv3")) == "old", answer == QMessageBox::No);
        QCOMPARE(QFile::exists(utilities.Own("copy.tv3-journal")), answer == QMessageBox::No);
    }

    void LiveFilesAreRefused_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("message");
        const QString overwrite = "You can't overwrite the current database files,\r\n";
        const QString use = "You can't use the current database files,\r\n";
        for (const char* name : {"drawdata.tv3", "userdata.tv3"}) {
            QTest::addRow("draw backup on %s", name) << "exportdraw" << name << overwrite + DrawNotStored;
            QTest::addRow("user backup on %s", name) << "exportuser" << name << overwrite + UserNotStored;
            QTest::addRow("draw import of %s", name) << "importdraw" << name << use + DrawNotAltered;
            QTest::addRow("user import of %s", name) << "importuser" << name << use + UserNotAltered;
        }
    }

    void LiveFilesAreRefused()
    {
        QFETCH(QString, button);
        QFETCH(QString, name);
        QFETCH(QString, message);
        Utilities utilities;
        const QByteArray bytes = Bytes(utilities.window.files.Path(name));
        const bool overwrites = button.startsWith("export");
        utilities.Choose(button,
                         [&](QFileDialog& dialog) { Utilities::Accept(dialog, utilities.window.files.Path(name)); });
        if (overwrites)
            utilities.window.modals.WillPress(QMessageBox::Yes);
        utilities.window.modals.WillPress(QMessageBox::Ok);
        utilities.Finish();
        QCOMPARE(utilities.window.modals.TakeTexts().last(), message);
        QCOMPARE(Bytes(utilities.window.files.Path(name)), bytes);
    }

    void OtherPathToALiveFileCostsNothing()
    {
        Utilities utilities;
        QVERIFY(QFile::link(utilities.window.files.Path("userdata.tv3"), utilities.Own("other.tv3")));
        utilities.Do("exportdraw", utilities.Own("other.tv3"), {QMessageBox::Yes, QMessageBox::Ok});
        QVERIFY(utilities.window.modals.TakeTexts().last().startsWith(DrawNotStored + "\r\n"));
        Utilities::StartAgain();
        QCOMPARE(Utilities::Rows(), utilities.rows);
    }

    void ImportReplacesOneFileOnly_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("other");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("message");
        QTest::newRow("draw") << "drawdata.tv3"
                              << "userdata.tv3"
                              << "importdraw"
                              << "The draw record database has been replaced.";
        QTest::newRow("user") << "userdata.tv3"
                              << "drawdata.tv3"
                              << "importuser"
                              << "The user entry database has been replaced.";
    }

    void ImportReplacesOneFileOnly()
    {
        QFETCH(QString, name);
        QFETCH(QString, other);
        QFETCH(QString, button);
        QFETCH(QString, message);
        Utilities utilities;
        QFile::copy(TAVENOR_STARTER "/" + name, utilities.Own(name));
        QFile::setPermissions(utilities.Own(name), QFile::ReadOwner);
        const QByteArray untouched = Bytes(utilities.window.files.Path(other));
        utilities.Do(button, utilities.Own(name), {QMessageBox::Ok});
        QCOMPARE(utilities.window.modals.TakeTexts(), QStringList{message});
        QCOMPARE(Bytes(utilities.window.files.Path(name)), Bytes(utilities.Own(name)));
        QCOMPARE(Bytes(utilities.window.files.Path(other)), untouched);
        QVERIFY(QFile::permissions(utilities.window.files.Path(name)) & QFile::WriteOwner);
        QCOMPARE(utilities.window.files.Files(), (QStringList{"drawdata.tv3", "userdata.tv3"}));
        AddUser(users, "Bob", 1);
        const QStringList rows = Utilities::Rows();
        Utilities::StartAgain();
        QCOMPARE(Utilities::Rows(), rows);
    }

    void BadFileCostsOneStartAndNoData_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<std::function<void(const QString&)>>("make");
        using Make = std::function<void(const QString&)>;
        const auto row = [](const char* name, const QString& button, const Make& make) {
            QTest::newRow(name) << button << make;
        };
        const auto changed = [](const char* starter, const std::string& connect, const std::string& sql) {
            return [=](const QString& file) {
                QFile::copy(QString(TAVENOR_STARTER "/") + starter, file);
                RunSql(file.toStdString(), connect, sql);
            };
        };
        row("garbage as draws", "importdraw", [](const QString& file) { Write(file, QByteArray(100000, 'g')); });
        row("garbage as users", "importuser", [](const QString& file) { Write(file, QByteArray(100000, 'g')); });
        row("nothing as draws", "importdraw", [](const QString& file) { Write(file, {}); });
        row("nothing as users", "importuser", [](const QString& file) { Write(file, {}); });
        row("cut off", "importdraw", [](const QString& file) {
            const QByteArray whole = Bytes(TAVENOR_STARTER "/drawdata.tv3");
            Write(file, whole.left(whole.size() / 2));
        });
        row("damaged in the middle", "importdraw", [](const QString& file) {
            QByteArray bytes = Bytes(TAVENOR_STARTER "/drawdata.tv3");
            bytes[bytes.size() / 2] = static_cast<char>(bytes[bytes.size() / 2] ^ 1);
            Write(file, bytes);
        });
        row("plain draws", "importdraw", [](const QString& file) {
            RunSql(file.toStdString(), {}, "CREATE TABLE ukmain(a); CREATE TABLE ukthunder(a); CREATE TABLE links(a)");
        });
        row("another password", "importdraw",
            [](const QString& file) { RunSql(file.toStdString(), ";pwd=other", "CREATE TABLE ukmain(a)"); });
        row("users with a password", "importuser",
            [](const QString& file) { RunSql(file.toStdString(), ";pwd=other", "CREATE TABLE users(a)"); });
        row("users in the place of draws", "importdraw",
            [](const QString& file) { QFile::copy(TAVENOR_STARTER "/userdata.tv3", file); });
        row("no links", "importdraw", changed("drawdata.tv3", DrawConnect, "DROP TABLE links"));
        row("no list", "importdraw", changed("drawdata.tv3", DrawConnect, "DROP VIEW ukmainlist"));
        row("columns in another order", "importuser",
            changed("userdata.tv3", {}, "DROP TABLE users; CREATE TABLE users(UserName, UserId, SpendLimit)"));
        row("a view in place of a table", "importuser",
            changed("userdata.tv3", {},
                    "DROP TABLE users; CREATE VIEW users AS SELECT 1 AS UserId, 2 AS UserName, "
                    "3 AS SpendLimit"));
    }

    void BadFileCostsOneStartAndNoData()
    {
        QFETCH(QString, button);
        QFETCH(std::function<void(const QString&)>, make);
        Utilities utilities;
        const QString bad = utilities.Own("bad.tv3");
        make(bad);
        utilities.Do(button, bad, {QMessageBox::Ok});
        const QList<SeenBox> seen = utilities.window.modals.TakeSeen();
        QCOMPARE(seen.size(), 1);
        QCOMPARE(seen[0].text, Critical);
        QCOMPARE(seen[0].icon, QMessageBox::Critical);
        QVERIFY(utilities.window.ended);
        CloseDatabaseFiles();
        // What the engine might have left beside the bad file.
        Write(utilities.window.files.Path(button == "importdraw" ? "drawdata.tv3-journal" : "userdata.tv3-journal"),
              "left");
        OpenDatabasesAtStart();
        QCOMPARE(Utilities::Rows(), utilities.rows);
        QCOMPARE(utilities.window.files.Files(), (QStringList{"drawdata.tv3", "userdata.tv3"}));
    }

    void FailingStepIsToldAndLeavesAllAsItWas_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("importedBytes");
        QTest::addColumn<int>("room");
        QTest::addColumn<QString>("message");
        QTest::newRow("compaction") << "exportdraw" << 0 << 40000
                                    << DrawNotStored + "\r\nThe file drawdata.tp1 could not be written";
        QTest::newRow("keeping aside") << "importdraw" << 100 << 40000
                                       << DrawNotAltered + "\r\nThe file drawdata.tp0 could not be written";
        QTest::newRow("replacing") << "importuser" << 200000 << 150000
                                   << UserNotAltered + "\r\nThe file userdata.tv3 could not be written";
    }

    void FailingStepIsToldAndLeavesAllAsItWas()
    {
        QFETCH(QString, button);
        QFETCH(int, importedBytes);
        QFETCH(int, room);
        QFETCH(QString, message);
        Utilities utilities;
        const QString file = utilities.Own("file.tv3");
        if (importedBytes > 0)
            Write(file, QByteArray(importedBytes, 'g'));
        {
            const FullDisk full(static_cast<rlim_t>(room));
            utilities.Do(button, file, {QMessageBox::Ok});
        }
        const QString told = utilities.window.modals.TakeTexts().value(0);
        QVERIFY2(told.startsWith(message + ", because the disk is full.\r\n("), qPrintable(told));
        QCOMPARE(utilities.window.files.Files(), (QStringList{"drawdata.tv3", "userdata.tv3"}));
        QCOMPARE(QFile::exists(file), importedBytes > 0);
        QCOMPARE(users.Count(), 1);
        Utilities::StartAgain();
        QCOMPARE(Utilities::Rows(), utilities.rows);
    }

    void FailedBackupKeepsTheOlderOne()
    {
        Utilities utilities;
        Write(utilities.Own("older.tv3"), "older");
        QDir(utilities.own.path()).mkdir("older.tv3.new");
        utilities.Do("exportuser", utilities.Own("older.tv3"), {QMessageBox::Yes, QMessageBox::Ok});
        QVERIFY(utilities.window.modals.TakeTexts().last().startsWith(UserNotStored + "\r\n"));
        QCOMPARE(Bytes(utilities.Own("older.tv3")), QByteArray("older"));
    }

    void AnotherRunningCopyIsRespected()
    {
        Utilities utilities;
        const QString live = utilities.window.files.Path("userdata.tv3");
        FileLock otherCopy;
        otherCopy.Share(live.toStdString(), "The other copy could not open the file");
        const QByteArray bytes = Bytes(live);

        utilities.Do("exportuser", utilities.Own("copy.tv3"), {QMessageBox::Ok});
        QCOMPARE(utilities.window.modals.TakeTexts(),
                 QStringList{"A copy of the user entry database has been stored."});
        QCOMPARE(Bytes(live), bytes);

        utilities.Do("importuser", utilities.Own("copy.tv3"), {QMessageBox::Ok});
        QVERIFY(utilities.window.modals.TakeTexts().value(0).startsWith(
            UserNotAltered + "\r\nThe file userdata.tv3 could not be replaced, because another copy of the program"));
        QCOMPARE(Bytes(live), bytes);
        QCOMPARE(utilities.window.files.Files(), (QStringList{"drawdata.tv3", "userdata.tv3"}));

        otherCopy.Release();
        utilities.Do("importuser", utilities.Own("copy.tv3"), {QMessageBox::Ok});
        QCOMPARE(utilities.window.modals.TakeTexts(), QStringList{"The user entry database has been replaced."});
        QCOMPARE(Utilities::Rows(), utilities.rows);
    }

    void cleanupTestCase()
    {
        // The dialogs were opened and closed many times by now.
        QCOMPARE(QDir(qEnvironmentVariable("HOME")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList());
    }
};

int main(int count, char** arguments)
{
    const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    for (const char* folder : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        qunsetenv(folder);
    QApplication application(count, arguments);
    AdvancedWindowTest tests;
    return RunTests(tests, count, arguments);
}
#include "advanced_window_test.moc"
