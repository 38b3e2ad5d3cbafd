#include "utilities/open_address.h"

#include <QDesktopServices>
#include <QRegularExpression>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

/// The scheme in lower case; empty where there is none. What stands before the colon of "host.name:8080" is none.
QString SchemeOf(const QString& address)
{
    static const QRegularExpression scheme(u"^([A-Za-z][A-Za-z0-9+.-]*):"_s);
    static const QRegularExpression hostAndPort(u"^([A-Za-z0-9-]+(\\.[A-Za-z0-9-]+)+|localhost):[0-9]"_s);
    const QRegularExpressionMatch found = scheme.match(address);
    return found.hasMatch() && !hostAndPort.match(address).hasMatch() ? found.captured(1).toLower() : QString();
}

QUrl UrlOf(const QString& address)
{
    const QString scheme = SchemeOf(address);
    const QUrl url(scheme.isEmpty() ? u"http://"_s + address : address);
    return scheme == "mailto"_L1 ? url.adjusted(QUrl::RemoveQuery | QUrl::RemoveFragment) : url;
}

} // namespace

bool CanBeOpened(const QString& address)
{
    static const QStringList schemes{{}, u"http"_s, u"https"_s, u"mailto"_s};
    return schemes.contains(SchemeOf(address)) && UrlOf(address).isValid();
}

void OpenAddress(const QString& address)
{
    QDesktopServices::openUrl(UrlOf(address));
}
