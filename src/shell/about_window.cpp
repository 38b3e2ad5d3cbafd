#include "shell/about_window.h"

#include "platform/artwork.h"
#include "platform/page_frame.h"

#include <QPainter>
#include <QVBoxLayout>

namespace {

class LogoPicture : public QWidget
{
public:
    LogoPicture() { setFixedSize(84, 84); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        DrawLogo(painter, QRectF(rect()).adjusted(1, 1, -1, -1));
    }
};

} // namespace

AboutWindow::AboutWindow(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmabout"));
    setWindowTitle(QStringLiteral("Tavenor 3 --- About..."));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2 * Spacing::Page, Spacing::Page, 2 * Spacing::Page, Spacing::Page);
    layout->setSpacing(Spacing::Between);
    layout->addWidget(new LogoPicture, 0, Qt::AlignHCenter);
    layout->addWidget(MakeLabel(QStringLiteral("Tavenor"), TextRole::Title), 0, Qt::AlignHCenter);
    layout->addWidget(MakeLabel(QStringLiteral("v" TAVENOR_VERSION), TextRole::Body), 0, Qt::AlignHCenter);
    layout->addSpacing(Spacing::Between);
    auto* back = new Button(QStringLiteral("BACK"), QStringLiteral("back"));
    back->setDefault(true);
    connect(back, &QPushButton::clicked, this, &QDialog::accept);
    layout->addWidget(back, 0, Qt::AlignHCenter);
}
