// Damages both files in many ways and walks every rule over them: damaged_files_test [SEED [COUNT]]. Each case either
// works or is refused; it may not crash, take more than 2 seconds of the processor (6 under the sanitizers) for a step,
// or 256 MiB.

#include "support/failure_of.h"
#include "support/file_bytes.h"
#include "support/forked.h"
#include "support/raw_file.h"

#include "analysis/ball_data.h"
#include "analysis/chart_count.h"
#include "base/dates.h"
#include "base/failure.h"
#include "base/files.h"
#include "checking/check_report.h"
#include "game/game.h"
#include "records/key_store.h"
#include "store/draw_records.h"
#include "store/entry_changes.h"
#include "store/open_databases.h"
#include "store/user_records.h"

#include <QDir>
#include <QTemporaryDir>

#include <openssl/evp.h>
#include <openssl/hmac.h>

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

constexpr long MostMemory = 256L * 1024;
constexpr qsizetype Page = 4096;
constexpr int Iv = 16;
constexpr int Mac = 64;

/// The pages of the protected file without their protection, so that what is behind it can be damaged too.
class OpenedPages
{
public:
    explicit OpenedPages(const QByteArray& file) : bytes(file), salt(file.left(Iv))
    {
        const std::string text = DerivedKeyText(PasswordOf(DrawConnect), salt.toStdString());
        key = QByteArray::fromHex(QByteArray::fromStdString(text).mid(2, 64));
        QByteArray otherSalt = salt;
        for (char& byte : otherSalt)
            byte = static_cast<char>(byte ^ 0x3a);
        PKCS5_PBKDF2_HMAC(key.constData(), 32, Data(otherSalt), Iv, 2, EVP_sha512(), 32, Data(macKey));
        for (int page = 0; page < bytes.size() / Page; ++page)
            Cipher(bytes, page, 0);
        bytes.replace(0, Iv, QByteArray("SQLite format 3\0", Iv));
    }
    QByteArray Protected(QByteArray plain) const
    {
        for (int page = 0; page < plain.size() / Page; ++page)
            Cipher(plain, page, 1);
        return plain.replace(0, Iv, salt);
    }
    QByteArray bytes;

private:
    static unsigned char* Data(QByteArray& array) { return reinterpret_cast<unsigned char*>(array.data()); }
    void Cipher(QByteArray& file, int page, int encrypt) const
    {
        const int start = page == 0 ? Iv : 0;
        const auto length = static_cast<int>(Page) - Iv - Mac - start;
        unsigned char* first = Data(file) + page * Page + start;
        const std::unique_ptr<EVP_CIPHER_CTX, void (*)(EVP_CIPHER_CTX*)> cipher(EVP_CIPHER_CTX_new(),
                                                                                EVP_CIPHER_CTX_free);
        const auto* keyBytes = reinterpret_cast<const unsigned char*>(key.constData());
        EVP_CipherInit_ex(cipher.get(), EVP_aes_256_cbc(), nullptr, keyBytes, first + length, encrypt);
        EVP_CIPHER_CTX_set_padding(cipher.get(), 0);
        int done = 0;
        EVP_CipherUpdate(cipher.get(), first, &done, first, length);
        QByteArray proved(reinterpret_cast<const char*>(first), length + Iv);
        for (int shift = 0; shift < 32; shift += 8)
            proved.append(static_cast<char>((page + 1) >> shift));
        if (encrypt != 0)
            HMAC(EVP_sha512(), macKey.constData(), 32, Data(proved), static_cast<size_t>(proved.size()),
                 first + length + Iv, nullptr);
    }

    QByteArray salt;
    QByteArray key;
    QByteArray macKey = QByteArray(32, '\0');
};

/// Everything random of one case.
class Damage
{
public:
    explicit Damage(unsigned seed) : random(seed) {}
    int Below(qsizetype bound)
    {
        return static_cast<int>(random() % static_cast<unsigned>(std::max<qsizetype>(bound, 1)));
    }
    template <typename Item>
    Item OneOf(std::initializer_list<Item> items)
    {
        return *(items.begin() + Below(static_cast<qsizetype>(items.size())));
    }

