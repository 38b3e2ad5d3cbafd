// Writes a picture of the whole screen of an X display: take_picture FILE.png

#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>

#include <cstdio>

int main(int count, char** arguments)
{
    if (count != 2) {
        std::fputs("Usage: take_picture FILE.png\n", stderr);
        return 2;
    }
    const QString file = QString::fromLocal8Bit(arguments[1]);
    const QGuiApplication application(count, arguments);
    if (!QGuiApplication::primaryScreen()->grabWindow(0).save(file)) {
        std::fprintf(stderr, "take_picture: %s could not be written\n", arguments[1]);
        return 1;
    }
    return 0;
}
