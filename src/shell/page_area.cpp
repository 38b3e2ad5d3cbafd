#include "shell/page_area.h"

#include "controls/label.h"
#include "look/theme.h"

#include <QEvent>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

PageArea::PageArea(QWidget* parent) : QWidget(parent)
{
    auto* loading = new QFrame(this);
    loading->setObjectName(u"Loadingframe"_s);
    loading->setAutoFillBackground(true);
    auto* layout = new QVBoxLayout(loading);
    layout->addStretch(1);
    for (auto* label : {MakeLabel(u"Loading Data"_s, TextRole::Title, u"LFlabel1"_s),
                        MakeLabel(u"Please wait"_s, TextRole::Body, u"LFlabel2"_s)}) {
        label->setAlignment(Qt::AlignCenter);
        layout->addWidget(label);
    }
    layout->addStretch(1);
    Add(loading);
    loading->show();
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void PageArea::Add(QWidget* page)
{
    page->setParent(this);
    page->setGeometry(rect());
    pages.append({page, nullptr});
    page->installEventFilter(this);
    updateGeometry();
}

QSize PageArea::minimumSizeHint() const
{
    QSize size;
    for (const Place& place : pages)
        if (!place.page->isHidden())
            size = size.expandedTo(place.page->minimumSizeHint());
    return size;
}

int PageArea::heightForWidth(int width) const
{
    int height = 0;
    for (const Place& place : pages)
        if (!place.page->isHidden())
            height = qMax(height, place.page->layout()->totalMinimumHeightForWidth(width));
    return height;
}

void PageArea::resizeEvent(QResizeEvent* /*event*/)
{
    for (const Place& place : pages)
        place.page->setGeometry(rect());
}

bool PageArea::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QWidget::event(event);
}

bool PageArea::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent ||
        event->type() == QEvent::ZOrderChange)
        EnableFrontPageOnly();
    return QWidget::eventFilter(watched, event);
}

void PageArea::EnableFrontPageOnly()
{
    // Children are held in stacking order, the front one last.
    const QWidget* front = nullptr;
    for (const QObject* child : children())
        if (const auto* page = qobject_cast<const QWidget*>(child); page != nullptr && !page->isHidden())
            front = page;
    for (Place& place : pages) {
        QWidget& page = *place.page;
        const bool inFront = front != nullptr && &page == front;
        if (page.isHidden()) {
            // It is not covered any more: shown again, it is as it was before.
            place.focusWhenCovered = nullptr;
            page.setEnabled(true);
            continue;
        }
        if (page.isEnabled() == inFront)
            continue;
        if (!inFront)
            place.focusWhenCovered = page.isAncestorOf(window()->focusWidget()) ? window()->focusWidget() : nullptr;
        page.setEnabled(inFront);
        if (inFront && place.focusWhenCovered != nullptr)
            place.focusWhenCovered->setFocus();
    }
}
