#pragma once

#include <QAbstractButton>

/// A label that acts when it is clicked, or by Enter or Space when it has the focus. Its text has the colour
/// of its foreground role.
class ClickLabel : public QAbstractButton
{
    Q_OBJECT

public:
    explicit ClickLabel(const QString& caption, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
};
