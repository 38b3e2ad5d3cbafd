#pragma once

#include <QColor>
#include <QWidget>

class QLabel;
struct BallColours;

/// Paints a ball of one colour, lit from the upper left, with a thin dark outline and a soft shadow. The shadow needs
/// about three pixels around the ball.
void PaintBall(QPainter& painter, const QRectF& ball, const QColor& colour);

/// A ball: a disc of one colour, lit from the upper left, on which a label or a text field shows the number. Its colour
/// is the Window role of its palette. In a large window it is a step larger.
class BallDisc : public QWidget
{
    Q_OBJECT

public:
    explicit BallDisc(const QString& name, QWidget* parent = nullptr);

    /// Takes the control on the ball that shows the number; the ball draws a ring while it has the focus.
    void Carry(QWidget* number);
    void SetColour(const QColor& colour);
    /// Makes the ball a little smaller, for two draws that stand side by side.
    void MakeCompact();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void PlaceNumber();
    QRectF BallRect() const;

    QWidget* carried = nullptr;
    bool compact = false;
};

/// A ball with a label on it.
struct LabelledBall
{
    BallDisc* disc;
    QLabel* number;

    void Show(const QString& text, const BallColours& colours) const;
};

/// Puts a label of that object name on a ball that has no number yet.
LabelledBall PutLabelOn(BallDisc* disc, const QString& numberName);
