#include "utilities/open_address.h"

#include <QDesktopServices>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

/// A mail address loses its parameters, which could attach a file.
QUrl UrlOf(const QString& address)
{
    const QUrl url = QUrl::fromUserInput(address);
    return url.scheme() == "mailto"_L1 ? url.adjusted(QUrl::RemoveQuery | QUrl::RemoveFragment) : url;
}

} // namespace

bool CanBeOpened(const QString& address)
{
    static const QStringList schemes{u"http"_s, u"https"_s, u"mailto"_s};
    return schemes.contains(UrlOf(address).scheme());
}

void OpenAddress(const QString& address)
{
    QDesktopServices::openUrl(UrlOf(address));
}
