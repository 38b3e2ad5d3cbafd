#pragma once

#include <QScrollArea>

/// Content that is shown whole where it has room, and that scrolls where it has too little. What gets the focus is
/// brought into view.
class ScrollingContent : public QScrollArea
{
    Q_OBJECT

public:
    explicit ScrollingContent(QWidget* content);
    ~ScrollingContent() override;
    ScrollingContent(const ScrollingContent&) = delete;
    ScrollingContent& operator=(const ScrollingContent&) = delete;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BringIntoView(QWidget* focused);
};
