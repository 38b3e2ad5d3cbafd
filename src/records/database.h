#pragma once

#include "records/engine.h"
#include "records/file_lock.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

class Statement;

/// Who is told what happens to a database, as its record sets are.
class DatabaseObserver
{
public:
    DatabaseObserver() = default;
    virtual ~DatabaseObserver() = default;
    DatabaseObserver(const DatabaseObserver&) = delete;
    DatabaseObserver& operator=(const DatabaseObserver&) = delete;

    /// The database is about to be closed; from then on the observer is registered no more.
    virtual void DatabaseCloses() = 0;
    /// A transaction has been stored, or taken back.
    virtual void ChangesKept() = 0;
    virtual void ChangesTakenBack() = 0;
};

/// An open database file. It is opened shared and writable, never created; its rows are reached through record sets.
class Database
{
public:
    Database();
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    /// Opens a file. `connect` is empty for a file without a password, else ";pwd=" followed by the password. The key
    /// is proved by reading. Throws Failure: a missing, locked or damaged file, a wrong password.
    void Open(const std::filesystem::path& file, const std::string& connect = {});

    /// Closes the record sets and the file. Other copies of the program may go on using it.
    void Close();

    bool IsOpen() const { return engine != nullptr; }

private:
    friend class RecordSet;
    friend class Transaction;

    std::int64_t ChangesByOthers();
    void Register(DatabaseObserver* observer);
    void Unregister(DatabaseObserver* observer);
    void RollBack();

    FileLock lock;
    Engine engine;
    std::unique_ptr<Statement> versionQuery;
    std::vector<DatabaseObserver*> observers;
    bool inTransaction = false;
};

/// Several changes of one database that are stored together: all of them, or none. It takes the right to write at once,
/// so that what is read inside it (the last row's number, say) cannot be overtaken by another copy of the program.
class Transaction
{
public:
    /// `doing` is the clause that a failure carries, such as "The entries could not be stored". Throws Failure.
    Transaction(Database& owner, std::string doing);
    /// What is not committed is taken back.
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    /// Stores the changes; when it returns they are on disk. Throws Failure, and nothing is stored then.
    void Commit();

private:
    Database& database;
    std::string doing;
    bool open = false;
};
