#pragma once

#include "base/files.h"

/// The mark by which copies of the program know of each other on one database file: every copy holds it shared while it
/// has the file open, and only a copy that gets it alone may replace the file. A killed process leaves no mark behind.
/// The lock must be taken before the engine opens the file and released after the engine has closed it.
class FileLock
{
public:
    /// Shares the file with other copies; waits a few seconds for one that is replacing it. Throws Failure.
    void Share(const std::filesystem::path& file, const std::string& doing);

    /// Tries to become the only holder, without waiting; false when another copy has the file open.
    bool TryAlone() const;

    /// The locked file, for what reads it without touching the engine's own locks.
    int Number() const { return descriptor.Number(); }

    /// Up to `count` bytes from the start of the locked file.
    std::string FirstBytes(std::size_t count) const;

    void Release() { descriptor = Descriptor(); }

private:
    bool SharePresentFile(const std::filesystem::path& file, const std::string& doing);

    Descriptor descriptor;
};
