#pragma once

#include "controls/page_frame.h"

#include <QLabel>

#include <vector>

class PageSwitch;
class ScreenButton;
struct Game;

/// Pages 21 and 22, the analysis menus: screens that open the charts and the ball data page of the game.
class AnalysisPage : public PageFrame
{
    Q_OBJECT

public:
    AnalysisPage(const Game& drawGame, PageSwitch& pageSwitch);

    /// ShowMainAnalysisPage, ShowThunderballAnalysisPage.
    void Prepare() override;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildHead();
    void BuildScreens();
    /// F21screen_MouseMove, F22screen_MouseMove.
    void screen_MouseMove(int index);
    /// F21screen_Click, F21title_Click, F21label_Click and those of page 22.
    void screen_Click();
    void PlaceShape();

    const Game& game;
    PageSwitch& pages;
    int selectedScreen = 0;
    QLabel* title;
    QLabel* label;
    QLabel* loading;
    QWidget* shape;
    std::vector<ScreenButton*> screens;
};
