#include "shell/page_area.h"

#include "controls/label.h"
#include "look/theme.h"

#include <QAccessibleWidget>
#include <QEvent>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// Tells a screen reader of the page in front alone, for the others cannot be seen.
class AccessiblePageArea : public QAccessibleWidget
{
public:
    explicit AccessiblePageArea(PageArea& pageArea)
        : QAccessibleWidget(&pageArea, QAccessible::Grouping), area(pageArea)
    {
    }

    int childCount() const override { return area.FrontPage() == nullptr ? 0 : 1; }
    QAccessibleInterface* child(int index) const override
    {
        return index == 0 ? QAccessible::queryAccessibleInterface(area.FrontPage()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        return child != nullptr && child->object() == area.FrontPage() ? 0 : -1;
    }

private:
    const PageArea& area;
};

QAccessibleInterface* MakeAccessiblePageArea(const QString& /*className*/, QObject* object)
{
    auto* area = qobject_cast<PageArea*>(object);
    return area == nullptr ? nullptr : new AccessiblePageArea(*area);
}

} // namespace

PageArea::PageArea(QWidget* parent) : QWidget(parent)
{
    QAccessible::installFactory(MakeAccessiblePageArea);
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

QWidget* PageArea::FrontPage() const
{
    // Children are held in stacking order, the front one last.
    QWidget* front = nullptr;
    for (QObject* child : children())
        if (auto* page = qobject_cast<QWidget*>(child); page != nullptr && !page->isHidden())
            front = page;
    return front;
}

void PageArea::EnableFrontPageOnly()
{
    const QWidget* front = FrontPage();
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
