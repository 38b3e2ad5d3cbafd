#include "look/application.h"

#include "look/style.h"
#include "look/traceless_start.h"

#include <QFontDatabase>

using namespace Qt::StringLiterals;

std::unique_ptr<QApplication> MakeApplication(int& count, char** arguments, const QString& scratch)
{
    const TracelessStart tracelessStart(scratch);
    auto application = std::make_unique<QApplication>(count, arguments);
    // The fonts are read here, while what is written for them is cleared away.
    QFontDatabase::families();
    QApplication::setStyle(new Style);
    QApplication::setApplicationName(u"tavenor3"_s);
    // By this name the desktop finds the window's icon.
    QApplication::setDesktopFileName(u"tavenor3"_s);
    return application;
}
