#pragma once

#include "records/table_layout.h"

#include <filesystem>
#include <string>
#include <vector>

/// Makes a new database file with empty tables and the stored queries over them, each after its table. `connect` is as
/// for opening; with a password the file is protected by it, with the engine's own default settings. The file must not
/// exist yet. Throws Failure.
void CreateDatabase(const std::filesystem::path& file, const std::string& connect,
                    const std::vector<TableLayout>& layouts);
