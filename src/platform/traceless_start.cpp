#include "platform/traceless_start.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

bool HasFontCache()
{
    const QString caches = qEnvironmentVariable("XDG_CACHE_HOME", QDir::homePath() + QStringLiteral("/.cache"));
    return QFileInfo(caches + QStringLiteral("/fontconfig")).isDir();
}

} // namespace

TracelessStart::TracelessStart(const QString& scratch)
{
    const bool noSession = qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR");
    const bool noCache = !HasFontCache();
    if (!noSession && !noCache)
        return;
    folder.emplace(QDir(scratch).filePath(QStringLiteral(".tavenor3-")));
    if (!folder->isValid())
        return;
    if (noSession)
        temporaryFiles.emplace("TMPDIR", QFile::encodeName(folder->path()));
    if (noCache)
        caches.emplace("XDG_CACHE_HOME", QFile::encodeName(folder->path()));
}

TracelessStart::OtherValue::OtherValue(const char* variable, const QByteArray& value)
    : name(variable), usual(qgetenv(variable))
{
    qputenv(name, value);
}

TracelessStart::OtherValue::~OtherValue()
{
    if (usual.isNull())
        qunsetenv(name);
    else
        qputenv(name, usual);
}
