#include "look/traceless_start.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

bool HasFontCache()
{
    const QString caches = qEnvironmentVariable("XDG_CACHE_HOME", QDir::homePath() + u"/.cache"_s);
    return QFileInfo(caches + u"/fontconfig"_s).isDir();
}

} // namespace

TracelessStart::TracelessStart(const QString& scratch)
{
    const bool noSession = qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR");
    const bool noCache = !HasFontCache();
    if (!noSession && !noCache)
        return;
    folder.emplace(QDir(scratch).filePath(u".tavenor3-"_s));
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
