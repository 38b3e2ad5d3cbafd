#pragma once

#include <QScrollArea>

/// Content that is shown whole where it has room, and that rolls up and down where a large font leaves it too little.
class RollingArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit RollingArea(QWidget* content);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
};
