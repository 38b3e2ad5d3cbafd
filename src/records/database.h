#pragma once

#include "records/engine.h"
#include "records/file_lock.h"

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

class Table;
struct TableLayout;

/// An open database file. It is opened shared and writable, never created; its rows are reached through record sets.
class Database
{
public:
    /// Opens a file. `connect` is empty for a file without a password, else ";pwd=" followed by the password. The key
    /// is proved by reading. Throws Failure: a missing, locked or damaged file, a wrong password.
    void Open(const std::filesystem::path& file, const std::string& connect = {});

    /// Closes the file, which no record set can read or change from then on. Other copies of the program may go on
    /// using it.
    void Close();

    bool IsOpen() const { return engine != nullptr; }

private:
    friend class RecordSet;
    friend class Transaction;

    /// The table of a layout, or the one that it lists, after proving both. Throws Failure.
    std::shared_ptr<Table> TableOf(const TableLayout& layout);

    // What stands below closes first: closing the lock's descriptor would drop the engine's own locks.
    FileLock lock;
    Engine engine;
    std::map<std::string, std::shared_ptr<Table>> tables;
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
    bool open = true;
};

/// Makes a new database file with empty tables and the stored queries over them, each after its table. `connect` is as
/// for opening; with a password the file is protected by it, with the engine's own default settings. The file must not
/// exist yet. Throws Failure.
void CreateDatabase(const std::filesystem::path& file, const std::string& connect,
                    const std::vector<TableLayout>& layouts);
