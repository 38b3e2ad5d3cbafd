#pragma once

#include <filesystem>

/// Copies a file over another so that the target is, at every moment, either the old file or the whole new one: the
/// copy is written beside the target, synced and renamed over it. The copy keeps the source's access rights.
/// Throws Failure; the target is then as it was and nothing is left beside it.
void CopyFileOver(const std::filesystem::path& source, const std::filesystem::path& target);

/// Deletes a file; one that is not there is no error. Throws Failure.
void DeleteFileIfThere(const std::filesystem::path& file);
