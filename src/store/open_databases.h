#pragma once

#include "records/database.h"
#include "records/record_set.h"

#include <QString>

#include <filesystem>
#include <string>

struct Game;

/// The line break inside every message of several lines.
extern const QString Crlf;

/// The working directory at start-up, where every file of the program lives, and the two databases in it.
extern std::filesystem::path ProgramDir;
extern std::filesystem::path DrawDataPath;
extern std::filesystem::path UserDataPath;

/// ";pwd=" and the password of the draw database.
extern const std::string DrawConnect;

/// The open databases and their record sets, shared by all pages.
extern Database DrawDb;
extern Database UserDb;
extern RecordSet ukmain;
extern RecordSet ukthunder;
extern RecordSet ukmainlist;
extern RecordSet ukthunderlist;
extern RecordSet links;
extern RecordSet users;
extern RecordSet entries;

/// The draw table of a game, and the list of its draws, newest first.
RecordSet& DrawsOf(const Game& game);
RecordSet& DrawListOf(const Game& game);

/// Takes the folder in which the program works and the paths that follow from it.
void SetProgramDir(const std::filesystem::path& folder);

/// Opens both databases with their record sets, in place of those open before. Throws Failure.
void OpenDatabaseFiles();

/// The same with another file in the place of one of the two live ones.
void OpenDatabaseFilesWith(const std::filesystem::path& other, const std::filesystem::path& replacedLive);

/// Closes both databases with their record sets.
void CloseDatabaseFiles();

/// Reads every row of the open databases, so that damage anywhere in them shows at once. Throws Failure.
void ReadEveryRow();

/// Closes both databases and compacts each file through its two temporary files. A file that another running copy of
/// the program has open is left as it is. What fails for one file does not stop the other: its live file stays as it
/// was, the temporary files are cleared away, and the failures come back as one text a line; empty when all went well.
QString CloseAndCompactFiles();
