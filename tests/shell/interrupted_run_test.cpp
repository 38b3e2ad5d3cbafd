#include "support/disk_calls.h"
#include "support/forked.h"
#include "support/raw_file.h"
#include "support/test_window.h"

#include "utilities/start_and_end.h"

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

#ifdef __SANITIZE_ADDRESS__
// What is looked for here the plain build finds; this one would take minutes to meet every call.
constexpr int Stride = 5;
#else
constexpr int Stride = 1;
#endif
constexpr int BensEntries = 300;
constexpr int Batch = 20;
const QStringList TwoFiles{"drawdata.tv3", "userdata.tv3"};

/// The program's window, and a run in it from the start to the end through the handlers of its pages.
class Run
{
public:
    Run()
    {
        StoreDraws(MainGame, {"2000-01-01,1,2,3,4,5,6,7,ARTHUR,1"});
        Transaction transaction(UserDb, "");
        AddUser(users, "Ann", Batch);
        AddUser(users, "Ben", BensEntries);
        for (int entry = 1; entry <= BensEntries; ++entry)
            AddEntry(entries, EntryRow{entry, 2, 1, {1, 2, 3, 4, 5, 6}, {true}});
        transaction.Commit();
        CloseDatabaseFiles();
        Copy(window.files.Path({}), before.path());
        QFile::copy(window.files.Path("drawdata.tv3"), own.filePath("good.tv3"));
        RunSql(own.filePath("good.tv3").toStdString(), DrawConnect, "UPDATE ukmain SET Machine = 'MERLIN'");
        QFile::copy(window.files.Path("userdata.tv3"), own.filePath("garbage.tv3"));
        for (int page = 0; page <= 26; ++page)
            window.Window().Page(page);
        window.modals.WillAlwaysDo([this](QDialog& dialog) { Answer(dialog); });
    }

    static void Copy(const QString& from, const QString& to)
    {
        for (const QString& name : QDir(to).entryList(QDir::Files))
            QFile::remove(QDir(to).filePath(name));
        for (const QString& name : TwoFiles)
            QFile::copy(QDir(from).filePath(name), QDir(to).filePath(name));
    }

    /// What the player does; what the program says of it is said on.
    void Work(const QString& imported, const ForkedProcess::Say& say)
    {
        EndProcess = [&] {
            Tell(say);
            say(u"ended, fault "_s + QString::number(DiskFaultCame()));
            ::_exit(0);
        };
        const NoPainting blank;
        OpenDatabases();
        window.OpenPage(1, 1);
        for (int ball = 0; ball < 7; ++ball)
            window.Find<QLineEdit>(u"F6MBall1_%1"_s.arg(ball))->setText(QString::number(9 + ball));
        Press("F6Store", say);
        window.OpenPage(4, 1);
        ChooseFirst("F26combo_0");
        ChooseFirst("F26combo_1");
        window.Find<QLineEdit>("F26text")->setText(QString::number(Batch));
        window.Press("F26text", Qt::Key_Return);
        Press("F26go", say);
        Press("F26store", say);
        window.OpenPage(3, 1);
        auto* list = window.Find<QListWidget>("F11list");
        list->setCurrentRow(1);
        Press("F11deleteuser", say);
        if (list->count() == 1)
            say("The user is gone.");
        window.Window().ShowStartPage();
        for (const auto& [button, file] : {std::pair("exportuser", QString("copy.tv3")), {"importdraw", imported}}) {
            utility = button;
            chosen = own.filePath(file);
            Press("advanced", say);
        }
        window.Window().close();
    }

    TestWindow window;
    QTemporaryDir before;
    QTemporaryDir own;

private:
    void ChooseFirst(const QString& list)
    {
        window.Find<QComboBox>(list)->setCurrentIndex(0);
        Q_EMIT window.Find<QComboBox>(list)->activated(0);
    }
    void Press(const QString& button, const ForkedProcess::Say& say)
    {
        window.Find<QAbstractButton>(button)->click();
        Tell(say);
    }
    void Tell(const ForkedProcess::Say& say)
    {
        for (const QString& text : window.modals.TakeTexts())
            say("told: " + QString(text).replace("\r\n", " "));
    }
    /// What the player does in every window that is no message box.
    void Answer(QDialog& dialog)
    {
        QTimer::singleShot(0, &dialog, [this, &dialog] {
            const QString name = dialog.objectName();
            if (auto* path = dialog.findChild<QLineEdit*>("fileNameEdit")) {
                path->setText(chosen);
                path->setFocus();
                QTest::keyClick(path, Qt::Key_Return);
            } else if (name == "frmday"_L1) {
                dialog.findChild<QAbstractButton*>("check1_2")->click();
                dialog.findChild<QAbstractButton*>("store")->click();
            } else {
                dialog.findChild<QAbstractButton*>(utility)->click();
            }
            dialog.close();
        });
    }

    QString utility;
    QString chosen;
};

