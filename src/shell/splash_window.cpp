#include "shell/splash_window.h"

#include "look/artwork.h"
#include "look/theme.h"

#include <QApplication>
#include <QPainter>
#include <QScreen>

using namespace Qt::StringLiterals;

SplashWindow::SplashWindow() : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint)
{
    setObjectName(u"frmsplash"_s);
    setWindowTitle(u"Tavenor 3"_s);
    resize(420, 240);
    if (const QScreen* screen = QApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
}

void SplashWindow::ShowAtOnce()
{
    show();
    repaint();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void SplashWindow::paintEvent(QPaintEvent* /*event*/)
{
    const Theme& theme = CurrentTheme();
    QPainter painter(this);
    painter.fillRect(rect(), theme.menu);
    painter.setPen(QPen(theme.openGroup, 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
    DrawLogo(painter, QRectF(width() / 2.0 - 46, 36, 92, 92));
    painter.setFont(FontFor(TextRole::Title));
    painter.setPen(Qt::white);
    painter.drawText(QRect(0, 144, width(), 50), Qt::AlignHCenter | Qt::AlignTop, u"Tavenor 3"_s);
}
