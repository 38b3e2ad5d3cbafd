#include "utilities/database_file.h"

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

bool IsLivePath(const QString& chosen)
{
    const auto reads = [&](const std::filesystem::path& live) { return chosen == QFile::decodeName(live.c_str()); };
    return reads(DrawDataPath) || reads(UserDataPath);
}
