#include "records/journals.h"

#include "base/failure.h"
#include "base/files.h"

#include <array>
#include <fstream>
#include <string_view>

namespace {

using namespace std::string_view_literals;

std::filesystem::path Beside(const std::filesystem::path& file, const char* ending)
{
    auto path = FileBehind(file);
    path += ending;
    return path;
}

/// Nothing can be read where there is no such file, or one of another kind, which reading might wait for.
std::ifstream OpenIfThere(const std::filesystem::path& file)
{
    std::error_code missing;
    return std::filesystem::is_regular_file(file, missing) ? std::ifstream(file, std::ios::binary) : std::ifstream();
}

} // namespace

void DeleteJournals(const std::filesystem::path& file)
{
    for (const char* ending : {"-journal", "-wal", "-shm"})
        DeleteFileIfThere(Beside(file, ending));
}

void RefuseUnfinished(const std::filesystem::path& file, const std::string& doing)
{
    for (const char* ending : {"-journal", "-wal"})
        // The engine begins a journal that does not count any more with a zero.
        if (OpenIfThere(Beside(file, ending)).get() > 0)
            throw Failure(doing, "the chosen file is being changed, or a change of it was cut short",
                          Beside(file, ending).string());
}

void RefuseJournalOfSeveralFiles(const std::filesystem::path& file, const std::string& doing)
{
    const auto path = Beside(file, "-journal");
    std::ifstream journal = OpenIfThere(path);
    // The name of a further file stands at the end of a journal, and after it four bytes with its length, four with
    // a sum and eight that mark it.
    constexpr auto mark = "\xd9\xd5\x05\xf9\x20\xa1\x63\xd7"sv;
    std::array<char, 16> end{};
    journal.seekg(-static_cast<std::streamoff>(end.size()), std::ios::end);
    journal.read(end.data(), end.size());
    if (journal && std::string_view(end.data() + 8, 8) == mark)
        throw Failure(doing, "the journal beside it names another file", path.string());
}
