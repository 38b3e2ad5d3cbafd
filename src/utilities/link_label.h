#pragma once

#include "controls/click_label.h"

/// An address on the links page, on one line that ends in an ellipsis where the page is too narrow for it. As a link it
/// is underlined and blue and can be clicked or pressed; else it is a text like any other.
class LinkLabel : public ClickLabel
{
    Q_OBJECT

public:
    explicit LinkLabel(const QString& name);

    /// Shows an address or what stands in its place; `caption` names it for those who hear the page.
    void ShowText(const QString& text, bool asLink, const QString& caption);
    bool IsLink() const { return isLink; }

    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void TakeColour();

    bool isLink = false;
};
