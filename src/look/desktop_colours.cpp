#include "look/desktop_colours.h"

#include "look/theme.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QEventLoop>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

const QString Service = u"org.freedesktop.portal.Desktop"_s;
const QString Path = u"/org/freedesktop/portal/desktop"_s;
const QString Interface = u"org.freedesktop.portal.Settings"_s;
const QString Group = u"org.freedesktop.appearance"_s;
const QString Key = u"color-scheme"_s;
constexpr uint PreferDark = 1;

/// The portal wraps a value that it is asked for once more.
QVariant Unwrapped(QVariant value)
{
    while (value.userType() == qMetaTypeId<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

DesktopColours::DesktopColours(QObject* parent) : QObject(parent)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    // Before this type is registered, a signal that carries it is not connected.
    qRegisterMetaType<QDBusVariant>();
    bus.connect(Service, Path, Interface, u"SettingChanged"_s, this, SLOT(TakeSetting(QString, QString, QDBusVariant)));
    QDBusMessage question = QDBusMessage::createMethodCall(Service, Path, Interface, u"Read"_s);
    question.setArguments({Group, Key});
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    QEventLoop wait;
    connect(answer, &QDBusPendingCallWatcher::finished, this, [answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (!reply.isError())
            TakeSetting(Group, Key, reply.value());
        answer->deleteLater();
    });
    connect(answer, &QDBusPendingCallWatcher::finished, &wait, &QEventLoop::quit);
    // A portal that is running answers before the first window is painted; one that must be started first is not
    // waited for.
    constexpr int longestWait = 150;
    QTimer::singleShot(longestWait, &wait, &QEventLoop::quit);
    wait.exec(QEventLoop::ExcludeUserInputEvents);
}

void DesktopColours::TakeSetting(const QString& group, const QString& key, const QDBusVariant& value)
{
    if (group == Group && key == Key)
        SetDesktopPrefersDark(Unwrapped(value.variant()).toUInt() == PreferDark);
}
