#include "support/disk_calls.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

// Linked into a test program, these take the place of the system's own calls in all that it does.

namespace {

DiskFault Planned = DiskFault::Stop;
int ChosenCall = 0;
int CallsMade = 0;
int Error = 0;
bool Came = false;

/// Whether this call fails. `takesRoom`: whether a full disk would refuse it.
bool Fails(bool takesRoom)
{
    if (ChosenCall == 0 || ++CallsMade < ChosenCall)
        return false;
    if (Planned == DiskFault::Stop)
        ::kill(::getpid(), SIGKILL);
    if (Planned == DiskFault::OneFailure ? CallsMade > ChosenCall : Error == ENOSPC && !takesRoom)
        return false;
    Came = true;
    errno = Error;
    return true;
}

/// Only files count: pipes and the desktop's own descriptors go their way.
bool Fails(int descriptor, bool takesRoom)
{
    struct stat attributes = {};
    return ChosenCall != 0 && ::fstat(descriptor, &attributes) == 0 &&
           (S_ISREG(attributes.st_mode) || S_ISDIR(attributes.st_mode)) && Fails(takesRoom);
}

} // namespace

void PlanDiskFault(DiskFault fault, int call, int error)
{
    Planned = fault;
    ChosenCall = call;
    CallsMade = 0;
    Error = error;
}

bool DiskFaultCame()
{
    return Came;
}

extern "C" {

int rename(const char* from, const char* to) noexcept
{
    return Fails(false) ? -1 : static_cast<int>(::syscall(SYS_rename, from, to));
}

int unlink(const char* path) noexcept
{
    // The engine also deletes what is not there.
    return ::access(path, F_OK) == 0 && Fails(false) ? -1 : static_cast<int>(::syscall(SYS_unlink, path));
}

// What a killed process has written is not lost with it, so there is no need to wait for the disk.
int fsync(int descriptor)
{
    return Fails(descriptor, false) ? -1 : 0;
}

int fdatasync(int descriptor)
{
    return Fails(descriptor, false) ? -1 : 0;
}

int ftruncate64(int descriptor, off64_t length) noexcept
{
    return Fails(descriptor, false) ? -1 : static_cast<int>(::syscall(SYS_ftruncate, descriptor, length));
}

int ftruncate(int descriptor, off_t length) noexcept
{
    return ftruncate64(descriptor, length);
}

ssize_t write(int descriptor, const void* bytes, size_t count)
{
    return Fails(descriptor, true) ? -1 : ::syscall(SYS_write, descriptor, bytes, count);
}

ssize_t pwrite64(int descriptor, const void* bytes, size_t count, off64_t offset)
{
    return Fails(descriptor, true) ? -1 : ::syscall(SYS_pwrite64, descriptor, bytes, count, offset);
}

ssize_t pwrite(int descriptor, const void* bytes, size_t count, off_t offset)
{
    return pwrite64(descriptor, bytes, count, offset);
}

} // extern "C"
