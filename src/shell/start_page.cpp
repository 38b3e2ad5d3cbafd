#include "shell/start_page.h"

#include "controls/guard.h"
#include "controls/label.h"
#include "controls/page_switch.h"
#include "look/button.h"
#include "look/logo_picture.h"
#include "look/theme.h"
#include "shell/about_window.h"
#include "utilities/advanced_window.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QLabel* Centred(QLabel* label)
{
    label->setAlignment(Qt::AlignCenter);
    return label;
}

} // namespace

StartPage::StartPage(PageSwitch& pageSwitch) : PageFrame(0, QString()), pages(pageSwitch)
{
    setAccessibleName(u"Welcome to Tavenor"_s);
    Body()->addStretch(3);
    QLabel* welcome = MakeLabel(u"Welcome to"_s, TextRole::Title);
    QFont light = welcome->font();
    light.setWeight(QFont::Normal);
    welcome->setFont(light);
    welcome->setForegroundRole(QPalette::PlaceholderText);
    Body()->addWidget(Centred(welcome));
    Body()->addWidget(new LogoPicture(110), 0, Qt::AlignHCenter);
    Body()->addWidget(Centred(MakeLabel(u"Tavenor"_s, TextRole::Product)));
    QLabel* hint = MakeLabel(u"Click on the buttons to the left to get a description of what it does.  Click "
                             u"the Tavenor logo above the buttons to return to this page."_s,
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
    add(u"About..."_s, u"about"_s, &StartPage::about_Click);
    add(u"Internet Links"_s, u"F0links"_s, &StartPage::F0links_Click);
    add(u"Advanced Options"_s, u"advanced"_s, &StartPage::advanced_Click);
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
