#include "utilities/link_label.h"

#include "look/theme.h"

#include <QAccessibleWidget>
#include <QEvent>

namespace {

constexpr int NarrowestWidth = 120;

/// Tells a screen reader whether the label is a link, which can be pressed, or no more than a text.
class AccessibleLinkLabel : public QAccessibleWidget
{
public:
    explicit AccessibleLinkLabel(LinkLabel& linkLabel) : QAccessibleWidget(&linkLabel), label(linkLabel) {}

    QAccessible::Role role() const override { return label.IsLink() ? QAccessible::Link : QAccessible::StaticText; }
    QStringList actionNames() const override { return label.IsLink() ? QStringList{pressAction()} : QStringList(); }
    void doAction(const QString& name) override
    {
        if (name == pressAction())
            label.click();
    }

private:
    LinkLabel& label;
};

QAccessibleInterface* MakeAccessibleLinkLabel(const QString& /*className*/, QObject* object)
{
    auto* label = qobject_cast<LinkLabel*>(object);
    return label == nullptr ? nullptr : new AccessibleLinkLabel(*label);
}

} // namespace

LinkLabel::LinkLabel(const QString& name) : ClickLabel({})
{
    QAccessible::installFactory(MakeAccessibleLinkLabel);
    setObjectName(name);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void LinkLabel::ShowText(const QString& text, bool asLink, const QString& caption)
{
    isLink = asLink;
    setText(text);
    // An ampersand in an address is not the mark of a shortcut key.
    setShortcut({});
    setAccessibleName(caption + u' ' + text);
    QFont styled = FontFor(TextRole::Body);
    styled.setUnderline(isLink);
    setFont(styled);
    setFocusPolicy(isLink ? Qt::StrongFocus : Qt::NoFocus);
    setCursor(isLink ? Qt::PointingHandCursor : Qt::ArrowCursor);
    TakeColour();
    updateGeometry();
}

QSize LinkLabel::minimumSizeHint() const
{
    return {qMin(NarrowestWidth, sizeHint().width()), sizeHint().height()};
}

void LinkLabel::changeEvent(QEvent* event)
{
    ClickLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        TakeColour();
}

void LinkLabel::TakeColour()
{
    const Theme& theme = CurrentTheme();
    const QColor link = theme.dark ? theme.accent : QColor(Qt::blue);
    const QColor plain = theme.dark ? theme.text : QColor(Qt::black);
    QPalette coloured;
    coloured.setColor(QPalette::WindowText, isLink ? link : plain);
    if (palette().color(QPalette::WindowText) != coloured.color(QPalette::WindowText))
        setPalette(coloured);
}
