#pragma once

#include "controls/click_label.h"
#include "look/artwork.h"
#include "look/button.h"

/// The measures that the buttons of the menu column share with its layout, in logical pixels.
namespace MenuMeasure {
inline constexpr int ButtonMargin = 12;
inline constexpr int RowHeight = 44;
} // namespace MenuMeasure

/// A button of the column: a picture and a caption, filled while its group is open.
class MenuButton : public QAbstractButton
{
    Q_OBJECT

public:
    MenuButton(const QString& caption, const QString& name, Picture shownPicture, QWidget* parent);

    void SetOpen(bool isOpen);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Picture picture;
    bool open = false;
};

/// The logo and the product's name at the top of the column.
class LogoButton : public QAbstractButton
{
    Q_OBJECT

public:
    explicit LogoButton(QWidget* parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// A sub-option of the open group, brighter and stronger while it is the chosen one.
class SuboptionLabel : public ClickLabel
{
    Q_OBJECT

public:
    SuboptionLabel(int number, QWidget* parent);

    void SetMarked(bool marked);
};

/// The marker beside the chosen sub-option.
class OptionMark : public QWidget
{
    Q_OBJECT

public:
    explicit OptionMark(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};
