#pragma once

#include "look/button.h"

struct AnalysisScreen;
struct Game;

/// A screen of an analysis menu: a small picture, drawn from fixed examples, of the chart or page that it opens. It
/// tells when the pointer or the Tab key comes over it.
class ScreenButton : public QAbstractButton
{
    Q_OBJECT

public:
    ScreenButton(const Game& drawGame, const AnalysisScreen& shownScreen, const QString& name);

Q_SIGNALS:
    void PointedAt();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    void DrawChart(QPainter& painter, const QRectF& picture) const;
    void DrawBallData(QPainter& painter, const QRectF& picture) const;

    const Game& game;
    const AnalysisScreen& screen;
};
