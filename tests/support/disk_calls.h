#pragma once

#include <filesystem>
#include <vector>

/// What befalls one of the calls by which files are written, synced, cut, renamed and deleted.
enum class DiskFault
{
    /// The process is killed before the call.
    Stop,
    /// The same, and what was not synced is lost, as by a power cut: the bytes of files and the names in folders.
    PowerCut,
    /// This call fails, and no other.
    OneFailure,
    /// This call and all later ones fail: those that need room where the error is ENOSPC, else every one.
    FailuresFromThen
};

/// From now on the calls are counted, from 1, and the chosen one meets the fault. `error` is the errno of a failure, or
/// 0 where zeros are to be written without a word; `folders` are those of which a power cut takes what was not synced.
void PlanDiskFault(DiskFault fault, int call, int error = 0, const std::vector<std::filesystem::path>& folders = {});

/// Whether any call has failed.
extern bool DiskFaultCame;
