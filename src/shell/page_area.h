#pragma once

#include <QPointer>
#include <QWidget>

/// The area right of the menu column. Every page covers it whole; where no page is shown, the loading panel is seen. A
/// page that lies beneath another one stays visible but takes no keys; it gets its focus back when it is uncovered.
class PageArea : public QWidget
{
    Q_OBJECT

public:
    explicit PageArea(QWidget* parent = nullptr);

    /// Takes a page in, hidden or not.
    void Add(QWidget* page);

    /// The page that is seen, or nullptr when all are hidden.
    QWidget* FrontPage() const;

    QSize minimumSizeHint() const override;
    /// The least height at which the texts of the shown page are whole.
    int heightForWidth(int width) const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Place
    {
        QWidget* page;
        QPointer<QWidget> focusWhenCovered;
    };

    void EnableFrontPageOnly();

    QList<Place> pages;
};
