#include "support/disk_calls.h"
#include "support/failure_of.h"
#include "support/forked.h"
#include "support/raw_file.h"
#include "support/test_window.h"

#include "store/draw_changes.h"
#include "store/entry_changes.h"
#include "store/user_changes.h"
#include "utilities/backup.h"
#include "utilities/database_file.h"
#include "utilities/import.h"

#include <cerrno>
#include <csignal>

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

/// What players do from the start to the end; what was done and what failed is said.
void Work(const std::filesystem::path& own, const Say& say)
{
    const auto step = [&say](const QString& done, const std::function<void()>& action) {
        const FailureOf failed(action);
        say(failed.reason.isEmpty() ? done : "told: " + failed.reason);
        return failed.reason.isEmpty();
    };
    if (step("opened", OpenDatabaseFiles)) {
        step("draw", [] { StoreNewDraw(MainGame, {QDate(2020, 1, 4), {1, 2, 3, 4, 5, 6, 7}, "LANCELOT", "1"}); });
        step("batch", [] { StoreEntriesOfUser("Ann", std::vector<EntryRow>(Batch), {}, RaiseLimit::No); });
        step("user gone", [] { DeleteUserWithEntries(ReadAllUsers(users).at(1)); });
        CloseDatabaseFiles();
        step("copied", [&] { BackUp(UserDatabaseFile(), own / "copy.tv3"); });
        step("replaced", [&] {
            Import import(DrawDatabaseFile(), own / "good.tv3");
            import.Prove();
            import.Complete();
        });
        if (const QString failed = CloseAndCompactFiles(); !failed.isEmpty())
            say("told: " + failed);
    }
    say(DiskFaultCame ? "a call failed" : "none failed");
}

/// What the files hold of it: a thing is done wholly, or not, or only half.
QStringList StoredFacts()
{
    ukmain.MoveFirst();
    const bool imported = ukmain.Text(DrawField::Machine) == "MERLIN";
    const int ofAnn = CountEntries(entries, 1);
    const int ofBen = CountEntries(entries, 2);
    const auto fact = [](const char* done, bool none, bool whole) {
        return done + QString(none ? "=no" : whole ? "=yes" : "=half");
    };
    return {fact("draw", ukmain.Count() == 1 && !imported, ukmain.Count() == 2 || imported),
            fact("batch", ofAnn == 0, ofAnn == Batch),
            fact("user gone", users.Count() == 2 && ofBen == BensEntries, users.Count() == 1 && ofBen == 0),
            fact("replaced", !imported, ukmain.Count() == 1)};
}

} // namespace

class InterruptedRunTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Every call meets the fault, or every third one.
    void Stopped() { NothingAcknowledgedIsLost(DiskFault::Stop, 0, 1); }
    void PowerCut() { NothingAcknowledgedIsLost(DiskFault::PowerCut, 0, 1); }
    void OneCallFails() { NothingAcknowledgedIsLost(DiskFault::OneFailure, EIO, 1); }
    void FullFromThenOn() { NothingAcknowledgedIsLost(DiskFault::FailuresFromThen, ENOSPC, 3); }
    void BrokenFromThenOn() { NothingAcknowledgedIsLost(DiskFault::FailuresFromThen, EIO, 3); }

private:
    static void NothingAcknowledgedIsLost(DiskFault fault, int error, int step)
    {
        const TestFolder folder(TestFolder::Content::Empty);
        const QTemporaryDir own;
        const QTemporaryDir beforeAll;
        const std::filesystem::path before = beforeAll.path().toStdString();
        const std::filesystem::path ownFolder = own.path().toStdString();
        OpenDatabaseFiles();
        StoreDraws(MainGame, {"2000-01-01,1,2,3,4,5,6,7,ARTHUR,1"});
        AddUser(users, "Ann", Batch);
        AddUser(users, "Ben", BensEntries);
        StoreEntriesOfUser("Ben", std::vector<EntryRow>(BensEntries), {}, RaiseLimit::No);
        CloseDatabaseFiles();
        std::filesystem::copy(ProgramDir, before);
        std::filesystem::copy(DrawDataPath, ownFolder / "good.tv3");
        RunSql(ownFolder / "good.tv3", DrawConnect, "UPDATE ukmain SET Machine = 'MERLIN'");
        int call = 1;
        int faults = 0;
        int acknowledged = 0;
        for (bool more = true; more; call += step * Stride, faults += more ? 1 : 0) {
            using Options = std::filesystem::copy_options;
            std::filesystem::copy(before, ProgramDir, Options::overwrite_existing | Options::recursive);
            std::filesystem::remove(ownFolder / "copy.tv3");
            const Forked first = RunForked([&](const Say& say) {
                PlanDiskFault(fault, call, error, {ProgramDir, ownFolder});
                Work(ownFolder, say);
            });
            more = !first.lines.contains("none failed");
            const Forked next = RunForked([](const Say& say) {
                OpenDatabaseFiles();
                say(StoredFacts().join(u'\n'));
                say("end: " + CloseAndCompactFiles());
            });
            const QString found = u"call %1: %2; found: %3"_s.arg(call).arg(first.Text(), next.Text());
            QVERIFY2(first.signal == (more && error == 0 ? SIGKILL : 0) && first.code == 0, qPrintable(found));
            QVERIFY2(next.code == 0 && next.signal == 0 && next.lines.value(4) == "end: ", qPrintable(found));
            for (const QString& fact : next.lines.first(4)) {
                const bool said = first.lines.contains(fact.section(u'=', 0, 0));
                acknowledged += said ? 1 : 0;
                QVERIFY2(!fact.endsWith("half") && (!said || fact.endsWith("yes")), qPrintable(found));
            }
            if (first.lines.contains("copied"))
                InAnotherCopy(ownFolder / "copy.tv3", {}, UsersTable(),
                              [](RecordSet& copied) { QVERIFY(copied.Count() > 0); });
            QVERIFY2(folder.Files() == (QStringList{"drawdata.tv3", "userdata.tv3"}), qPrintable(found));
            if (!more)
                QCOMPARE(first.lines.join(u' '), "opened draw batch user gone copied replaced none failed");
            // Only what is no part of storing, such as the syncing of a folder, may fail without a word.
            if (more && fault == DiskFault::FailuresFromThen)
                QVERIFY2(first.Text().contains(error == ENOSPC ? "the disk is full" : "told: "), qPrintable(found));
        }
        QVERIFY(call > 70);
        qInfo("%d faults, %d acknowledged changes, all of them found", faults, acknowledged);
    }
};

TAVENOR_TEST(InterruptedRunTest)
#include "interrupted_run_test.moc"
