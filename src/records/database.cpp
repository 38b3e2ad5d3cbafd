#include "records/database.h"

#include "base/failure.h"
#include "records/statement.h"

namespace {

const char* const NotReadable = "The database could not be read";

} // namespace

Database::Database() = default;

Database::~Database()
{
    Close();
}

void Database::Open(const std::filesystem::path& file, const std::string& connect)
{
    Close();
    const std::string doing = "The file " + file.filename().string() + " could not be opened";
    lock.Share(file, doing);
    try {
        engine = OpenGuarded(file, connect, lock.FirstBytes(SaltBytes), doing);
        versionQuery = std::make_unique<Statement>(engine.get(), "PRAGMA data_version", NotReadable);
    } catch (...) {
        Close();
        throw;
    }
}

void Database::Close()
{
    while (!observers.empty())
        observers.back()->DatabaseCloses();
    versionQuery.reset();
    // The engine goes first: closing the lock's descriptor would drop the engine's own locks.
    engine.reset();
    inTransaction = false;
    lock.Release();
}

std::int64_t Database::ChangesByOthers()
{
    versionQuery->Step();
    const std::int64_t version = versionQuery->WholeNumber(0);
    versionQuery->Reset();
    return version;
}

void Database::Register(DatabaseObserver* observer)
{
    observers.push_back(observer);
}

void Database::Unregister(DatabaseObserver* observer)
{
    std::erase(observers, observer);
}

void Database::RollBack()
{
    // A failed commit may have rolled back already; the answer to a second attempt does not matter.
    sqlite3_exec(engine.get(), "ROLLBACK", nullptr, nullptr, nullptr);
    inTransaction = false;
    for (DatabaseObserver* observer : observers)
        observer->ChangesTakenBack();
}

Transaction::Transaction(Database& owner, std::string doingClause) : database(owner), doing(std::move(doingClause))
{
    if (database.inTransaction)
        throw Failure(doing, "another change is still going on", "nested transaction");
    Execute(database.engine.get(), "BEGIN IMMEDIATE", doing);
    database.inTransaction = true;
    open = true;
}

Transaction::~Transaction()
{
    if (open && database.IsOpen())
        database.RollBack();
}

void Transaction::Commit()
{
    Execute(database.engine.get(), "COMMIT", doing);
    open = false;
    database.inTransaction = false;
    for (DatabaseObserver* observer : database.observers)
        observer->ChangesKept();
}
