#pragma once

#include <filesystem>
#include <string>

// The engine keeps files beside a database file while it changes it, and takes back a change that was cut short by them
// when it opens the file the next time.

/// Deletes what the engine keeps beside a file. Beside a file that takes another one's name it would be taken for that
/// file's own. Throws Failure.
void DeleteJournals(const std::filesystem::path& file);

/// Refuses a file that is being changed, or whose last change was cut short: it is whole only together with what the
/// engine keeps beside it. Throws Failure with the given clause.
void RefuseUnfinished(const std::filesystem::path& file, const std::string& doing);

/// Refuses a file whose journal names a further file, which the engine would delete at the end of taking the change
/// back. The program never writes such a journal. Throws Failure with the given clause.
void RefuseJournalOfSeveralFiles(const std::filesystem::path& file, const std::string& doing);