/// What the files hold, in the words in which the run tells of it: a fact is there wholly, or not, or only half.
QMap<QString, QString> StoredFacts()
{
    QMap<QString, int> entriesOf;
    for (const QString& entry : TestFolder::StoredRows("entries"))
        ++entriesOf[entry.section(u',', 1, 1)];
    const QStringList people = TestFolder::StoredRows("users");
    const QStringList draws = TestFolder::StoredRows("ukmain");
    const auto fact = [](bool none, bool whole) { return none ? "no" : whole ? "yes" : "half"; };
    const bool imported = draws.join(u',').contains("MERLIN");
    return {{"entries have been stored", fact(entriesOf["1"] == 0, entriesOf["1"] == Batch)},
            {"user is gone", fact(people.size() == 2 && entriesOf["2"] == BensEntries,
                                  people == QStringList{"1,Ann,20"} && entriesOf["2"] == 0)},
            {"main draw data has been stored", fact(draws.size() == 1, draws.size() == 2)},
            {"record database has been replaced", fact(!imported, draws.size() == 1)}};
}

} // namespace

class InterruptedRunTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Every call meets the fault, or every third one.
    void Stopped() { NothingAcknowledgedIsLost(DiskFault::Stop, 0, "good.tv3", 1); }
    void StoppedWithABadImport() { NothingAcknowledgedIsLost(DiskFault::Stop, 0, "garbage.tv3", 3); }
    void PowerCut() { NothingAcknowledgedIsLost(DiskFault::PowerCut, 0, "good.tv3", 1); }
    void OneCallFails() { NothingAcknowledgedIsLost(DiskFault::OneFailure, EIO, "good.tv3", 1); }
    void FullFromThenOn() { NothingAcknowledgedIsLost(DiskFault::FailuresFromThen, ENOSPC, "good.tv3", 3); }
    void BrokenFromThenOn() { NothingAcknowledgedIsLost(DiskFault::FailuresFromThen, EIO, "good.tv3", 3); }

private:
    static void NothingAcknowledgedIsLost(DiskFault fault, int error, const QString& imported, int step)
    {
        Run run;
        const QString folder = run.window.files.Path({});
        int call = 1;
        int faults = 0;
        int acknowledged = 0;
        for (bool more = true; more; call += step * Stride, faults += more ? 1 : 0) {
            Run::Copy(run.before.path(), folder);
            QFile::remove(run.own.filePath("copy.tv3"));
            const Forked first = RunForked([&](const ForkedProcess::Say& say) {
                PlanDiskFault(fault, call, error,
                              fault == DiskFault::PowerCut
                                  ? std::vector<std::filesystem::path>{ProgramDir, run.own.path().toStdString()}
                                  : std::vector<std::filesystem::path>{});
                run.Work(imported, say);
            });
            const QString told = first.Text();
            more = first.signal == SIGKILL || first.lines.contains("ended, fault 1");
            QVERIFY2(first.signal == (more && error == 0 ? SIGKILL : 0) && first.code == 0, qPrintable(told));
            const Forked next = RunForked([&](const ForkedProcess::Say& say) {
                EndProcess = [] { ::_exit(3); };
                OpenDatabases();
                const QMap<QString, QString> facts = StoredFacts();
                for (auto fact = facts.begin(); fact != facts.end(); ++fact)
                    say(fact.key() + u'=' + fact.value());
                say("end: " + CloseAndCompactFiles());
            });
            const QString found = u"call %1: %2; found: %3"_s.arg(call).arg(told, next.Text());
            QVERIFY2(next.code == 0 && next.signal == 0 && next.lines.size() == 5, qPrintable(found));
            for (const QString& fact : next.lines.first(4)) {
                const bool said = told.contains(fact.section(u'=', 0, 0));
                const bool replaced = fact.startsWith("main") && found.contains("replaced=yes");
                acknowledged += said ? 1 : 0;
                QVERIFY2(!fact.endsWith("half") && (!said || replaced || fact.endsWith("yes")), qPrintable(found));
            }
            if (told.contains("A copy of"))
                InAnotherCopy(run.own.filePath("copy.tv3").toStdString(), {}, UsersTable(),
                              [](RecordSet& copied) { QVERIFY(copied.Count() > 0); });
            QVERIFY2(next.lines.last() == "end: " && run.window.files.Files() == TwoFiles, qPrintable(found));
            QVERIFY2(imported == "good.tv3" || !found.contains("replaced=yes"), qPrintable(found));
            if (!more)
                QVERIFY2(imported == "good.tv3" ? told.contains("has been replaced") : told.contains("database files"),
                         qPrintable(found));
            // Only what is no part of storing, such as the syncing of a folder, may fail without a word.
            else if (fault == DiskFault::FailuresFromThen)
                QVERIFY2(told.contains("could not be") || told.contains("problem with"), qPrintable(found));
        }
        QVERIFY(call > 70);
        qInfo("%d faults, %d acknowledged changes, all of them found", faults, acknowledged);
    }
};

TAVENOR_TEST(InterruptedRunTest)
#include "interrupted_run_test.moc"
