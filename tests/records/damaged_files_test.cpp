// Damages a file in many ways and walks every rule over both: damaged_files_test SEED COUNT. Each case either works or
// is refused; it may not crash, take more than 2 seconds of the processor (6 under the sanitizers) for a step, or 256
// MiB.

#include "support/failure_of.h"
#include "support/file_bytes.h"
#include "support/forked.h"
#include "support/raw_file.h"

#include "analysis/ball_data.h"
#include "analysis/charts.h"
#include "checking/check_report.h"
#include "game/game.h"
#include "records/key_store.h"
#include "store/draw_changes.h"
#include "store/entry_changes.h"
#include "store/open_databases.h"
#include "store/user_changes.h"
#include "store/user_records.h"

#include <QDir>
#include <QTemporaryDir>

#include <algorithm>
#include <random>
#include <sys/time.h>

using namespace Qt::StringLiterals;

#ifdef __SANITIZE_ADDRESS__
constexpr unsigned LongestSeconds = 6;
// Freed memory that the sanitizer keeps back would be taken for the program's own.
extern "C" const char* __asan_default_options()
{
    return "quarantine_size_mb=4:malloc_context_size=5";
}
#else
constexpr unsigned LongestSeconds = 2;
#endif

namespace {

constexpr qsizetype Page = 4096;

/// Everything random; the seed fixes each case.
std::mt19937 chance;

int Below(qsizetype bound)
{
    return static_cast<int>(chance() % static_cast<unsigned>(std::max<qsizetype>(bound, 1)));
}

/// One of some texts with a blank or another character between them.
QString OneOf(const char* texts, char between = ' ')
{
    const QStringList items = QString(texts).split(QLatin1Char(between));
    return items[Below(items.size())];
}

QByteArray Damaged(QByteArray file)
{
    for (int change = Below(6); change >= 0 && file.size() > Page; --change) {
        const int pages = static_cast<int>(file.size() / Page);
        const qsizetype page = Below(pages) * Page;
        const qsizetype place = Below(file.size() - 600);
        switch (Below(6)) {
        case 0:
            file[place] = static_cast<char>(file[place] ^ (1 << Below(8)));
            break;
        case 1:
            std::generate_n(file.begin() + place, Below(600), [] { return static_cast<char>(Below(256)); });
            break;
        case 2:
            file.replace(page, Page, file.mid(Below(pages) * Page, Page));
            break;
        case 3:
            file.truncate(Below(2) == 0 ? place : page);
            break;
        case 4:
            // The heads of pages: kinds, counts, lengths.
            file[page + Below(120)] = "\x00\x01\x02\x05\x0a\x0d\x7f\x80\xff"[Below(9)];
            break;
        default:
            // The number of a page that leads on.
            file.replace(place, 4, QByteArray(3, '\0') + static_cast<char>(1 + Below(pages)));
        }
    }
    return file;
}

/// What anybody's tool could do to a file with the password.
std::string DamagingSql(bool draws)
{
    const QStringList field = OneOf(draws ? "ukmain.DrawId ukmain.Date ukmain.Ball1 ukmain.Ball5 ukmain.BallSet "
                                            "ukthunder.DrawId ukthunder.Date ukthunder.Ball5 links.SiteName"
                                          : "users.UserId users.UserName users.SpendLimit entries.EntryId "
                                            "entries.UserId entries.DrawType entries.Ball1 entries.Sunday")
                                  .split(u'.');
    const QString value =
        OneOf("NULL '' 0 -1 3.7 49 9e999 -9e999 1e308 9223372036854775807 -9223372036854775808 x'00ff' "
              "'2020-02-31' '0x10' CAST(x'ff80c0ed'AS\tTEXT) 'a'||char(0)||'b' char(8238,769,10) "
              "hex(zeroblob(%1)) zeroblob(900000)")
            .replace(u"%1"_s, QString::number(Below(1500000)));
    const char* const rows = "UPDATE %1 SET %2 = %3 WHERE rowid % %4 = 0|INSERT INTO %1(%2) VALUES (%3)";
    const char* const schema =
        "DELETE FROM %1 WHERE rowid % %4 = 0|DELETE FROM %1|DROP TABLE %1|ALTER TABLE %1 ADD more|"
        "ALTER TABLE %1 DROP %2|ALTER TABLE %1 RENAME %2 TO other|ALTER TABLE %1 RENAME TO x|"
        "UPDATE %1 SET rowid = -rowid|CREATE UNIQUE INDEX i ON %1(%2)|"
        "UPDATE %1 SET rowid = 9223372036854775807 WHERE rowid = 1|PRAGMA journal_mode = WAL|"
        "PRAGMA auto_vacuum = 1; VACUUM|PRAGMA page_size = 1024; VACUUM|"
        "UPDATE sqlite_master SET rootpage = rootpage + 1|UPDATE sqlite_master SET rootpage = 2|"
        "UPDATE sqlite_master SET rootpage = 0|UPDATE sqlite_master SET type = 'view'|"
        "UPDATE sqlite_master SET name = upper(name)|"
        "UPDATE sqlite_master SET sql = replace(sql, 'INTEGER', %3)";
    QString sql = OneOf(Below(2) == 0 ? rows : schema, '|');
    sql.replace("%1", field[0])
        .replace("%2", field[1])
        .replace("%3", value)
        .replace("%4", QString::number(1 + Below(50)));
    return "PRAGMA writable_schema = 1;" + sql.toStdString();
}

void WalkGame(const Game& game)
{
    for (int ball = 1; ball <= game.highestMain; ++ball)
        (void)DescribeBall(game, BallType::MainBalls, ball);
    std::vector<CheckedUser> checked;
    for (const UserRow& user : ReadAllUsers(users))
        checked.push_back({user.number, user.name});
    const CheckedGame one{&game, CheckedDraw{QDate(2020, 1, 4), {1, 2, 3, 4, 5, 6, 7}}};
    WriteCheckReport(checked, {&one, 1}, ReadAllEntries(entries));
    if (!checked.empty() && !ExceedsSpendLimit(checked.back().name, 1))
        StoreEntriesOfUser(checked.back().name, {EntryRow{}}, {}, RaiseLimit::No);
}

void ChangeRows()
{
    StoreNewDraw(MainGame, {QDate(2020, 1, 4), {1, 2, 3, 4, 5, 6, 7}, "MERLIN", "1"});
    ukmain.MoveFirst();
    DeleteDraws(MainGame, {ukmain.Mark()});
    StoreNewUser("New", 5);
    DeleteUserWithEntries(ReadAllUsers(users).at(0));
}

/// Whether every rule works on the files. Each has its own time, after which the process is killed.
bool EveryRuleWorks()
{
    std::vector<std::function<void()>> steps{OpenDatabaseFiles, ReadEveryRow};
    for (const Chart& chart : AllCharts())
        steps.emplace_back([&chart] { (void)CountBars(chart, chart.ballType); });
    for (const Game* game : {&MainGame, &ThunderballGame})
        steps.emplace_back([game] { WalkGame(*game); });
    steps.emplace_back(ChangeRows);
    bool works = true;
    steps.emplace_back([&works] { works = CloseAndCompactFiles().isEmpty() && works; });
    for (const auto& step : steps) {
        const itimerval time{{}, {LongestSeconds, 0}};
        ::setitimer(ITIMER_PROF, &time, nullptr);
        if (!FailureOf(step).reason.isEmpty())
            works = false;
    }
    return works;
}

/// Turns a bit of every eighth page that the engine has read and keeps in the clear, often in the page's head.
void DamagePage(sqlite3_pcache* /*cache*/, sqlite3_pcache_page* page, int /*discard*/)
{
    static_cast<quint8*>(page->pBuf)[Below(Below(Page))] ^= static_cast<quint8>((Below(8) == 0 ? 1 : 0) << Below(8));
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 3)
        return 2;
    const unsigned seed = QByteArray(arguments[1]).toUInt();
    const int cases = QByteArray(arguments[2]).toInt();
    const QTemporaryDir folder;
    SetProgramDir(folder.path().toStdString());
    const QString drawFile = folder.filePath(u"drawdata.tv3"_s);
    const QString userFile = folder.filePath(u"userdata.tv3"_s);
    QFile::copy(QStringLiteral(TAVENOR_STARTER "/drawdata.tv3"), drawFile);
    QFile::copy(QStringLiteral(TAVENOR_STARTER "/userdata.tv3"), userFile);
    RunSql(UserDataPath, {},
           "INSERT INTO users VALUES (1, 'Ann', 4000), (2, 'Ben', 4000);"
           "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 4000) INSERT INTO entries "
           "SELECT i, 1 + i % 3, 1 + i % 2, 1, 2, 3, 4, 5, 6, -1, 0, 0, 0, 0, 0, 0 FROM n");
    const QByteArray draws = BytesOf(drawFile);
    const QByteArray people = BytesOf(userFile);
    const std::string rawKey = ";pwd=" + DerivedKeyText(PasswordOf(DrawConnect), draws.left(16).toStdString());
    int worked = 0;
    int failed = 0;
    long most = 0;
    for (int number = 0; number < cases; ++number) {
        chance.seed(seed * 1000003U + static_cast<unsigned>(number));
        for (const QFileInfo& left : QDir(folder.path()).entryInfoList(QDir::Files))
            QFile::remove(left.filePath());
        // The first case is whole: it must work, or the others would prove nothing.
        const int kind = number == 0 ? 5 : number % 5;
        WriteBytes(drawFile, kind == 0 ? Damaged(draws) : draws);
        WriteBytes(userFile, kind == 1 ? Damaged(people) : people);
        RunForked([&](const Say&) {
            if (kind == 4) {
                sqlite3_pcache_methods2 cache;
                sqlite3_shutdown();
                sqlite3_config(SQLITE_CONFIG_GETPCACHE2, &cache);
                cache.xUnpin = DamagePage;
                sqlite3_config(SQLITE_CONFIG_PCACHE2, &cache);
                // Every page is protected anew, as it lies in the engine's memory.
                RunSql(DrawDataPath, rawKey, "SELECT * FROM ukmain; PRAGMA rekey = \"" + PasswordOf(rawKey) + '"');
            }
            for (int change = 0; (kind == 2 || kind == 3) && change < 3; ++change)
                FailureOf([&] {
                    RunSql(kind == 2 ? UserDataPath : DrawDataPath, kind == 2 ? "" : rawKey, DamagingSql(kind == 3));
                });
        });
        const Forked walked = RunForked([&](const Say& say) {
            // How many times 4 KiB of memory it takes so far.
            say(BytesOf(u"/proc/self/statm"_s).split(' ').value(1));
            say(EveryRuleWorks() ? "worked" : "refused");
        });
        const long taken = walked.memory - walked.lines.value(0).toLong() * 4;
        most = std::max(most, taken);
        const bool works = walked.lines.value(1) == "worked"_L1;
        worked += works ? 1 : 0;
        if (walked.signal != 0 || walked.code != 0 || taken > 256L * 1024 || (number == 0 && !works)) {
            ++failed;
            std::printf("Case %d, kind %d: %s, %ld KiB\n", number, kind, qPrintable(walked.Text()), taken);
        }
    }
    std::printf("%d damaged files of seed %u: %d worked, %d failed, all others were refused; at most %ld MiB\n", cases,
                seed, worked, failed, most / 1024);
    return failed == 0 && worked > cases / 10 && worked < cases * 9 / 10 ? 0 : 1;
}
