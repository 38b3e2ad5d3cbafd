#pragma once

#include <QFrame>
#include <QVBoxLayout>

/// A group of controls on a rounded card. Its layout is vertical; content is added to Content().
class Card : public QFrame
{
    Q_OBJECT

public:
    explicit Card(QWidget* parent = nullptr);

    QVBoxLayout* Content() const { return content; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QVBoxLayout* content;
};

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
