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
