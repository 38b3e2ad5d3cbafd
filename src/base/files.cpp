#include "base/files.h"

#include "base/failure.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace {

[[noreturn]] void Fail(const std::string& doing, int error)
{
    std::string reason = "the disk reported an error";
    if (error == ENOSPC || error == EDQUOT || error == EFBIG)
        reason = "the disk is full";
    else if (error == EACCES || error == EPERM || error == EROFS)
        reason = "the file or its folder may not be changed";
    else if (error == ENOENT)
        reason = "the file or its folder is not there";
    throw Failure(doing, reason, std::generic_category().message(error));
}

[[noreturn]] void FailToRead(const std::filesystem::path& file, const std::string& detail)
{
    throw Failure("The file " + file.filename().string() + " could not be copied", "it cannot be read", detail);
}

/// A file descriptor that is closed on every way out.
class Descriptor
{
public:
    Descriptor(const std::filesystem::path& path, int flags, mode_t mode = 0)
        : descriptor(::open(path.c_str(), flags | O_CLOEXEC, mode))
    {
    }
    ~Descriptor() { Close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int Number() const { return descriptor; }
    bool Close()
    {
        const int closing = descriptor;
        descriptor = -1;
        return closing < 0 || ::close(closing) == 0;
    }

private:
    int descriptor;
};

/// Returns 0, or the error at which the copy stopped.
int CopyContent(int source, int target)
{
    std::array<char, 1 << 16> buffer{};
    while (true) {
        const ssize_t got = ::read(source, buffer.data(), buffer.size());
        if (got == 0)
            return 0;
        if (got < 0)
            return errno;
        for (ssize_t done = 0; done < got;) {
            const ssize_t written = ::write(target, buffer.data() + done, static_cast<size_t>(got - done));
            if (written < 0)
                return errno;
            done += written;
        }
    }
}

enum class Sync
{
    No,
    Yes
};

/// Returns 0, or the error at which the writing stopped.
int WriteCopy(const std::filesystem::path& source, const std::filesystem::path& copy, Sync sync)
{
    // Without waiting for what may come out of a pipe.
    const Descriptor from(source, O_RDONLY | O_NONBLOCK);
    struct stat attributes = {};
    if (from.Number() < 0 || ::fstat(from.Number(), &attributes) != 0)
        FailToRead(source, std::generic_category().message(errno));
    if (!S_ISREG(attributes.st_mode))
        FailToRead(source, "not a regular file");
    Descriptor to(copy, O_WRONLY | O_CREAT | O_TRUNC, 0600);
    if (to.Number() < 0)
        return errno;
    if (const int error = CopyContent(from.Number(), to.Number()))
        return error;
    if (::fchmod(to.Number(), attributes.st_mode & 07777) != 0)
        return errno;
    if (sync == Sync::Yes && ::fsync(to.Number()) != 0)
        return errno;
    return to.Close() ? 0 : errno;
}

std::string NotWritten(const std::filesystem::path& target)
{
    return "The file " + target.filename().string() + " could not be written";
}

} // namespace

std::filesystem::path FileBehind(const std::filesystem::path& path)
{
    std::error_code missing;
    return std::filesystem::is_symlink(path, missing) ? std::filesystem::weakly_canonical(path, missing) : path;
}

void CopyFileOver(const std::filesystem::path& source, const std::filesystem::path& targetPath,
                  const std::function<void(const std::filesystem::path& beside)>& beforeRename)
{
    // A link stays a link: the file that it leads to is the one replaced.
    const auto target = FileBehind(targetPath);
    const auto beside = BesideFile(target);
    try {
        if (const int error = WriteCopy(source, beside, Sync::Yes))
            Fail(NotWritten(target), error);
        if (beforeRename)
            beforeRename(beside);
        if (::rename(beside.c_str(), target.c_str()) != 0)
            Fail(NotWritten(target), errno);
    } catch (...) {
        ::unlink(beside.c_str());
        throw;
    }
    SyncFolder(target.parent_path());
}

void CopyWorkingFile(const std::filesystem::path& source, const std::filesystem::path& copy)
{
    try {
        if (const int error = WriteCopy(source, copy, Sync::No))
            Fail(NotWritten(copy), error);
    } catch (...) {
        ::unlink(copy.c_str());
        throw;
    }
}

void MoveFileOver(const std::filesystem::path& source, const std::filesystem::path& targetPath)
{
    const auto target = FileBehind(targetPath);
    if (::rename(source.c_str(), target.c_str()) == 0) {
        SyncFolder(target.parent_path());
        return;
    }
    if (errno != EXDEV)
        Fail(NotWritten(target), errno);
    CopyFileOver(source, target);
    DeleteFileIfThere(source);
}

std::filesystem::path BesideFile(const std::filesystem::path& target)
{
    auto beside = target;
    beside += ".new";
    return beside;
}

void DeleteFileIfThere(const std::filesystem::path& file)
{
    if (::unlink(file.c_str()) != 0 && errno != ENOENT)
        Fail("The file " + file.filename().string() + " could not be deleted", errno);
}

void SyncFolder(const std::filesystem::path& folder)
{
    // A folder that cannot be synced (some network disks) does not make the rename undone.
    const Descriptor directory(folder.empty() ? "." : folder, O_RDONLY | O_DIRECTORY);
    if (directory.Number() >= 0)
        ::fsync(directory.Number());
}
