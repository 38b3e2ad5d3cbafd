#pragma once

#include "analysis/ball_data.h"
#include "balls/ball_disc.h"
#include "controls/page_frame.h"

#include <QLabel>

#include <array>

class QLineEdit;

/// Pages 23 and 24: how often, and when last, one ball of the game was drawn. They lie over the analysis menus.
class BallDataPage : public PageFrame
{
    Q_OBJECT

public:
    explicit BallDataPage(const Game& drawGame);

    /// ShowMainBallDataPage, ShowThunderballBallDataPage.
    void Prepare() override;

private:
    void BuildCards();
    /// F23enter_Change, F24enter_Change.
    void enter_Change();
    /// F23enter_KeyPress, F24enter_KeyPress on Enter.
    void enter_KeyPress();
    /// ShowMainBallData, ShowThunderballBallData.
    void ShowBallData(int ball);

    const Game& game;
    QLineEdit* enter;
    LabelledBall mainBall;
    /// The ball as a thunderball; on page 24 only.
    LabelledBall extraBall{};
    std::array<QLabel*, 4> data{};
};
