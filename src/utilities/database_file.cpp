#include "utilities/database_file.h"

#include "shell/open_databases.h"

#include <QFile>

DatabaseFile DrawDatabaseFile()
{
    return {DrawDataPath,
            DrawConnect,
            QStringLiteral("drawdata.tv3"),
            QStringLiteral("The draw database"),
            QStringLiteral("A copy of the draw record database has been stored."),
            QStringLiteral("The draw record database has been replaced.")};
}

DatabaseFile UserDatabaseFile()
{
    return {UserDataPath,
            {},
            QStringLiteral("userdata.tv3"),
            QStringLiteral("The user entry database"),
            QStringLiteral("A copy of the user entry database has been stored."),
            QStringLiteral("The user entry database has been replaced.")};
}

bool IsLivePath(const QString& chosen)
{
    const auto reads = [&](const std::filesystem::path& live) { return chosen == QFile::decodeName(live.c_str()); };
    return reads(DrawDataPath) || reads(UserDataPath);
}
