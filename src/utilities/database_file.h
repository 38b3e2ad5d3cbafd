#pragma once

#include <QString>

#include <filesystem>
#include <string>

/// One of the two database files, with what the database utilities say of it.
struct DatabaseFile
{
    std::filesystem::path live;
    std::string connect;
    QString offeredName;
    /// "The draw database", at the head of a sentence.
    QString name;
    QString backupDone;
    QString importDone;
};

DatabaseFile DrawDatabaseFile();
DatabaseFile UserDatabaseFile();

/// Refuses a path that is that of a file which the program itself puts beside a live file for a while, and would delete
/// or take for its own there. Throws Failure with the given clause.
void RefuseWorkingFile(const std::filesystem::path& chosen, const std::string& doing);

/// Whether a chosen path is, letter for letter, that of one of the two live files.
bool IsLivePath(const QString& chosen);
