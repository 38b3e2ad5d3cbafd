// Damages both files in many ways and walks every rule over them: damaged_files_test [SEED [COUNT]]. Each case either
// works or is refused; it may not crash, take more than 2 seconds of the processor (6 under the sanitizers) for a step,
// or 256 MiB.

#include "support/failure_of.h"
#include "support/file_bytes.h"
#include "support/forked.h"
#include "support/raw_file.h"

#include "analysis/ball_data.h"
#include "analysis/charts.h"
#include "base/dates.h"
#include "checking/check_report.h"
#include "game/game.h"
#include "records/held_file.h"
#include "records/key_store.h"
#include "store/draw_changes.h"
#include "store/draw_records.h"
#include "store/draw_tables.h"
#include "store/entry_changes.h"
#include "store/open_databases.h"
#include "store/user_changes.h"
#include "store/user_records.h"

#include <QDir>
#include <QTemporaryDir>

#include <algorithm>
#include <map>
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

constexpr long MostMemory = 256L * 1024;
constexpr qsizetype Page = 4096;

QStringList Words(const char* words)
{
    return QString(words).split(u' ');
}

/// Everything random of one case.
class Damage
{
public:
    explicit Damage(unsigned seed) : random(seed) {}
    int Below(qsizetype bound)
    {
        return static_cast<int>(random() % static_cast<unsigned>(std::max<qsizetype>(bound, 1)));
    }
    QString OneOf(const QStringList& items) { return items[Below(items.size())]; }

