#include "support/desktop.h"

#include <QtGlobal>

namespace {

constexpr int LongestStart = 20000;

/// Starts a server and returns the first line that it writes, by which it says that it is ready.
QByteArray FirstLine(QProcess& server, const QString& program, const QStringList& arguments)
{
    server.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    server.start(program, arguments);
    while (!server.canReadLine())
        if (!server.waitForReadyRead(LongestStart))
            qFatal("%s did not start", qPrintable(program));
    return server.readLine().trimmed();
}

} // namespace

Desktop::Desktop(const QSize& screenSize)
{
    const QString size = QString("%1x%2x24").arg(screenSize.width()).arg(screenSize.height());
    qputenv("DISPLAY", ':' + FirstLine(screen, "Xvfb", {"-displayfd", "1", "-nolisten", "tcp", "-screen", "0", size}));
    qputenv("DBUS_SESSION_BUS_ADDRESS", FirstLine(bus, "dbus-daemon", {"--session", "--nofork", "--print-address=1"}));
    FirstLine(windowManager, "openbox", {"--sm-disable", "--startup", "echo ready"});
    qputenv("QT_QPA_PLATFORM", "xcb");
    // One whose dialogs have icons on their buttons.
    qputenv("XDG_CURRENT_DESKTOP", "GNOME");
    for (const char* ofTheRealDesktop : {"QT_QPA_PLATFORMTHEME", "WAYLAND_DISPLAY"})
        qunsetenv(ofTheRealDesktop);
}

Desktop::~Desktop()
{
    for (QProcess* server : {&windowManager, &bus, &screen}) {
        server->terminate();
        server->waitForFinished();
    }
}
