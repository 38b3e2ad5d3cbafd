#include "shell/splash_window.h"

#include "platform/artwork.h"
#include "platform/theme.h"

#include <QApplication>
#include <QPainter>
#include <QScreen>

SplashWindow::SplashWindow() : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint)
{
    setObjectName(QStringLiteral("frmsplash"));
    setWindowTitle(QStringLiteral("Tavenor 3"));
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
    painter.drawText(QRect(0, 144, width(), 50), Qt::AlignHCenter | Qt::AlignTop, QStringLiteral("Tavenor 3"));
}
