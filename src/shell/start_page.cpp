#include "shell/start_page.h"

#include "controls/guard.h"
#include "controls/label.h"
#include "controls/page_switch.h"
#include "controls/small_window.h"
#include "look/artwork.h"
#include "look/button.h"
#include "look/theme.h"
#include "utilities/advanced_window.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

QLabel* Centred(QLabel* label)
{
    label->setAlignment(Qt::AlignCenter);
    return label;
}

/// The product's logo, a square of the given side in logical pixels.
class LogoPicture : public QWidget
{
public:
    explicit LogoPicture(int side = 0) { setFixedSize(side, side); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        DrawLogo(painter, QRectF(rect()).adjusted(1, 1, -1, -1));
    }
};

/// The about window, frmabout.
class AboutWindow : public SmallWindow
{
public:
    explicit AboutWindow(QWidget* parent) : SmallWindow(u"frmabout"_s, u"Tavenor 3 --- About..."_s, parent)
    {
        Content()->setSpacing(Spacing::Between);
        auto* back = new Button(u"BACK"_s, u"back"_s);
        back->MakeQuietDefault();
        connect(back, &QPushButton::clicked, this, &QDialog::accept);
        for (QWidget* shown :
             std::initializer_list<QWidget*>{new LogoPicture(84), MakeLabel(u"Tavenor"_s, TextRole::Title),
                                             MakeLabel(QStringLiteral("v" TAVENOR_VERSION), TextRole::Body), back})
            Content()->addWidget(shown, 0, Qt::AlignHCenter);
    }
};

} // namespace

StartPage::StartPage(PageSwitch& pages) : PageFrame(0, QString()), logo(new LogoPicture)
{
    setAccessibleName(u"Welcome to Tavenor"_s);
    Body()->addStretch(1);
    QLabel* welcome = MakeLabel(u"Welcome to"_s, TextRole::Title);
    QFont light = welcome->font();
    light.setWeight(QFont::Normal);
    welcome->setFont(light);
    welcome->setForegroundRole(QPalette::PlaceholderText);
    Body()->addWidget(Centred(welcome));
    Body()->addWidget(logo, 0, Qt::AlignHCenter);
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
    const auto add = [&](const QString& caption, const QString& name, const std::function<void()>& handler) {
        auto* button = new Button(caption, name);
        ConnectGuarded(button, &QPushButton::clicked, this, handler);
        buttons->addWidget(button);
    };
    // about_Click, F0links_Click and advanced_Click.
    add(u"About..."_s, u"about"_s, [this] { AboutWindow(this).exec(); });
    add(u"Internet Links"_s, u"F0links"_s, [&pages] { pages.Page(25)->Prepare(); });
    add(u"Advanced Options"_s, u"advanced"_s, [this] { AdvancedWindow(this).exec(); });
    buttons->addStretch(1);
    Body()->addLayout(buttons);
    Body()->addStretch(1);
}

void StartPage::resizeEvent(QResizeEvent* event)
{
    PageFrame::resizeEvent(event);
    const int side = IsInLargeWindow(*this) ? 148 : 110;
    logo->setFixedSize(side, side);
    layout()->activate();
}
