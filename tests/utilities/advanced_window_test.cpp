#include "support/file_bytes.h"
#include "support/test_window.h"

#include "store/user_changes.h"

#include <QDir>
#include <QFileDialog>

namespace {

/// The program with draws and two users in it, one of them deleted, and a folder for the player's own files.
class Utilities : public TestWindow
{
public:
    Utilities() : TestWindow(TestFolder::Content::Starter)
    {
        AddUser(users, QString(30000, u'x'), 5);
        AddUser(users, "Ann", 5);
        DeleteUserWithEntries(ReadAllUsers(users).at(0));
    }

    QString Live(const QString& kind) const { return files.Path(kind + "data.tv3"); }

    /// Presses a button of frmadvanced and, in the file dialog, Enter on a path or, where that is empty, on the offered
    /// name; without one it cancels. What the messages that follow say comes back.
    QStringList Do(const QString& button, const QString& path, const QList<QMessageBox::StandardButton>& answers)
    {
        modals.WillDo([button](QDialog& advanced) {
            // The look-out for modal windows must be free again before the button opens the next one.
            QTimer::singleShot(0, &advanced, [&advanced, button] {
                PressIn(advanced, button);
                QTest::keyClick(&advanced, Qt::Key_Escape);
            });
        });
        modals.WillDo([this, path](QDialog& opened) {
            auto& dialog = dynamic_cast<QFileDialog&>(opened);
            auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
            asked = QStringList{dialog.windowTitle(), name->text(), dialog.directory().path()};
            QTimer::singleShot(0, &dialog, [&dialog, name, path] {
                if (!path.isEmpty())
                    name->setText(path);
                if (!path.isNull())
                    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
                // Still there when the question about overwriting was answered with No.
                if (dialog.isVisible())
                    dialog.reject();
            });
        });
        for (const auto answer : answers)
            modals.WillPress(answer);
        Click("advanced");
        return modals.TakeTexts();
    }

    QTemporaryDir own;
    /// The title of the last file dialog, the name that it offered, and its folder.
    QStringList asked;
};

} // namespace

class AdvancedWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void DialogsOpenWhereTheirFilesAre()
    {
        Utilities window;
        const QString home = QDir::homePath();
        // A folder that is made in the home folder, and where the dialogs open then.
        for (const auto& [made, saving, importing] : {std::tuple("", "", ""),
                                                      {"Documents", "/Documents", "/Documents"},
                                                      {"Downloads", "/Documents", "/Downloads"}}) {
            QCOMPARE(QDir(home).mkdir(made), *made != '\0');
            window.Do("exportdraw", {}, {});
            QCOMPARE(window.asked, (QStringList{"Backup", "drawdata.tv3", home + saving}));
            window.Do("importuser", {}, {});
            QCOMPARE(window.asked, (QStringList{"Import", "userdata.tv3", home + importing}));
        }
        const QString stored = home + "/Documents/userdata.tv3";
        window.Do("exportuser", "", {QMessageBox::Ok});
        QCOMPARE(BytesOf(stored), BytesOf(window.Live("user")));
        QVERIFY(QFile::remove(stored) && QDir(home).rmdir("Documents") && QDir(home).rmdir("Downloads"));
        // The dialogs leave nothing of their own there.
        QCOMPARE(QDir(home).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList());
    }

    void EachActionTellsWhatCameOfIt()
    {
        for (const auto& [kind, database, stored, replaced] :
             {std::tuple(QString("draw"), "The draw database", "A copy of the draw record database has been stored.",
                         "The draw record database has been replaced."),
              {"user", "The user entry database", "A copy of the user entry database has been stored.",
               "The user entry database has been replaced."}}) {
            Utilities window;
            const QString copy = window.own.filePath("copy.tv3");
            const int draws = ukmain.Count();
            const qint64 before = BytesOf(window.Live(kind)).size();
            QCOMPARE(window.Do("export" + kind, window.own.filePath("copy"), {QMessageBox::Ok}), QStringList{stored});
            const QByteArray compacted = BytesOf(window.Live(kind));
            QVERIFY(BytesOf(copy) == compacted && (kind == "draw" || compacted.size() < before));
            QCOMPARE(window.Do("export" + kind, copy, {QMessageBox::No}).size(), 1);
            AddUser(users, "Bob", 1);
            ukmain.MoveLast();
            ukmain.Delete();
            QCOMPARE(window.Do("import" + kind, copy, {QMessageBox::Ok}), QStringList{replaced});
            QCOMPARE(BytesOf(window.Live(kind)), compacted);
            QCOMPARE(users.Count(), kind == "draw" ? 2 : 1);
            QCOMPARE(ukmain.Count(), kind == "draw" ? draws : draws - 1);
            const QString notStored = database + QString(" has not been stored.");
            const QString notAltered = database + QString(" has not been altered.");
            for (const QString& live : {window.Live("draw"), window.Live("user")}) {
                QCOMPARE(window.Do("export" + kind, live, {QMessageBox::Yes, QMessageBox::Ok}).last(),
                         "You can't overwrite the current database files,\r\n" + notStored);
                QCOMPARE(window.Do("import" + kind, live, {QMessageBox::Ok}),
                         QStringList{"You can't use the current database files,\r\n" + notAltered});
            }
            const QString told =
                window.Do("export" + kind, window.files.Path("drawdata.tp1"), {QMessageBox::Ok}).value(0);
            QVERIFY(told.startsWith(notStored + "\r\nThe file " + kind + "data.tv3 could not be copied, because "));
            WriteBytes(copy, QByteArray(100000, 'g'));
            QVERIFY(window.Do("import" + kind, copy, {QMessageBox::Ok})
                        .value(0)
                        .startsWith("There is a problem with the database files."));
            QVERIFY(window.ended && users.Count() > 0 && BytesOf(window.Live(kind)) == compacted);
            QCOMPARE(window.files.Files(), (QStringList{"drawdata.tv3", "userdata.tv3"}));
        }
    }
};

TAVENOR_TEST(AdvancedWindowTest)
#include "advanced_window_test.moc"
