#include "support/full_disk.h"
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
    void Do(const QString& button, const QString& path, const QList<QMessageBox::StandardButton>& answers)
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
        QTest::newRow("draw backup") << "exportdraw"
                                     << "drawdata.tv3";
        QTest::newRow("draw import") << "importdraw"
                                     << "drawdata.tv3";
        QTest::newRow("user backup") << "exportuser"
                                     << "userdata.tv3";
        QTest::newRow("user import") << "importuser"
                                     << "userdata.tv3";
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
        QTest::addColumn<QString>("message");
        QTest::newRow("draw") << "drawdata"
                              << "A copy of the draw record database has been stored.";
        QTest::newRow("user") << "userdata"
                              << "A copy of the user entry database has been stored.";
    }

    void BackupEqualsTheCompactedLiveFile()
    {
        QFETCH(QString, name);
        QFETCH(QString, message);
        Utilities utilities;
        const QString live = utilities.window.files.Path(name + ".tv3");
        const qint64 before = QFileInfo(live).size();
        utilities.Do("export" + name.left(4), utilities.Own("copy"), {QMessageBox::Ok});
        QCOMPARE(utilities.window.modals.TakeTexts(), QStringList{message});
        QCOMPARE(Bytes(utilities.Own("copy.tv3")), Bytes(live));
        QVERIFY(QFileInfo(live).size() < before);
        QCOMPARE(utilities.window.files.Files(), (QStringList{"drawdata.tv3", "userdata.tv3"}));
        QCOMPARE(utilities.rows, Utilities::Rows());
        QCOMPARE(users.Count(), 1);
        QVERIFY(ukmain.Count() > 100);
    }

    void OverwritingIsAskedFor()
    {
        Utilities utilities;
        const QString copy = utilities.Own("copy.tv3");
        // Beside the new file it would be taken for a journal of that one.
        const QString journal = utilities.Own("copy.tv3-journal");
        Write(copy, "old");
        Write(journal, "old");
        // A backup that fails half-way keeps the older one.
        QVERIFY(QDir(copy + ".new").mkpath("."));
        utilities.Do("exportuser", copy, {QMessageBox::Yes, QMessageBox::Ok});
        QVERIFY(utilities.window.modals.TakeTexts().last().startsWith(UserNotStored + "\r\n"));
        QCOMPARE(Bytes(copy), QByteArray("old"));
        QVERIFY(QDir().rmdir(copy + ".new"));
        utilities.Do("exportuser", copy, {QMessageBox::No});
        QVERIFY(Bytes(copy) == "old" && QFile::exists(journal));
        utilities.Do("exportuser", copy, {QMessageBox::Yes, QMessageBox::Ok});
        QVERIFY(Bytes(copy) != "old" && !QFile::exists(journal));
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
        QList<QMessageBox::StandardButton> answers{QMessageBox::Ok};
        if (button.startsWith("export"))
            answers.prepend(QMessageBox::Yes);
        utilities.Do(button, utilities.window.files.Path(name), answers);
        QCOMPARE(utilities.window.modals.TakeTexts().last(), message);
        QCOMPARE(Bytes(utilities.window.files.Path(name)), bytes);
    }

    void OwnFileUnderAnotherNameIsNoTarget()
    {
        Utilities utilities;
        const auto refused = [&](const QString& path, const QList<QMessageBox::StandardButton>& answers) {
            utilities.Do("exportdraw", path, answers);
            QVERIFY(utilities.window.modals.TakeTexts().value(answers.size() - 1).startsWith(DrawNotStored + "\r\n"));
        };
        QVERIFY(QFile::link(utilities.window.files.Path("userdata.tv3"), utilities.Own("other.tv3")));
        refused(utilities.Own("other.tv3"), {QMessageBox::Yes, QMessageBox::Ok});
        for (const char* workingFile : {"drawdata.tp0", "userdata.tp2", "userdata.tv3.new", "userdata.tv3-journal"})
            refused(utilities.window.files.Path(workingFile), {QMessageBox::Ok});
        Utilities::StartAgain();
        QCOMPARE(Utilities::Rows(), utilities.rows);
    }

    void ImportReplacesOneFileOnly_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("other");
        QTest::addColumn<QString>("message");
        QTest::newRow("draw") << "drawdata.tv3"
                              << "userdata.tv3"
                              << "The draw record database has been replaced.";
        QTest::newRow("user") << "userdata.tv3"
                              << "drawdata.tv3"
                              << "The user entry database has been replaced.";
    }

    void ImportReplacesOneFileOnly()
    {
        QFETCH(QString, name);
        QFETCH(QString, other);
        QFETCH(QString, message);
        Utilities utilities;
        QFile::copy(TAVENOR_STARTER "/" + name, utilities.Own(name));
        QFile::setPermissions(utilities.Own(name), QFile::ReadOwner);
        const QByteArray untouched = Bytes(utilities.window.files.Path(other));
        utilities.Do("import" + name.left(4), utilities.Own(name), {QMessageBox::Ok});
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
        row("short", "importdraw", [](const QString& file) { Write(file, "SQLite"); });
        row("zeros", "importuser", [](const QString& file) { Write(file, QByteArray(8192, '\0')); });
        row("a heading only", "importuser",
            [](const QString& file) { Write(file, QByteArray("SQLite format 3\0", 16)); });
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
