#pragma once

#include <QProcess>
#include <QSize>

/// A virtual screen with a window manager and a session bus of its own, on which the application object that is made
/// next shows its windows. Must be made before that object and outlive it.
class Desktop
{
public:
    explicit Desktop(const QSize& screenSize);
    ~Desktop();

private:
    QProcess screen;
    QProcess bus;
    QProcess windowManager;
};
