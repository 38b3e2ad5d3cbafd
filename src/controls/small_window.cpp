#include "controls/small_window.h"

#include "controls/scrolling_content.h"
#include "look/theme.h"

#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

SmallWindow::SmallWindow(const QString& name, const QString& title, QWidget* parent) : QDialog(parent)
{
    setObjectName(name);
    setWindowTitle(title);
    auto* sheet = new QWidget;
    content = new QVBoxLayout(sheet);
    content->setContentsMargins(Spacing::Page, Spacing::Page, Spacing::Page, Spacing::Page);
    content->setSpacing(Spacing::Cards);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(new ScrollingContent(sheet));
}

QSize SmallWindow::sizeHint() const
{
    // The desktop puts its frame around the window.
    constexpr QSize frameRoom(12, 48);
    const QSize room = screen()->availableSize() - frameRoom;
    QSize wanted = QDialog::sizeHint().expandedTo(usualSize);
    if (wanted.height() > room.height())
        wanted.rwidth() += style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    return wanted.boundedTo(room);
}

void SmallWindow::setVisible(bool visible)
{
    if (visible && !testAttribute(Qt::WA_Resized))
        resize(sizeHint());
    QDialog::setVisible(visible);
}
