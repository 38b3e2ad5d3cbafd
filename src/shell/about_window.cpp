#include "shell/about_window.h"

#include "controls/label.h"
#include "look/button.h"
#include "look/logo_picture.h"
#include "look/theme.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

AboutWindow::AboutWindow(QWidget* parent) : SmallWindow(u"frmabout"_s, u"Tavenor 3 --- About..."_s, parent)
{
    QVBoxLayout* layout = Content();
    layout->setSpacing(Spacing::Between);
    layout->addWidget(new LogoPicture(84), 0, Qt::AlignHCenter);
    layout->addWidget(MakeLabel(u"Tavenor"_s, TextRole::Title), 0, Qt::AlignHCenter);
    layout->addWidget(MakeLabel(QStringLiteral("v" TAVENOR_VERSION), TextRole::Body), 0, Qt::AlignHCenter);
    layout->addSpacing(Spacing::Between);
    auto* back = new Button(u"BACK"_s, u"back"_s);
    back->MakeQuietDefault();
    connect(back, &QPushButton::clicked, this, &QDialog::accept);
    layout->addWidget(back, 0, Qt::AlignHCenter);
}
