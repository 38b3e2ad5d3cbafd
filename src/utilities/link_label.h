#pragma once

#include "controls/click_label.h"

enum class TextRole;

/// A label of the links page. Its text is plain, whatever it holds: one that is too long for its lines ends in an
/// ellipsis and never widens the page. In the link style it is underlined and blue and can be clicked or pressed; in
/// the plain style it is a text like any other.
class LinkLabel : public ClickLabel
{
    Q_OBJECT

public:
    enum class Look
    {
        Plain,
        Link
    };

    /// The text is broken into up to `mostLines` lines where the page is too narrow for it.
    LinkLabel(const QString& name, TextRole textRole, int mostLines);

    /// Shows a text; `caption` names it for those who hear the page.
    void ShowText(const QString& text, Look textLook, const QString& caption);
    bool IsLink() const { return look == Look::Link; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool hitButton(const QPoint& place) const override;

private:
    void TakeColour();

    /// Links need room for the ring of the focus.
    int Inset() const;
    QStringList Lines(int width) const;

    TextRole role;
    int lines;
    Look look = Look::Plain;
    QString shown;
};
