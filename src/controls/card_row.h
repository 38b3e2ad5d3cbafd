#pragma once

#include <QBoxLayout>

/// Cards side by side where they have room, one under the other where the page is too narrow for them, as with a large
/// font.
class CardRow : public QBoxLayout
{
    Q_OBJECT

public:
    explicit CardRow(QWidget* parent = nullptr);

    QSize minimumSize() const override;
    void setGeometry(const QRect& place) override;

private:
    QList<QSize> SmallestSizes() const;
};
