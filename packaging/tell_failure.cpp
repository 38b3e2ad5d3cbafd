// Shows one message in the program's own box, for the launcher, which may have no terminal: tell_failure MESSAGE

#include "platform/message_box.h"
#include "platform/style.h"
#include "platform/traceless_start.h"

#include <QApplication>
#include <QDir>
#include <QFontDatabase>

#include <optional>

int main(int count, char** arguments)
{
    if (count != 2)
        return 2;
    std::optional<TracelessStart> tracelessStart(std::in_place, QDir::tempPath());
    QApplication application(count, arguments);
    QFontDatabase::families();
    tracelessStart.reset();
    QApplication::setStyle(new Style);
    QApplication::setDesktopFileName(QStringLiteral("tavenor3"));
    ShowCritical(QString::fromLocal8Bit(arguments[1]));
    return 0;
}
