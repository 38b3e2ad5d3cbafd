#pragma once

#include "records/engine.h"
#include "records/file_lock.h"

#include <filesystem>
#include <map>
#include <memory>
#include <string>

class Table;
struct TableLayout;

/// An open database file. It is opened shared and writable, never created; its rows are reached through record sets.
class Database
{
public:
    Database() = default;
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

    /// The table of a layout, or the one that it lists. It is there as long as the file is open.
    std::shared_ptr<Table> TableOf(const TableLayout& layout);
    void RollBack();

    FileLock lock;
    Engine engine;
    std::map<std::string, std::shared_ptr<Table>> tables;
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
    ~Transaction(); // NOLINT(bugprone-exception-escape)
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    /// Stores the changes; when it returns they are on disk. Throws Failure, and nothing is stored then.
    void Commit();

private:
    Database& database;
    std::string doing;
    bool open = false;
};
