#include "support/disk_calls.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <fstream>
#include <map>
#include <memory>
#include <string>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

// Linked into a test program, these take the place of the system's own calls in all that the program and the engine do.

bool DiskFaultCame = false;

namespace {

DiskFault Planned = DiskFault::Stop;
int ChosenCall = 0;
int CallsMade = 0;
int Error = 0;

/// The bytes of a file as of its last sync.
using Synced = std::shared_ptr<std::string>;
/// By the files' own numbers, and under the names that the folders had as of their last sync.
std::map<ino_t, Synced> SyncedFiles;
std::map<std::filesystem::path, std::map<std::string, Synced>> SyncedFolders;

ino_t FileNumber(const std::filesystem::path& file)
{
    struct stat attributes = {};
    return ::lstat(file.c_str(), &attributes) == 0 ? attributes.st_ino : 0;
}

Synced& SyncedFile(ino_t number)
{
    return SyncedFiles.try_emplace(number, std::make_shared<std::string>()).first->second;
}

void SyncNames(const std::filesystem::path& folder)
{
    auto& names = SyncedFolders[folder];
    names.clear();
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names[entry.path().filename()] = SyncedFile(FileNumber(entry.path()));
}

/// A file is read through the descriptor itself: another one, once closed, would take the engine's locks with it.
int Sync(int descriptor)
{
    struct stat attributes = {};
    if (SyncedFolders.empty() || ::fstat(descriptor, &attributes) != 0)
        return 0;
    for (const auto& [folder, names] : SyncedFolders)
        if (FileNumber(folder) == attributes.st_ino)
            SyncNames(folder);
    std::string bytes(S_ISREG(attributes.st_mode) ? static_cast<size_t>(attributes.st_size) : 0, '\0');
    (void)!::pread(descriptor, bytes.data(), bytes.size(), 0);
    *SyncedFile(attributes.st_ino) = bytes;
    return 0;
}

void LoseWhatIsNotSynced()
{
    for (const auto& [folder, names] : SyncedFolders) {
        for (const auto& entry : std::filesystem::directory_iterator(folder))
            ::syscall(SYS_unlink, entry.path().c_str());
        for (const auto& [name, bytes] : names)
            std::ofstream(folder / name, std::ios::binary) << *bytes;
    }
}

/// Whether this call fails. `takesRoom`: whether a full disk would refuse it.
bool Fails(bool takesRoom = false)
{
    if (ChosenCall == 0 || ++CallsMade < ChosenCall)
        return false;
    if (Planned == DiskFault::PowerCut) {
        ChosenCall = 0;
        LoseWhatIsNotSynced();
    }
    if (Planned == DiskFault::Stop || Planned == DiskFault::PowerCut)
        ::kill(::getpid(), SIGKILL);
    if (Planned == DiskFault::OneFailure ? CallsMade > ChosenCall : Error == ENOSPC && !takesRoom)
        return false;
    DiskFaultCame = true;
    errno = Error;
    return true;
}

} // namespace

void PlanDiskFault(DiskFault fault, int call, int error, const std::vector<std::filesystem::path>& folders)
{
    for (const auto& folder : folders) {
        SyncNames(folder);
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            const int file = ::open(entry.path().c_str(), O_RDONLY);
            Sync(file);
            ::close(file);
        }
    }
    Planned = fault;
    ChosenCall = call;
    CallsMade = 0;
    Error = error;
    DiskFaultCame = false;
}

extern "C" {

int rename(const char* from, const char* to) noexcept
{
    if (Fails())
        return -1;
    // The file that loses its name is not that of its number any more.
    SyncedFiles.erase(FileNumber(to));
    return static_cast<int>(::syscall(SYS_rename, from, to));
}

int unlink(const char* path) noexcept
{
    // The engine also deletes what is not there.
    if (::access(path, F_OK) == 0 && Fails())
        return -1;
    SyncedFiles.erase(FileNumber(path));
    return static_cast<int>(::syscall(SYS_unlink, path));
}

// What a killed process has written is not lost with it, so there is no need to wait for the disk.
int fsync(int descriptor)
{
    return Fails() ? -1 : Sync(descriptor);
}

int fdatasync(int descriptor) __attribute__((alias("fsync")));

int ftruncate64(int descriptor, off64_t length) noexcept
{
    return Fails() ? -1 : static_cast<int>(::syscall(SYS_ftruncate, descriptor, length));
}

ssize_t pwrite64(int descriptor, const void* bytes, size_t count, off64_t offset)
{
    const bool fails = Fails(true);
    if (fails && Error != 0)
        return -1;
    return ::syscall(SYS_pwrite64, descriptor, fails ? std::string(count, '\0').data() : bytes, count, offset);
}

ssize_t pwrite(int descriptor, const void* bytes, size_t count, off_t offset) __attribute__((alias("pwrite64")));

} // extern "C"
