#include "look/application.h"

#include "look/artwork.h"
#include "look/desktop_colours.h"
#include "look/style.h"

#include <QIcon>

using namespace Qt::StringLiterals;

std::unique_ptr<QApplication> MakeApplication(int& count, char** arguments)
{
    auto application = std::make_unique<QApplication>(count, arguments);
    QApplication::setStyle(new Style);
    new DesktopColours(application.get());
    QApplication::setApplicationName(u"tavenor3"_s);
    // By this name a desktop finds the installed icon; where nothing is installed the window brings its own.
    QApplication::setDesktopFileName(u"tavenor3"_s);
    QIcon icon;
    for (const int side : {16, 32, 48, 64, 128})
        icon.addPixmap(QPixmap::fromImage(LogoImage(side)));
    QApplication::setWindowIcon(icon);
    return application;
}