    QByteArray Bytes(QByteArray file)
    {
        for (int change = Below(3); change >= 0 && !file.isEmpty(); --change) {
            const int pages = static_cast<int>(file.size() / Page);
            const qsizetype place = Below(file.size());
            const qsizetype page = Below(pages) * Page;
            const qsizetype other = Below(pages) * Page;
            const QByteArray old = file.mid(page, Page);
            switch (Below(9)) {
            case 0:
                for (int flips = Below(20); flips >= 0; --flips) {
                    const int flipped = Below(file.size());
                    file[flipped] = static_cast<char>(file[flipped] ^ (1 << Below(8)));
                }
                break;
            case 1:
                file.replace(place, Below(Page), QByteArray(Below(Page), '\0'));
                break;
            case 2:
                std::generate_n(file.begin() + place, Below(std::min<qsizetype>(600, file.size() - place)),
                                [this] { return static_cast<char>(Below(256)); });
                break;
            case 3:
                file.replace(page, Page, file.mid(other, Page)).replace(other, Page, old);
                break;
            case 4:
                file.replace(other, Page, old);
                break;
            case 5:
                file.truncate(OneOf({place, page}));
                break;
            case 6:
                file.append(QByteArray(Below(3 * Page), static_cast<char>(Below(256))));
                break;
            case 7:
                // The heads of pages: kinds, counts, lengths, and the page numbers that lead on.
                file[std::min<qsizetype>(page + Below(120), file.size() - 1)] =
                    OneOf<char>({0, 1, 2, 5, 10, 13, 127, -128, -1});
                break;
            default:
                file.replace(std::min<qsizetype>(place, file.size() - 4), 4,
                             QByteArray(3, '\0') + static_cast<char>(1 + Below(pages)));
            }
        }
        return file;
    }

    std::string Value()
    {
        return OneOf<std::string>({"NULL", "''", "0", "-1", "3.7", "49", "9e999", "-9e999", "1e308",
                                   "9223372036854775807", "-9223372036854775808", "x'00ff'", "'2020-02-31'", "'0x10'",
                                   "CAST(x'ff80c0ed' AS TEXT)", "'a' || char(0) || 'b'", "char(8238, 769, 10)",
                                   "hex(zeroblob(" + std::to_string(Below(1500000)) + "))", "zeroblob(900000)"});
    }

    /// What anybody's tool could do to a file with the password.
    std::string Sql(bool draws)
    {
        const int kind = Below(draws ? 3 : 2);
        const std::string table =
            (draws ? std::array{"ukmain", "ukthunder", "links"} : std::array{"users", "entries", ""})
                .at(static_cast<size_t>(kind));
        const std::string column = draws ? (kind == 2 ? "SiteName" : OneOf({"DrawId", "\"Date\"", "Ball1", "Ball5"}))
                                         : (kind == 0 ? OneOf({"UserId", "UserName", "SpendLimit"})
                                                      : OneOf({"EntryId", "UserId", "DrawType", "Ball1", "Sunday"}));
        const std::string some = " WHERE rowid % " + std::to_string(1 + Below(50)) + " = 0;";
        switch (Below(8)) {
        case 0:
        case 1:
            return "UPDATE " + table + " SET " + column + " = " + Value() + some;
        case 2:
            return "INSERT INTO " + table + "(" + column + ") VALUES (" + Value() + ");";
        case 3:
            return "DELETE FROM " + table + OneOf<std::string>({some, ";"});
        case 4:
            return "ALTER TABLE " + table +
                   OneOf<std::string>(
                       {" ADD more", " DROP " + column, " RENAME " + column + " TO other", " RENAME TO x"});
        case 5:
            return "UPDATE " + table + " SET rowid = " + OneOf({"-rowid;", "9223372036854775807 WHERE rowid = 1;"});
        case 6:
            return "PRAGMA writable_schema = 1; UPDATE sqlite_master SET " +
                   OneOf<std::string>({"rootpage = rootpage + 1", "rootpage = 2", "rootpage = 0", "type = 'view'",
                                       "sql = replace(sql, 'INTEGER', " + Value() + ")", "name = upper(name)"});
        default:
            return OneOf<std::string>({"PRAGMA journal_mode = WAL;", "PRAGMA auto_vacuum = 1; VACUUM;",
                                       "PRAGMA page_size = 1024; VACUUM;",
                                       "CREATE UNIQUE INDEX i ON " + table + "(" + column + ");", "DROP TABLE " + table,
                                       "PRAGMA user_version = 77"});
        }
    }

private:
    std::mt19937 random;
};

void WalkGame(const Game& game)
{
    RecordSet& list = DrawListOf(game);
    for (list.MoveFirst(); !list.Eof(); list.MoveNext()) {
        const DrawRow draw = ReadDraw(list, game);
        (void)(LongStoredDate(draw.date) + ShortStoredDate(draw.date));
    }
    for (int ball = 1; ball <= game.highestMain; ++ball)
        (void)CountSentence(MainBallRole(game), FindBall(list, MainBallRole(game), ball));
    const std::vector<UserRow> people = ReadAllUsers(users);
    std::vector<CheckedUser> checked;
    checked.reserve(people.size());
    for (const UserRow& user : people)
        checked.push_back({user.number, user.name});
    const CheckedGame one{&game, CheckedDraw{QDate(2020, 1, 4), {1, 2, 3, 4, 5, 6, 7}}};
    WriteCheckReport(checked, {&one, 1}, ReadAllEntries(entries));
    if (!people.empty() && !ExceedsSpendLimit(people.back().name, 1))
        StoreEntriesOfUser(people.back().name, {EntryRow{}}, {}, RaiseLimit::No);
}

