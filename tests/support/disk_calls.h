#pragma once

/// What befalls one of the calls by which files are written, synced, cut, renamed and deleted.
enum class DiskFault
{
    /// The process is killed before the call, as by a power switch.
    Stop,
    /// This call fails, and no other.
    OneFailure,
    /// This call and all later ones fail: those that need room where the error is ENOSPC, else every one.
    FailuresFromThen
};

/// From now on the calls are counted, from 1, and the chosen one meets the fault. `error` is the errno of a failure.
void PlanDiskFault(DiskFault fault, int call, int error = 0);

/// Whether any call has failed.
bool DiskFaultCame();
