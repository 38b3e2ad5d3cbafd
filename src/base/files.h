#pragma once

#include <filesystem>
#include <functional>

/// Copies a file over another so that the target is, at every moment, either the old file or the whole new one: the
/// copy is written beside the target, synced and renamed over it. The copy keeps the source's access rights.
/// `beforeRename` is given the finished copy; what it throws stops the copying. Throws Failure; the target is then as
/// it was and nothing is left beside it.
void CopyFileOver(const std::filesystem::path& source, const std::filesystem::path& target,
                  const std::function<void(const std::filesystem::path& beside)>& beforeRename = {});

/// Copies a file to one that serves for a while and is worthless after a crash, so that nobody has to wait until it is
/// on the disk. The copy keeps the source's access rights. Throws Failure; nothing is left of the copy then.
void CopyWorkingFile(const std::filesystem::path& source, const std::filesystem::path& copy);

/// Moves a file over another, in one step where both lie on the same disk. Throws Failure; the source is still there
/// then.
void MoveFileOver(const std::filesystem::path& source, const std::filesystem::path& target);

/// The file that a path leads to: a symbolic link's file, else the path itself. The engine keeps its own files beside
/// that one.
std::filesystem::path FileBehind(const std::filesystem::path& path);

/// The file that lies beside the target while a copy over it is being written.
std::filesystem::path BesideFile(const std::filesystem::path& target);

/// Has the disk keep what was renamed and deleted in a folder.
void SyncFolder(const std::filesystem::path& folder);

/// Deletes a file; one that is not there is no error. Throws Failure.
void DeleteFileIfThere(const std::filesystem::path& file);
