#include "utilities/database_file.h"

#include "base/failure.h"
#include "base/files.h"
#include "store/open_databases.h"

#include <QFile>

using namespace Qt::StringLiterals;

DatabaseFile DrawDatabaseFile()
{
    return {DrawDataPath,
            DrawConnect,
            u"drawdata.tv3"_s,
            u"The draw database"_s,
            u"A copy of the draw record database has been stored."_s,
            u"The draw record database has been replaced."_s};
}

DatabaseFile UserDatabaseFile()
{
    return {UserDataPath,
            {},
            u"userdata.tv3"_s,
            u"The user entry database"_s,
            u"A copy of the user entry database has been stored."_s,
            u"The user entry database has been replaced."_s};
}

void RefuseWorkingFile(const std::filesystem::path& chosen, const std::string& doing)
{
    const std::string name = chosen.filename().string();
    for (const auto& live : {DrawDataPath, UserDataPath}) {
        const std::string liveName = live.filename().string();
        std::error_code missing;
        if ((name.starts_with(live.stem().string() + ".tp1") || name.starts_with(live.stem().string() + ".tp2") ||
             name.starts_with(liveName + UnfinishedMark) || name.starts_with(liveName + '-')) &&
            std::filesystem::equivalent(chosen.parent_path(), live.parent_path(), missing))
            throw Failure(doing, "the chosen name is that of one of the program's own working files", chosen.string());
    }
}

bool IsLivePath(const QString& chosen)
{
    const auto reads = [&](const std::filesystem::path& live) { return chosen == QFile::decodeName(live.c_str()); };
    return reads(DrawDataPath) || reads(UserDataPath);
}
