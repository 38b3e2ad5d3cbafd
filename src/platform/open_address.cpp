#include "platform/open_address.h"

#include <QDesktopServices>
#include <QRegularExpression>
#include <QUrl>

namespace {

/// The scheme in lower case; empty where there is none. What stands before the colon of "host.name:8080" is none.
QString SchemeOf(const QString& address)
{
    static const QRegularExpression scheme(QStringLiteral("^([A-Za-z][A-Za-z0-9+.-]*):"));
    static const QRegularExpression hostAndPort(QStringLiteral("^([A-Za-z0-9-]+(\\.[A-Za-z0-9-]+)+|localhost):[0-9]"));
    const QRegularExpressionMatch found = scheme.match(address);
    return found.hasMatch() && !hostAndPort.match(address).hasMatch() ? found.captured(1).toLower() : QString();
}

} // namespace

void OpenAddress(const QString& address)
{
    const QString scheme = SchemeOf(address);
    if (!scheme.isEmpty() && scheme != QLatin1String("http") && scheme != QLatin1String("https") &&
        scheme != QLatin1String("mailto"))
        return;
    const QUrl url(scheme.isEmpty() ? QStringLiteral("http://") + address : address);
    if (url.isValid())
        QDesktopServices::openUrl(url);
}
