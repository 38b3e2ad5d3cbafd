#include "support/desktop.h"
#include "support/test_window.h"

#include "look/application.h"

/// What shows only on a real desktop: under a window manager, on a screen of a given size.
class DesktopTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheWindowHasItsIconWithoutADesktopFile()
    {
        TestWindow window;
        QProcess reader;
        reader.start("xprop", {"-id", QString::number(window.Window().winId()), "_NET_WM_ICON"});
        QVERIFY(reader.waitForFinished());
        const QByteArray icon = reader.readAll();
        QVERIFY2(icon.contains("Icon (48 x 48)"), icon);
    }
};

int main(int count, char** arguments)
{
    const Desktop desktop(QSize(1024, 600));
    const auto application = MakeApplication(count, arguments);
    DesktopTest tests;
    return QTest::qExec(&tests, count, arguments);
}

#include "desktop_test.moc"