    QByteArray Bytes(QByteArray file)
    {
        for (int change = Below(3); change >= 0 && file.size() > Page; --change) {
            const int pages = static_cast<int>(file.size() / Page);
            const qsizetype page = Below(pages) * Page;
            const qsizetype place = Below(file.size() - 600);
            switch (Below(6)) {
            case 0:
                for (int flips = Below(20); flips >= 0; --flips) {
                    const int flipped = Below(file.size());
                    file[flipped] = static_cast<char>(file[flipped] ^ (1 << Below(8)));
                }
                break;
            case 1:
                std::generate_n(file.begin() + place, Below(600), [this] { return static_cast<char>(Below(256)); });
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
    std::string Sql(bool draws)
    {
        const QStringList field = OneOf(draws ? Words("ukmain.DrawId ukmain.Date ukmain.Ball1 ukmain.Ball5 "
                                                      "ukmain.BallSet ukthunder.DrawId ukthunder.Date "
                                                      "ukthunder.Ball5 links.SiteName")
                                              : Words("users.UserId users.UserName users.SpendLimit entries.EntryId "
                                                      "entries.UserId entries.DrawType entries.Ball1 entries.Sunday"))
                                      .split(u'.');
        const QString value =
            OneOf(Words("NULL '' 0 -1 3.7 49 9e999 -9e999 1e308 9223372036854775807 -9223372036854775808 x'00ff' "
                        "'2020-02-31' '0x10' CAST(x'ff80c0ed'AS\tTEXT) 'a'||char(0)||'b' char(8238,769,10) "
                        "hex(zeroblob(%1)) zeroblob(900000)"))
                .replace(u"%1"_s, QString::number(Below(1500000)));
        const QString schema = u"PRAGMA writable_schema = 1; UPDATE sqlite_master SET "_s;
        const QStringList changes = QString("DELETE FROM %1 %4|DELETE FROM %1|DROP TABLE %1|ALTER TABLE %1 ADD more|"
                                            "ALTER TABLE %1 DROP %2|ALTER TABLE %1 RENAME %2 TO other|"
                                            "ALTER TABLE %1 RENAME TO x|UPDATE %1 SET rowid = -rowid|"
                                            "UPDATE %1 SET rowid = 9223372036854775807 WHERE rowid = 1|"
                                            "%5 rootpage = rootpage + 1|%5 rootpage = 2|%5 rootpage = 0|"
                                            "%5 type = 'view'|%5 name = upper(name)|"
                                            "%5 sql = replace(sql, 'INTEGER', %3)|PRAGMA journal_mode = WAL|"
                                            "PRAGMA auto_vacuum = 1; VACUUM|PRAGMA page_size = 1024; VACUUM|"
                                            "CREATE UNIQUE INDEX i ON %1(%2)")
                                        .split(u'|');
        const QStringList rows{"UPDATE %1 SET %2 = %3 %4", "INSERT INTO %1(%2) VALUES (%3)"};
        QString sql = OneOf(Below(2) == 0 ? rows : changes);
        const QStringList words{field[0], field[1], value, u"WHERE rowid % %1 = 0"_s.arg(1 + Below(50)), schema};
        for (int word = 0; word < words.size(); ++word)
            sql.replace(u'%' + QString::number(word + 1), words[word]);
        return sql.toStdString();
    }

private:
    std::mt19937 random;
};

/// Opens draws that have no password, so that damage of a page is not found by its protection.
void OpenUnprotectedDraws(const std::string& file)
{
    DrawDb.Open(file);
    for (const Game* game : {&MainGame, &ThunderballGame}) {
        DrawsOf(*game).Open(DrawDb, DrawTable(*game));
        DrawListOf(*game).Open(DrawDb, DrawList(*game));
    }
    links.Open(DrawDb, LinksTable());
}

void WalkGame(const Game& game)
{
    RecordSet& list = DrawListOf(game);
    for (list.MoveFirst(); !list.Eof(); list.MoveNext())
        (void)(LongStoredDate(ReadDraw(list, game).date) + ShortStoredDate(ReadDraw(list, game).date));
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
    DeleteUserWithEntries(1);
}

/// Every rule, each with its own time: how many of them refused the files, or -1 where one could not be opened.
int Walk(const std::string& unprotected)
{
    std::vector<std::function<void()>> steps{OpenDatabaseFiles, ReadEveryRow};
    if (!unprotected.empty())
        steps.insert(steps.begin() + 1, [&] { OpenUnprotectedDraws(unprotected); });
    for (const Chart& chart : AllCharts())
        steps.emplace_back([&chart] {
            for (const BallType type : {BallType::MainBalls, BallType::ExtraBall, BallType::AllBalls})
                (void)CountBars(chart, type);
        });
    for (const Game* game : {&MainGame, &ThunderballGame})
        steps.emplace_back([game] { WalkGame(*game); });
    steps.emplace_back(ChangeRows);
    steps.emplace_back([] {
        if (!CloseAndCompactFiles().isEmpty())
            throw Failure("", "", "");
    });
    if (!unprotected.empty())
        steps.emplace_back([&] { HeldFile(unprotected, {}, "").Compact(); });
    int refused = 0;
    for (const auto& step : steps) {
        // The process is killed when it has worked for so long.
        const itimerval time{{}, {LongestSeconds, 0}};
        ::setitimer(ITIMER_PROF, &time, nullptr);
        try {
            step();
        } catch (const Failure&) {
            if (++refused == 1 && (!DrawDb.IsOpen() || !UserDb.IsOpen()))
                return -1;
        }
    }
    return refused;
}

long ResidentMemory()
{
    return BytesOf(u"/proc/self/statm"_s).split(' ').value(1).toLong() * 4;
}

void StoreUsers()
{
    Transaction transaction(UserDb, "");
    for (int user = 1; user <= 5; ++user)
        AddUser(users, "User " + QString::number(user), 200);
    for (int entry = 0; entry < 400; ++entry)
        AddEntry(entries, EntryRow{entry, 1 + entry % 5, 1 + entry % 2, {1, 2, 3, 4, 5, 6}, {true}});
    transaction.Commit();
}

} // namespace

int main(int count, char** arguments)
{
    const unsigned seed = count > 1 ? QByteArray(arguments[1]).toUInt() : 1;
    const int cases = count > 2 ? QByteArray(arguments[2]).toInt() : 300;
    const QTemporaryDir folder;
    SetProgramDir(folder.path().toStdString());
    const QString drawFile = QString::fromStdString(DrawDataPath.string());
    const QString userFile = QString::fromStdString(UserDataPath.string());
    const QString plainFile = folder.filePath(u"plain"_s);
    QFile::copy(QStringLiteral(TAVENOR_STARTER "/drawdata.tv3"), drawFile);
    QFile::copy(QStringLiteral(TAVENOR_STARTER "/userdata.tv3"), userFile);
    OpenDatabaseFiles();
    StoreUsers();
    CloseDatabaseFiles();
    const QByteArray draws = BytesOf(drawFile);
    const QByteArray people = BytesOf(userFile);
    const std::string rawKey = ";pwd=" + DerivedKeyText(PasswordOf(DrawConnect), draws.left(16).toStdString());
    RunSql(DrawDataPath, rawKey,
           "ATTACH '" + plainFile.toStdString() + "' AS plain KEY ''; SELECT sqlcipher_export('plain')");
    const QByteArray plainDraws = BytesOf(plainFile);
    std::map<std::string, int> outcomes;
    int failures = 0;
    long most = 0;
    for (int number = 0; number < cases; ++number) {
        Damage damage(seed * 1000003U + static_cast<unsigned>(number));
        for (const QFileInfo& left : QDir(folder.path()).entryInfoList(QDir::Files))
            QFile::remove(left.filePath());
        // The first case is whole: it must work, or the others would prove nothing.
        const int kind = number == 0 ? 1 : number % 5;
        WriteBytes(drawFile, kind == 0 ? damage.Bytes(draws) : draws);
        WriteBytes(plainFile, number == 0 ? plainDraws : damage.Bytes(plainDraws));
        WriteBytes(userFile, kind == 2 ? damage.Bytes(people) : people);
        const Forked made = RunForked([&](const Say&) {
            for (int change = 0; kind > 2 && change < 3; ++change)
                FailureOf([&] {
                    RunSql(kind == 3 ? UserDataPath : DrawDataPath, kind == 3 ? std::string() : rawKey,
                           damage.Sql(kind == 4));
                });
        });
        const Forked walked = RunForked([&](const Say& say) {
            say(QString::number(ResidentMemory()));
            const int refused = Walk(kind == 1 ? plainFile.toStdString() : std::string());
            say(refused < 0 ? "refused at the start" : refused > 0 ? "refused in part" : "worked");
        });
        const long taken = walked.memory - walked.lines.value(0).toLong();
        const QString outcome = walked.lines.value(1);
        most = std::max(most, taken);
        const bool good = walked.signal == 0 && walked.code == 0 && made.signal == 0 && taken <= MostMemory &&
                          (number > 0 || outcome == "worked");
        ++outcomes[good ? outcome.toStdString() : "failed"];
        if (!good && ++failures < 20)
            std::printf("Case %d of seed %u, kind %d: %s, %ld KiB\n", number, seed, kind, qPrintable(walked.Text()),
                        taken);
    }
    std::printf("%d damaged files of seed %u, at most %ld MiB:", cases, seed, most / 1024);
    for (const auto& [end, times] : outcomes)
        std::printf(" %d %s.", times, end.c_str());
    std::printf("\n");
    return failures == 0 && outcomes["worked"] > cases / 10 && outcomes["refused at the start"] > cases / 10 ? 0 : 1;
}
