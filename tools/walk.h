#pragma once

#include "stops.h"

#include <QWidget>

#include <functional>

class MainWindow;
class QDialog;

/// Goes to a page as a player does; where users are listed, the first one is chosen.
void GoTo(MainWindow& window, const Stop& stop);

/// Walks the real program through what players do with it, by its own keys and clicks, and shows each state of each
/// page and window to a visitor. The program works on the starter databases, which have draws and no users.
class Walk
{
public:
    /// `name` is a picture's name without an ending; the window is the main window or the dialog in front of it.
    using Visitor = std::function<void(const QString& name, QWidget& shown)>;

    Walk(MainWindow& mainWindow, Visitor visitor) : window(mainWindow), visit(std::move(visitor)) {}

    /// A draw, a user, entries by hand and by the generator, their check, and a chart.
    void MainJob() const;
    /// Every page and window that the main job does not come by; after it.
    void EverythingElse() const;

private:
    using Action = std::function<void(QDialog&)>;

    void AddDraw() const;
    void AddUserAndEntries() const;
    void GenerateEntries() const;
    void OtherBuildTypes() const;
    void Charts() const;
    void StartPageWindows() const;

    void Show(const QString& name) const;
    void Show(const QString& name, QWidget& shown) const;
    void Press(const QString& name) const;
    void Type(const QString& name, const QString& text) const;
    void Choose(const QString& list, int item) const;
    /// The next modal window is shown, after something was done in it, and then left by the button of that name or,
    /// without one, by the Escape key.
    void Foresee(const QString& name, const QString& leavingButton = {}, const Action& before = {}) const;
    QWidget* Find(const QString& name) const;

    MainWindow& window;
    Visitor visit;
};
