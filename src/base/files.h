#pragma once

#include <filesystem>
#include <string>

/// A file descriptor that is closed on every way out.
class Descriptor
{
public:
    Descriptor() = default;
    explicit Descriptor(int opened) : descriptor(opened) {}
    ~Descriptor();
    Descriptor(Descriptor&& other) noexcept;
    Descriptor& operator=(Descriptor&& other) noexcept;

    /// -1 where nothing is open.
    int Number() const { return descriptor; }

private:
    int descriptor = -1;
};

/// Opens a regular file for reading, without waiting for what may come out of a pipe. Throws Failure.
Descriptor OpenToRead(const std::filesystem::path& file);

/// A file that is made anew, so that it neither takes the place of another one nor follows a link, and that is gone at
/// the end of its life unless it has taken the name of another file.
class TemporaryFile
{
public:
    /// Makes an empty file of exactly this path. Throws Failure, also where something of that name is there already.
    explicit TemporaryFile(const std::filesystem::path& file);

    /// Makes one in the folder of the target, under the given name and an ending that nobody can foresee. `target` is
    /// the file that it is to replace, and a link stands for the file to which it leads.
    static TemporaryFile Beside(const std::filesystem::path& target, const std::string& name);
    ~TemporaryFile();
    TemporaryFile(TemporaryFile&& other) noexcept = default;

    const std::filesystem::path& Path() const { return path; }
    int Number() const { return descriptor.Number(); }

    /// Takes over the whole content of an open file, and compares it byte by byte. Throws Failure.
    void CopyFrom(int source);

    /// Takes over owner, group and access rights of an open file, as far as the disk and the player's rights permit.
    void TakeRightsOf(int source);

    /// Takes the name of the target, which is, at every moment, either the old file or the whole new one: the content
    /// is synced before, and the folder after. Throws Failure; the target is as it was then.
    void RenameOver();

private:
    TemporaryFile(std::filesystem::path targetPath, std::filesystem::path file, int opened);
    std::string NotWritten() const;

    std::filesystem::path target;
    std::filesystem::path path;
    Descriptor descriptor;
};

/// What the names of files that are made beside another one have in common, after the name given and before the rest.
inline constexpr const char* UnfinishedMark = ".unfinished-";

/// The file that a path leads to: a symbolic link's file, else the path itself. The engine keeps its own files beside
/// that one.
std::filesystem::path FileBehind(const std::filesystem::path& path);

/// Deletes a file; one that is not there is no error. Throws Failure.
void DeleteFileIfThere(const std::filesystem::path& file);
