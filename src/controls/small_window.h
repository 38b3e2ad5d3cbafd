#pragma once

#include <QDialog>

class QVBoxLayout;

/// A window that serves one task, in front of the main window. Where the screen is too small for it, it scrolls.
class SmallWindow : public QDialog
{
    Q_OBJECT

public:
    SmallWindow(const QString& name, const QString& title, QWidget* parent);

    /// As large as the content wants to be, or as the screen has room for.
    QSize sizeHint() const override;
    void setVisible(bool visible) override;

protected:
    QVBoxLayout* Content() const { return content; }
    /// Opens at a size at which its content can show more than it needs to.
    void OpenAt(const QSize& size) { usualSize = size; }

private:
    QVBoxLayout* content;
    QSize usualSize;
};
