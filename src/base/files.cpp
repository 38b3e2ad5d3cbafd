#include "base/files.h"

#include "base/failure.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

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
    else if (error == EEXIST)
        reason = "an old temporary file is in the way";
    else if (error == ENAMETOOLONG)
        reason = "its name is too long";
    throw Failure(doing, reason, std::generic_category().message(error));
}

/// Has the disk keep what was renamed in a folder.
void SyncFolder(const std::filesystem::path& folder)
{
    // A folder that cannot be synced (some network disks) does not make the rename undone.
    const Descriptor directory(::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (directory.Number() != -1)
        ::fsync(directory.Number());
}

} // namespace

Descriptor::~Descriptor()
{
    if (descriptor != -1)
        ::close(descriptor);
}

Descriptor::Descriptor(Descriptor&& other) noexcept
{
    std::swap(descriptor, other.descriptor);
}

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept
{
    std::swap(descriptor, other.descriptor);
    return *this;
}

Descriptor OpenToRead(const std::filesystem::path& file)
{
    Descriptor opened(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat attributes = {};
    const std::string doing = "The file " + file.filename().string() + " could not be copied";
    if (opened.Number() == -1 || ::fstat(opened.Number(), &attributes) != 0)
        throw Failure(doing, "it cannot be read", std::generic_category().message(errno));
    if (!S_ISREG(attributes.st_mode))
        throw Failure(doing, "it cannot be read", "not a regular file");
    return opened;
}

TemporaryFile::TemporaryFile(std::filesystem::path targetPath, std::filesystem::path file, int opened)
    : target(std::move(targetPath)), path(std::move(file)), descriptor(opened)
{
    if (opened == -1)
        Fail(NotWritten(), errno);
}

TemporaryFile::TemporaryFile(const std::filesystem::path& file)
    : TemporaryFile(file, file, ::open(file.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600))
{
}

TemporaryFile TemporaryFile::Beside(const std::filesystem::path& target, const std::string& name)
{
    const auto replaced = FileBehind(target);
    std::string beside = (replaced.parent_path() / (name + UnfinishedMark + "XXXXXX")).string();
    const int opened = ::mkostemp(beside.data(), O_CLOEXEC);
    return {replaced, beside, opened};
}

TemporaryFile::~TemporaryFile()
{
    if (descriptor.Number() != -1)
        ::unlink(path.c_str());
}

std::string TemporaryFile::NotWritten() const
{
    return "The file " + target.filename().string() + " could not be written";
}

void TemporaryFile::CopyFrom(int source)
{
    constexpr std::size_t atOnce = 65536;
    std::array<char, atOnce> block{};
    std::array<char, atOnce> written{};
    for (off_t place = 0;;) {
        const ssize_t got = ::pread(source, block.data(), block.size(), place);
        if (got == 0)
            return;
        const ssize_t put = got == -1 ? got : ::pwrite(Number(), block.data(), static_cast<size_t>(got), place);
        if (put == -1)
            Fail(NotWritten(), errno);
        if (::pread(Number(), written.data(), static_cast<size_t>(put), place) != put ||
            !std::equal(block.begin(), block.begin() + put, written.begin()))
            throw Failure(NotWritten(), "the disk reported an error", "the copy differs");
        place += put;
    }
}

void TemporaryFile::TakeRightsOf(int source)
{
    struct stat rights = {};
    if (::fstat(source, &rights) != 0)
        return;
    // Only root may give a file away, and others to their own groups only; some disks hold neither owners nor rights.
    const bool owned = ::fchown(Number(), rights.st_uid, rights.st_gid) == 0;
    if (!owned && ::fchown(Number(), static_cast<uid_t>(-1), rights.st_gid) != 0)
        rights.st_mode &= ~static_cast<mode_t>(S_IRWXG);
    ::fchmod(Number(), rights.st_mode & 0777);
}

void TemporaryFile::RenameOver()
{
    if (::fsync(Number()) != 0 || ::rename(path.c_str(), target.c_str()) != 0)
        Fail(NotWritten(), errno);
    descriptor = Descriptor();
    SyncFolder(target.parent_path());
}

std::filesystem::path FileBehind(const std::filesystem::path& path)
{
    std::error_code missing;
    return std::filesystem::is_symlink(path, missing) ? std::filesystem::weakly_canonical(path, missing) : path;
}

void DeleteFileIfThere(const std::filesystem::path& file)
{
    if (::unlink(file.c_str()) != 0 && errno != ENOENT)
        Fail("The file " + file.filename().string() + " could not be deleted", errno);
}
