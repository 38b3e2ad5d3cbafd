#include "controls/page_frame.h"

#include "controls/label.h"
#include "look/button.h"
#include "look/input_watch.h"
#include "look/theme.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

PageFrame::PageFrame(int pageNumber, const QString& title, const QString& titleName)
    : number(pageNumber), sheet(new QVBoxLayout(this)), body(new QVBoxLayout), footer(new QHBoxLayout)
{
    setObjectName(ElementName(u"Frame"_s, pageNumber));
    setAccessibleName(title);
    setAutoFillBackground(true);
    sheet->setContentsMargins(Spacing::Page, Spacing::Page, Spacing::Page, Spacing::Page);
    sheet->setSpacing(Spacing::Cards);
    if (!title.isEmpty())
        sheet->addWidget(MakeLabel(title, TextRole::Title, titleName, this));
    body->setSpacing(Spacing::Cards);
    sheet->addLayout(body, 1);
    footer->setSpacing(Spacing::Between);
    footer->addStretch(1);
    sheet->addLayout(footer);
    hide();
}

void PageFrame::MakeForm()
{
    isForm = true;
    sheet->setStretchFactor(body, 0);
    sheet->addStretch(1);
}

void PageFrame::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    constexpr int measure = 960;
    const int right = isForm ? qMax(Spacing::Page, width() - Spacing::Page - measure) : Spacing::Page;
    sheet->setContentsMargins(Spacing::Page, Spacing::Page, right, Spacing::Page);
}

void PageFrame::Prepare()
{
    show();
}

void PageFrame::ShowInFront()
{
    show();
    raise();
    if (back != nullptr)
        back->setFocus();
}

QString PageFrame::ControlName(const QString& name) const
{
    return u'F' + QString::number(number) + name;
}

void PageFrame::FocusFirstField()
{
    if (!isVisible() || isAncestorOf(window()->focusWidget()))
        return;
    if (firstField != nullptr)
        firstField->setFocus(Qt::TabFocusReason);
    else
        FocusNextOnPage(this);
}

bool PageFrame::FocusNextOnPage(QWidget* after)
{
    for (QWidget* next = after->nextInFocusChain(); next != after; next = next->nextInFocusChain()) {
        if (!isAncestorOf(next) || !next->isVisible() || !next->isEnabled() ||
            (next->focusPolicy() & Qt::TabFocus) == 0)
            continue;
        next->setFocus(Qt::TabFocusReason);
        return true;
    }
    return false;
}

bool PageFrame::focusNextPrevChild(bool next)
{
    QWidget* focused = window()->focusWidget();
    const bool vanished = isAncestorOf(focused) && (!focused->isVisible() || !focused->isEnabled());
    if (!vanished || !isVisible())
        return QFrame::focusNextPrevChild(next);
    // Where nothing else can take the keys, the page itself does: in the menu Enter would leave it.
    if (!FocusNextOnPage(focused))
        setFocus();
    return true;
}

void PageFrame::PutFooterLastInTabOrder()
{
    QWidget* last = nullptr;
    for (QWidget* next = nextInFocusChain(); isAncestorOf(next); next = next->nextInFocusChain())
        if (next->focusPolicy() != Qt::NoFocus && footer->indexOf(next) < 0)
            last = next;
    for (int place = 0; place < footer->count(); ++place) {
        QWidget* button = footer->itemAt(place)->widget();
        if (button == nullptr)
            continue;
        if (last != nullptr)
            setTabOrder(last, button);
        last = button;
    }
}

Button* PageFrame::AddFooterButton(const QString& caption, const QString& name)
{
    auto* button = new Button(caption, name, this);
    footer->addWidget(button);
    return button;
}

Button* PageFrame::AddFooterDefault(const QString& caption, const QString& name)
{
    Button* button = AddFooterButton(caption, name);
    button->MakeAccent();
    return button;
}

void PageFrame::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape || back == nullptr) {
        QFrame::keyPressEvent(event);
        return;
    }
    PressByKey(*back);
}
