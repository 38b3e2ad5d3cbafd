#include "support/file_bytes.h"
#include "support/full_disk.h"
#include "support/raw_file.h"
#include "support/test_window.h"

#include "records/file_lock.h"
#include "utilities/start_up.h"

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
    void WindowAndDialogHaveTheirControls()
    {
        Utilities utilities;
        QStringList seen;
        utilities.window.modals.WillDo([&](QDialog& advanced) {
            seen = {advanced.objectName(), advanced.windowTitle()};
            for (const char* name :
                 {"Label_0", "Label_1", "Label_2", "exportdraw", "importdraw", "exportuser", "importuser", "back"})
                seen.append(advanced.findChild<QWidget*>(name)->property("text").toString());
            PressIn(advanced, "back");
        });
        utilities.window.Click("advanced");
        QCOMPARE(seen.join('|'), QString("frmadvanced|Tavenor 3 --- Advanced Options|Database Utilities|Draw Records|"
                                         "User Entries|Backup Draw Database|Import Updated Draw Database|"
                                         "Backup User Entry Database|Import User Entry Database|BACK"));
        const QByteArray draws = BytesOf(utilities.Live("draw"));
        for (const QString button : {"exportdraw", "importdraw", "exportuser", "importuser"}) {
            utilities.Choose(button, [&](QFileDialog& dialog) {
                seen = QStringList{dialog.objectName(), dialog.findChild<QLineEdit*>("fileNameEdit")->text()} +
                       dialog.nameFilters();
                dialog.reject();
            });
            utilities.window.Click("advanced");
            QCOMPARE(seen, (QStringList{"CommonDialog1", button.mid(6) + "data.tv3", "Tavenor 3 Files (*.tv3)"}));
        }
        QCOMPARE(BytesOf(utilities.Live("draw")), draws);
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
        // Beside the new file it would be taken for a journal of that one.
        const QString journal = utilities.Own("copy.tv3-journal");
        WriteBytes(copy, "old");
        WriteBytes(journal, "old");
        // A backup that fails half-way keeps the older one.
        QVERIFY(QDir(copy + ".new").mkpath("."));
        utilities.Do("exportuser", copy, {QMessageBox::Yes, QMessageBox::Ok});
        QVERIFY(utilities.window.modals.TakeTexts().last().startsWith(UserNotStored + "\r\n"));
        QCOMPARE(BytesOf(copy), QByteArray("old"));
        QVERIFY(QDir().rmdir(copy + ".new"));
        utilities.Do("exportuser", copy, {QMessageBox::No});
        QVERIFY(BytesOf(copy) == "old" && QFile::exists(journal));
        utilities.Do("exportuser", copy, {QMessageBox::Yes, QMessageBox::Ok});
        QVERIFY(BytesOf(copy) != "old" && !QFile::exists(journal));
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
        for (const QString own : {"drawdata.tp0", "userdata.tp2", "userdata.tv3.new", "userdata.tv3-journal"})
            refused("exportdraw", utilities.window.files.Path(own), DrawNotStored + "\r\n");
        QFile::copy(TAVENOR_STARTER "/userdata.tv3", utilities.Own("unfinished.tv3"));
        WriteBytes(utilities.Own("unfinished.tv3-journal"), "rows");
        refused("importuser", utilities.Own("unfinished.tv3"),
                UserNotAltered + "\r\nThe file userdata.tv3 could not be replaced, because the chosen file");
        QCOMPARE((QList<QByteArray>{BytesOf(utilities.Live("draw")), BytesOf(utilities.Live("user"))}), bytes);
    }

    void LeftoversAreClearedAwayWhereTheyCan()
    {
        Utilities utilities;
        QVERIFY(QDir().mkdir(utilities.window.files.Path("drawdata.tp1")));
        WriteBytes(utilities.window.files.Path("drawdata.tp2"), "left");
        Utilities::StartAgain();
        QVERIFY(!utilities.window.ended);
        QCOMPARE(utilities.window.files.Files(), BothFiles);
        QCOMPARE(Utilities::Rows(), utilities.rows);
    }

    void ImportReplacesOneFileOnly()
    {
        for (const Kind& kind : Kinds) {
            Utilities utilities;
            const QString other = utilities.Live(kind.name == "draw" ? "user" : "draw");
            const QString chosen = utilities.Own("chosen.tv3");
            QFile::copy(TAVENOR_STARTER "/" + kind.name + "data.tv3", chosen);
            QFile::setPermissions(chosen, QFile::ReadOwner);
            const QByteArray untouched = BytesOf(other);
            utilities.Do("import" + kind.name, chosen, {QMessageBox::Ok});
            QCOMPARE(utilities.window.modals.TakeTexts(), QStringList{kind.replaced});
            QCOMPARE(BytesOf(utilities.Live(kind.name)), BytesOf(chosen));
            QCOMPARE(BytesOf(other), untouched);
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
            utilities.Do("import" + kind, bad, {QMessageBox::Ok});
            const QList<SeenBox> seen = utilities.window.modals.TakeSeen();
            QVERIFY2(seen.size() == 1 && seen[0].icon == QMessageBox::Critical && utilities.window.ended, name);
            QVERIFY(seen[0].text.startsWith("There is a problem with the database files."));
            Utilities::StartAgain();
            QVERIFY2(Utilities::Rows() == utilities.rows, name);
            QCOMPARE(utilities.window.files.Files(), BothFiles);
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
        fails("importdraw", 100, 40000, DrawNotAltered + "\r\nThe file drawdata.tp0");
        fails("importuser", 200000, 150000, UserNotAltered + "\r\nThe file userdata.tv3");
    }

    void AnotherRunningCopyIsRespected()
    {
        Utilities utilities;
        const QString live = utilities.Live("user");
        FileLock otherCopy;
        otherCopy.Share(live.toStdString(), "The other copy could not open the file");
        const QByteArray bytes = BytesOf(live);
        const auto told = [&](const QString& button) {
            utilities.Do(button, utilities.Own("copy.tv3"), {QMessageBox::Ok});
            return utilities.window.modals.TakeTexts().value(0);
        };
        QCOMPARE(told("exportuser"), Kinds[1].stored);
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
