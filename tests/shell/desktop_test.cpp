#include "support/look_faults.h"
#include "support/test_window.h"

#include "look/application.h"
#include "look/desktop_colours.h"
#include "look/theme.h"
#include "walk.h"

#include <QDBusConnection>
#include <QDBusVariant>
#include <QFileDialog>
#include <QProcess>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSocketNotifier>
#include <QWindow>

#include <cstdio>
#include <list>
#include <unistd.h>

namespace {

/// A virtual screen with a window manager and a session bus of its own, on which the application object that is made
/// next shows its windows; it must outlive that object.
class Desktop
{
public:
    explicit Desktop(const QString& program)
    {
        const QString size = qEnvironmentVariable("SCREEN") + "x24";
        qputenv("DISPLAY", ':' + Start("Xvfb", {"-displayfd", "1", "-nolisten", "tcp", "-screen", "0", size}));
        qputenv("DBUS_SESSION_BUS_ADDRESS", Start("dbus-daemon", {"--session", "--nofork", "--print-address=1"}));
        Start("openbox", {"--sm-disable", "--startup", "echo ready"});
        Start(program, {"portal"});
        portal = &servers.front();
    }
    ~Desktop()
    {
        for (QProcess& server : servers) {
            server.terminate();
            server.waitForFinished();
        }
    }

    /// Has the portal tell which colours are preferred: 1 for dark.
    void Prefer(uint scheme)
    {
        portal->write(QByteArray::number(scheme));
        QVERIFY(portal->waitForBytesWritten());
    }

private:
    /// Returns the first line that a server writes, by which it says that it is ready.
    QByteArray Start(const QString& program, const QStringList& arguments)
    {
        QProcess& server = servers.emplace_front();
        server.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        server.start(program, arguments);
        while (!server.canReadLine())
            if (!server.waitForReadyRead(20000))
                qFatal("%s did not start", qPrintable(program));
        return server.readLine().trimmed();
    }

    std::list<QProcess> servers;
    QProcess* portal;
};

Desktop* desktop;

/// The desktop's portal, as far as it tells which colours are preferred: what this program does when it is started with
/// the word "portal". It tells what it reads from its input.
class FakePortal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    FakePortal()
    {
        bus.registerObject("/org/freedesktop/portal/desktop", this,
                           QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
        bus.registerService("org.freedesktop.portal.Desktop");
        connect(&input, &QSocketNotifier::activated, this, [this] {
            char line[8] = {};
            if (::read(0, line, sizeof line - 1) <= 0)
                return QCoreApplication::quit();
            preferred = QString(line).toUInt();
            Q_EMIT SettingChanged("org.freedesktop.appearance", "contrast", QDBusVariant(1U));
            Q_EMIT SettingChanged("org.freedesktop.appearance", "color-scheme", QDBusVariant(preferred));
        });
        std::puts("ready");
        std::fflush(stdout);
    }

public Q_SLOTS:
    QDBusVariant Read(const QString& /*group*/, const QString& /*key*/)
    {
        return QDBusVariant(QVariant::fromValue(QDBusVariant(preferred)));
    }

Q_SIGNALS:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    QDBusConnection bus = QDBusConnection::sessionBus();
    QSocketNotifier input{0, QSocketNotifier::Read};
    uint preferred = 0;
};

/// The controls of the window that are not wholly in sight when they have the focus, or lack the room that they need.
QString NotReached(QWidget& window)
{
    QStringList hidden;
    const QPointer<QWidget> before = window.focusWidget();
    for (auto* control : window.findChildren<QWidget*>()) {
        if (!control->isVisible() || !control->isEnabled() || (control->focusPolicy() & Qt::TabFocus) == 0)
            continue;
        control->setFocus(Qt::TabFocusReason);
        const QSize seen = control->visibleRegion().boundingRect().size();
        // Of a grid or a chart a part is enough; it scrolls.
        if (seen.width() < qMax(control->width(), control->minimumSizeHint().width()) ||
            seen.height() < qMin(control->height(), 120))
            hidden.append(control->objectName() + " is not reached");
    }
    if (before != nullptr)
        before->setFocus();
    return hidden.join(", ");
}

} // namespace

