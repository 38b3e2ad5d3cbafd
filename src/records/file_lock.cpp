#include "records/file_lock.h"

#include "base/failure.h"

#include <cerrno>
#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

// After the 512 bytes that the engine itself locks.
constexpr off_t LockedByte = 0x40000000 + 1024;
constexpr auto LongestWait = std::chrono::seconds(5);

bool TryLock(int descriptor, short kind)
{
    struct flock lock = {};
    lock.l_type = kind;
    lock.l_whence = SEEK_SET;
    lock.l_start = LockedByte;
    lock.l_len = 1;
    return ::fcntl(descriptor, F_OFD_SETLK, &lock) == 0;
}

} // namespace

bool FileLock::SharePresentFile(const std::filesystem::path& file, const std::string& doing)
{
    descriptor = Descriptor(::open(file.c_str(), O_RDWR | O_CLOEXEC));
    if (Number() < 0 && (errno == EACCES || errno == EROFS || errno == EPERM))
        descriptor = Descriptor(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
    if (Number() < 0)
        throw Failure(doing, errno == ENOENT ? "the file is not there" : "the file cannot be opened",
                      std::strerror(errno));
    struct stat held = {};
    struct stat present = {};
    // Another copy may have renamed a new file over the one that was just opened.
    const bool shared = TryLock(Number(), F_RDLCK) && ::fstat(Number(), &held) == 0 &&
                        ::stat(file.c_str(), &present) == 0 && held.st_dev == present.st_dev &&
                        held.st_ino == present.st_ino;
    if (!shared)
        Release();
    return shared;
}

void FileLock::Share(const std::filesystem::path& file, const std::string& doing)
{
    Release();
    const auto end = std::chrono::steady_clock::now() + LongestWait;
    while (!SharePresentFile(file, doing)) {
        if (std::chrono::steady_clock::now() > end)
            throw Failure(doing, "another program is using the file", "lock not granted");
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

bool FileLock::TryAlone() const
{
    return TryLock(Number(), F_WRLCK);
}

std::string FileLock::FirstBytes(std::size_t count) const
{
    std::string bytes(count, '\0');
    const ssize_t got = ::pread(Number(), bytes.data(), count, 0);
    bytes.resize(got < 0 ? 0 : static_cast<std::size_t>(got));
    return bytes;
}