void ChangeRows()
{
    {
        Transaction transaction(DrawDb, "");
        AddDraw(ukmain, MainGame, {QDate(2020, 1, 4), {1, 2, 3, 4, 5, 6, 7}, "MERLIN", "1"});
        ukmain.MoveFirst();
        DeleteRecords(ukmain, {ukmain.Mark()});
        transaction.Commit();
    }
    Transaction transaction(UserDb, "");
    AddUser(users, "New", 5);
    DeleteUserEntries(entries, 1);
    transaction.Commit();
}

/// The process is killed when it has worked for so long from now on.
void WorkAtMost(unsigned seconds)
{
    const itimerval time{{}, {static_cast<time_t>(seconds), 0}};
    ::setitimer(ITIMER_PROF, &time, nullptr);
}

/// Every rule, each with its own time: how many of them refused the files.
int Walk()
{
    std::vector<std::function<void()>> steps{OpenDatabaseFiles, ReadEveryRow};
    for (const Chart& chart : AllCharts())
        steps.emplace_back([&chart] {
            for (const BallType type : {BallType::MainBalls, BallType::ExtraBall, BallType::AllBalls})
                (void)CountBars(chart, type);
        });
    for (const Game* game : {&MainGame, &ThunderballGame})
        steps.emplace_back([game] { WalkGame(*game); });
    steps.emplace_back(ChangeRows);
    int refused = 0;
    for (const auto& step : steps) {
        WorkAtMost(LongestSeconds);
        try {
            step();
        } catch (const Failure&) {
            if (!DrawDb.IsOpen() || !UserDb.IsOpen())
                return -1;
            ++refused;
        }
    }
    WorkAtMost(2 * LongestSeconds);
    return refused + (CloseAndCompactFiles().isEmpty() ? 0 : 1);
}

long ResidentMemory()
{
    return BytesOf(u"/proc/self/statm"_s).split(' ').value(1).toLong() * 4;
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
    QFile::copy(QStringLiteral(TAVENOR_STARTER "/drawdata.tv3"), drawFile);
    QFile::copy(QStringLiteral(TAVENOR_STARTER "/userdata.tv3"), userFile);
    const QByteArray draws = BytesOf(drawFile);
    OpenDatabaseFiles();
    {
        Transaction transaction(UserDb, "");
        for (int user = 1; user <= 5; ++user)
            AddUser(users, "User " + QString::number(user), 200);
        for (int entry = 0; entry < 400; ++entry)
            AddEntry(entries, EntryRow{entry, 1 + entry % 5, 1 + entry % 2, {1, 2, 3, 4, 5, 6}, {true}});
        transaction.Commit();
    }
    CloseDatabaseFiles();
    const QByteArray people = BytesOf(userFile);
    const OpenedPages opened(draws);
    const std::string rawKey = ";pwd=" + DerivedKeyText(PasswordOf(DrawConnect), draws.left(Iv).toStdString());
    std::map<std::string, int> outcomes;
    int failures = 0;
    long most = 0;
    for (int number = 0; number < cases; ++number) {
        Damage damage(seed * 1000003U + static_cast<unsigned>(number));
        for (const QFileInfo& left : QDir(folder.path()).entryInfoList(QDir::Files))
            QFile::remove(left.filePath());
        // The first case is whole: protected anew, it must work, or the others would prove nothing.
        const int kind = number == 0 ? 1 : number % 5;
        WriteBytes(userFile, kind == 2 ? damage.Bytes(people) : people);
        WriteBytes(drawFile, kind == 0   ? damage.Bytes(draws)
                             : kind == 1 ? opened.Protected(number == 0 ? opened.bytes : damage.Bytes(opened.bytes))
                                         : draws);
        const Forked made = RunForked([&](const ForkedProcess::Say&) {
            for (int change = 0; kind > 2 && change < 3; ++change)
                FailureOf([&] {
                    RunSql(kind == 3 ? UserDataPath : DrawDataPath, kind == 3 ? std::string() : rawKey,
                           damage.Sql(kind == 4));
                });
        });
        const Forked walked = RunForked([](const ForkedProcess::Say& say) {
            say(QString::number(ResidentMemory()));
            const int refused = Walk();
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
