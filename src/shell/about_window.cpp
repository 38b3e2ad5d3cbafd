#include "shell/about_window.h"

#include "platform/logo_picture.h"
#include "platform/page_frame.h"

#include <QVBoxLayout>

AboutWindow::AboutWindow(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmabout"));
    setWindowTitle(QStringLiteral("Tavenor 3 --- About..."));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2 * Spacing::Page, Spacing::Page, 2 * Spacing::Page, Spacing::Page);
    layout->setSpacing(Spacing::Between);
    layout->addWidget(new LogoPicture(84), 0, Qt::AlignHCenter);
    layout->addWidget(MakeLabel(QStringLiteral("Tavenor"), TextRole::Title), 0, Qt::AlignHCenter);
    layout->addWidget(MakeLabel(QStringLiteral("v" TAVENOR_VERSION), TextRole::Body), 0, Qt::AlignHCenter);
    layout->addSpacing(Spacing::Between);
    auto* back = new Button(QStringLiteral("BACK"), QStringLiteral("back"));
    back->setDefault(true);
    connect(back, &QPushButton::clicked, this, &QDialog::accept);
    layout->addWidget(back, 0, Qt::AlignHCenter);
}
