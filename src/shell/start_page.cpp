#include "shell/start_page.h"

#include "platform/guard.h"
#include "platform/logo_picture.h"
#include "shell/about_window.h"
#include "shell/page_switch.h"
#include "utilities/advanced_window.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

QLabel* Centred(QLabel* label)
{
    label->setAlignment(Qt::AlignCenter);
    return label;
}

} // namespace

StartPage::StartPage(PageSwitch& pageSwitch) : PageFrame(0, QString()), pages(pageSwitch)
{
    setAccessibleName(QStringLiteral("Welcome to Tavenor"));
    Body()->addStretch(3);
    QLabel* welcome = MakeLabel(QStringLiteral("Welcome to"), TextRole::Title);
    QFont light = welcome->font();
    light.setWeight(QFont::Normal);
    welcome->setFont(light);
    welcome->setForegroundRole(QPalette::PlaceholderText);
    Body()->addWidget(Centred(welcome));
    Body()->addWidget(new LogoPicture(110), 0, Qt::AlignHCenter);
    Body()->addWidget(Centred(MakeLabel(QStringLiteral("Tavenor"), TextRole::Product)));
    QLabel* hint =
        MakeLabel(QStringLiteral("Click on the buttons to the left to get a description of what it does.  Click "
                                 "the Tavenor logo above the buttons to return to this page."),
                  TextRole::Body);
    hint->setWordWrap(true);
    hint->setForegroundRole(QPalette::PlaceholderText);
    hint->setMinimumWidth(hint->fontMetrics().averageCharWidth() * 50);
    // A wrapped label finds its height only where the layout gives it a width of its own.
    auto* hintRow = new QHBoxLayout;
    hintRow->addStretch(1);
    hintRow->addWidget(Centred(hint), 4);
    hintRow->addStretch(1);
    Body()->addLayout(hintRow);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Spacing::Between);
    buttons->addStretch(1);
    const auto add = [&](const QString& caption, const QString& name, void (StartPage::*handler)()) {
        auto* button = new Button(caption, name);
        ConnectGuarded(button, &QPushButton::clicked, this, [this, handler] { (this->*handler)(); });
        buttons->addWidget(button);
    };
    add(QStringLiteral("About..."), QStringLiteral("about"), &StartPage::about_Click);
    add(QStringLiteral("Internet Links"), QStringLiteral("F0links"), &StartPage::F0links_Click);
    add(QStringLiteral("Advanced Options"), QStringLiteral("advanced"), &StartPage::advanced_Click);
    buttons->addStretch(1);
    Body()->addLayout(buttons);
    Body()->addStretch(4);
}

void StartPage::about_Click()
{
    AboutWindow(this).exec();
}

void StartPage::F0links_Click()
{
    if (PageFrame* linksPage = pages.Page(25))
        linksPage->Prepare();
}

void StartPage::advanced_Click()
{
    AdvancedWindow(this).exec();
}