/// What shows only on a real desktop: under a window manager, on a screen of a given size.
class DesktopTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Run for each screen, by the tests' own environment.
    void EveryWindowStaysOnTheScreenAndEveryControlCanBeReached()
    {
        const TestFolder files(TestFolder::Content::Starter);
        OpenDatabaseFiles();
        MainWindow window;
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const QSize opened = window.size();
        const Walk walk(window, [&](const QString& name, QWidget& shown) {
            // The window manager places a window and gives it the focus in its own time. A window without controls,
            // such as the splash window, never gets it. A scaled size is rounded.
            const QRect room = window.screen()->availableGeometry().adjusted(-1, -1, 1, 1);
            const bool takesKeys = !shown.findChildren<QAbstractButton*>().isEmpty();
            QTest::qWait(50);
            shown.activateWindow();
            QVERIFY2(QTest::qWaitFor([&] { return shown.isActiveWindow() || !takesKeys; }), qPrintable(name));
            // Asked for before the window manager has made it, the frame of a new window is told wrongly for ever.
            const QMargins frame = window.windowHandle()->frameMargins();
            QVERIFY2(QTest::qWaitFor([&] { return room.contains(shown.geometry().marginsAdded(frame)); }),
                     qPrintable(name + QDebug::toString(shown.geometry())));
            QVERIFY2(window.size() == opened, qPrintable(name));
            QVERIFY2(!shown.windowIcon().isNull(), qPrintable(name));
            for (const auto* button : shown.findChildren<QPushButton*>())
                QVERIFY2(button->icon().isNull() && button->font().weight() == QFont::DemiBold,
                         qPrintable(name + ": " + button->text()));
            if (qobject_cast<QFileDialog*>(&shown) == nullptr)
                QVERIFY2(NotReached(shown).isEmpty(), qPrintable(name + ": " + NotReached(shown)));
            const QStringList withoutRing = shown.devicePixelRatio() == 1 ? FocusFaults(shown) : QStringList();
            QVERIFY2(withoutRing.isEmpty(), qPrintable(name + ": " + withoutRing.join(", ")));
        });
        walk.MainJob();
        walk.EverythingElse();
    }

    void DarkIsFollowedAtTheStartAndWhenItChanges()
    {
        TestWindow window;
        const auto seen = [&window](int x) { return window.Window().grab().toImage().pixelColor(x, 1); };
        for (const uint scheme : {1U, 0U, 1U, 2U}) {
            desktop->Prefer(scheme);
            QTRY_COMPARE(CurrentTheme().dark, scheme == 1);
            QTRY_COMPARE(seen(1), CurrentTheme().menu);
            QTRY_COMPARE(seen(window.Window().width() - 2), CurrentTheme().page);
        }
        desktop->Prefer(1);
        QTRY_VERIFY(CurrentTheme().dark);
        SetDesktopPrefersDark(false);
        QVERIFY(!CurrentTheme().dark);
        const DesktopColours started;
        QVERIFY(CurrentTheme().dark);
        SetDesktopPrefersDark(false);
        // A desktop without a portal tells it by its palette.
        QPalette ofDesktop(Qt::white, Qt::black);
        ApplyTheme(ofDesktop);
        QVERIFY(CurrentTheme().dark);
        QApplication::setPalette(QPalette());
    }

    void ButtonsOfMessageBoxesLookLikeThoseOfThePages()
    {
        QMessageBox box(QMessageBox::NoIcon, {}, "Text", QMessageBox::Yes | QMessageBox::No);
        box.show();
        QVERIFY(QTest::qWaitForWindowActive(&box));
        QAbstractButton* yes = box.button(QMessageBox::Yes);
        QCOMPARE(yes->font().weight(), int(QFont::DemiBold));
        const QImage quiet = yes->grab().toImage();
        QTest::keyPress(&box, Qt::Key_Alt);
        QVERIFY(yes->grab().toImage() != quiet);
        QTest::keyRelease(&box, Qt::Key_Alt);
        QCOMPARE(yes->grab().toImage(), quiet);
    }

    void KeysOfTheDesktopLeadToAFieldThatShowsIt()
    {
        TestWindow window;
        QProcess player;
        player.start("xdotool", {"key", "--delay", "100", "alt+a", "Return", "4", "2", "Return"});
        QTRY_COMPARE(window.FocusedName(), QString("F6MBall1_2"));
        QVERIFY(player.waitForFinished());
        QCOMPARE(window.TextOf("F6MBall1_1"), QString("42"));
        const auto isRinged = [&window](const QString& field) {
            const QWidget& ball = *window.Find(field)->parentWidget();
            const QPoint left = ball.mapTo(&window.Window(), QPoint(0, ball.height() / 2));
            const WId shown = window.Window().winId();
            const QImage row = ball.screen()->grabWindow(shown, left.x(), left.y(), ball.width(), 1).toImage();
            for (int x = 0; x < row.width(); ++x)
                if (row.pixelColor(x, 0) == CurrentTheme().accent)
                    return true;
            return false;
        };
        QTRY_VERIFY(isRinged("F6MBall1_2") && !isRinged("F6MBall1_1"));
    }

    void WhatIsClickedStaysUnderTheMouse()
    {
        TestWindow window;
        AddUser(users, "Ann", 10);
        window.OpenPage(3, 2);
        window.Window().setWindowState(Qt::WindowNoState);
        window.Window().resize(800, 400);
        const QWidget& store = *window.Find("F18store");
        QScrollBar& bar = *window.Window().findChildren<QScrollArea*>().last()->verticalScrollBar();
        // The window manager places the window in its own time.
        QTest::qWait(500);
        QVERIFY(bar.maximum() > 0);
        const int below = store.mapTo(&window.Window(), QPoint()).y() + 20 - window.Window().height();
        bar.setValue(bar.value() + below);
        const QPoint edge = store.mapToGlobal(QPoint(store.width() / 2, 5));
        window.modals.WillPress(QMessageBox::Ok);
        QProcess::execute("xdotool", {"mousemove", QString::number(edge.x()), QString::number(edge.y()), "click", "1"});
        QTRY_VERIFY(window.modals.AllCame());
    }
};

int main(int count, char** arguments)
{
    if (count == 2 && QString(arguments[1]) == "portal") {
        const QCoreApplication application(count, arguments);
        const FakePortal portal;
        return QCoreApplication::exec();
    }
    Desktop started(arguments[0]);
    desktop = &started;
    const auto application = MakeApplication(count, arguments);
    DesktopTest tests;
    return QTest::qExec(&tests, count, arguments);
}

#include "desktop_test.moc"
