#pragma once

#include <QWidget>

/// The product's logo as a picture, a square of the given side in logical pixels.
class LogoPicture : public QWidget
{
public:
    explicit LogoPicture(int side, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};
