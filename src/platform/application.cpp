#include "platform/application.h"

#include "platform/style.h"
#include "platform/traceless_start.h"

#include <QFontDatabase>

std::unique_ptr<QApplication> MakeApplication(int& count, char** arguments, const QString& scratch)
{
    const TracelessStart tracelessStart(scratch);
    auto application = std::make_unique<QApplication>(count, arguments);
    // The fonts are read here, while what is written for them is cleared away.
    QFontDatabase::families();
    QApplication::setStyle(new Style);
    QApplication::setApplicationName(QStringLiteral("tavenor3"));
    // By this name the desktop finds the window's icon.
    QApplication::setDesktopFileName(QStringLiteral("tavenor3"));
    return application;
}
