#include "shell/menu_column.h"

#include "platform/artwork.h"
#include "platform/click_label.h"
#include "platform/theme.h"
#include "shell/menu_table.h"

#include <QAbstractButton>
#include <QFrame>
#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr int TwipsPerPixel = 10;
constexpr int ButtonMargin = 12;
constexpr int TextLeft = 56;
constexpr int SuboptionLeft = 50;
constexpr int RowHeight = 44;
constexpr int SuboptionHeight = 30;

int Pixels(int twips)
{
    return twips / TwipsPerPixel;
}

/// A focus ring that can be seen on the dark column.
void DrawRing(QPainter& painter, const QRectF& rect)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(CurrentTheme().menuText, 2));
    painter.drawRoundedRect(rect.adjusted(1, 1, -1, -1), 8, 8);
}

} // namespace

/// A button of the column: a picture and a caption, filled while its group is open.
class MenuButton : public QAbstractButton
{
    Q_OBJECT

public:
    MenuButton(const QString& caption, const QString& name, Picture shownPicture, QWidget* parent)
        : QAbstractButton(parent), picture(shownPicture)
    {
        setObjectName(name);
        setText(caption);
        setAccessibleName(caption);
        setFont(FontFor(TextRole::Strong));
        setFocusPolicy(Qt::StrongFocus);
        setCursor(Qt::PointingHandCursor);
        setAttribute(Qt::WA_Hover);
    }

    void SetOpen(bool isOpen)
    {
        open = isOpen;
        update();
    }

    QSize sizeHint() const override
    {
        return {TextLeft + QFontMetrics(font()).horizontalAdvance(text()) + ButtonMargin, RowHeight};
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const Theme& theme = CurrentTheme();
        if (open || underMouse()) {
            QColor fill = theme.openGroup;
            if (!open)
                fill.setAlpha(70);
            painter.setPen(Qt::NoPen);
            painter.setBrush(fill);
            painter.drawRoundedRect(rect(), 8, 8);
        }
        const QColor colour = open ? theme.onOpenGroup : theme.menuText;
        DrawPicture(painter, picture, QRectF(12, height() / 2.0 - 10, 20, 20), colour);
        painter.setPen(colour);
        painter.drawText(rect().adjusted(TextLeft - ButtonMargin, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, text());
        if (hasFocus())
            DrawRing(painter, rect());
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            click();
        else
            QAbstractButton::keyPressEvent(event);
    }

private:
    Picture picture;
    bool open = false;
};

namespace {

/// The logo and the product's name at the top of the column.
class LogoButton : public QAbstractButton
{
public:
    explicit LogoButton(QWidget* parent) : QAbstractButton(parent)
    {
        setObjectName(QStringLiteral("Logo"));
        setAccessibleName(QStringLiteral("Tavenor 3, to the start page"));
        setFocusPolicy(Qt::StrongFocus);
        setCursor(Qt::PointingHandCursor);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        DrawLogo(painter, QRectF(10, 10, 42, 42));
        QFont font = FontFor(TextRole::Heading);
        font.setPointSizeF(font.pointSizeF() * 1.25);
        painter.setFont(font);
        painter.setPen(Qt::white);
        const int left = 66;
        painter.drawText(QRect(left, 0, width(), height()), Qt::AlignVCenter, QStringLiteral("Tavenor"));
        const int next = left + QFontMetrics(font).horizontalAdvance(QStringLiteral("Tavenor "));
        font.setWeight(QFont::Normal);
        painter.setFont(font);
        painter.setPen(QColor("#7F95EC"));
        painter.drawText(QRect(next, 0, width(), height()), Qt::AlignVCenter, QStringLiteral("3"));
        if (hasFocus())
            DrawRing(painter, rect());
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            click();
        else
            QAbstractButton::keyPressEvent(event);
    }
};

/// The marker beside the chosen sub-option.
class OptionMark : public QWidget
{
public:
    explicit OptionMark(QWidget* parent) : QWidget(parent) { setObjectName(QStringLiteral("Optionmark")); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor("#7F95EC"));
        painter.drawRoundedRect(QRectF(rect()), 2, 2);
    }
};

constexpr std::array<Picture, 5> GroupPictures{Picture::AddDraws, Picture::DrawRecords, Picture::Users,
                                               Picture::Generator, Picture::Analysis};

} // namespace

class SuboptionLabel : public ClickLabel
{
    Q_OBJECT

public:
    SuboptionLabel(int number, QWidget* parent) : ClickLabel(QString(), parent)
    {
        setObjectName(QStringLiteral("Suboption%1").arg(number));
        QPalette onColumn = palette();
        onColumn.setColor(QPalette::WindowText, CurrentTheme().menuText);
        onColumn.setColor(QPalette::Highlight, CurrentTheme().menuText);
        setPalette(onColumn);
    }

    void SetMarked(bool marked)
    {
        setFont(FontFor(marked ? TextRole::Strong : TextRole::Body));
        QPalette onColumn = palette();
        onColumn.setColor(QPalette::WindowText, marked ? Qt::white : CurrentTheme().menuText);
        setPalette(onColumn);
    }
};

MenuColumn::MenuColumn(QWidget* parent)
    : QWidget(parent),
      logo(new LogoButton(this)),
      optionMark(new OptionMark(this)),
      line(new QFrame(this)),
      exit(new MenuButton(QStringLiteral("Exit"), QStringLiteral("Exit"), Picture::Exit, this))
{
    setObjectName(QStringLiteral("Leftframe"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    line->setObjectName(QStringLiteral("Line2"));
    line->setAutoFillBackground(true);
    QPalette quiet = line->palette();
    quiet.setColor(QPalette::Window, QColor(255, 255, 255, 36));
    line->setPalette(quiet);
    connect(qobject_cast<QAbstractButton*>(logo), &QAbstractButton::clicked, this, &MenuColumn::LogoClicked);
    connect(exit, &QAbstractButton::clicked, this, &MenuColumn::ExitClicked);
    for (int group = 1; group <= MenuGroups; ++group) {
        const auto i = static_cast<size_t>(group) - 1;
        buttons.at(i) = new MenuButton(MenuGroupOf(group).caption, QStringLiteral("Button%1").arg(group),
                                       GroupPictures.at(i), this);
        connect(buttons.at(i), &QAbstractButton::clicked, this, [this, group] { Q_EMIT GroupClicked(group); });
    }
    for (int number = 1; number <= MostSuboptions; ++number) {
        auto*& label = suboptions.at(static_cast<size_t>(number) - 1);
        label = new SuboptionLabel(number, this);
        connect(label, &QAbstractButton::clicked, this, [this, number] { Q_EMIT SuboptionClicked(number); });
    }
    LayOut(0);
}

void MenuColumn::LayOut(int openGroup)
{
    open = openGroup;
    marked = 0;
    optionMark->hide();
    for (int number = 1; number <= MostSuboptions; ++number) {
        SuboptionLabel* label = suboptions.at(static_cast<size_t>(number) - 1);
        const MenuSuboption* suboption = FindSuboption(open, number);
        label->setVisible(suboption != nullptr);
        label->SetMarked(false);
        if (suboption != nullptr) {
            label->setText(suboption->caption);
            label->setAccessibleName(suboption->caption);
        }
    }
    for (int group = 1; group <= MenuGroups; ++group)
        buttons.at(static_cast<size_t>(group) - 1)->SetOpen(group == open);
    PlaceChildren();
    OrderTabs();
}

void MenuColumn::Mark(int suboption)
{
    marked = suboption;
    for (int number = 1; number <= MostSuboptions; ++number)
        suboptions.at(static_cast<size_t>(number) - 1)->SetMarked(number == marked);
    PlaceChildren();
    optionMark->show();
}

void MenuColumn::PlaceChildren()
{
    logo->setGeometry(ButtonMargin, 14, width() - 2 * ButtonMargin, 62);
    line->setGeometry(ButtonMargin, height() - 2 * ButtonMargin - RowHeight - 6, width() - 2 * ButtonMargin, 1);
    for (int group = 1; group <= MenuGroups; ++group)
        buttons.at(static_cast<size_t>(group) - 1)
            ->setGeometry(ButtonMargin, Pixels(GroupButtonTop(group, open)), width() - 2 * ButtonMargin, RowHeight);
    for (int number = 1; number <= MostSuboptions; ++number)
        if (const MenuSuboption* suboption = FindSuboption(open, number))
            suboptions.at(static_cast<size_t>(number) - 1)
                ->setGeometry(SuboptionLeft, Pixels(suboption->top), width() - SuboptionLeft - 2, SuboptionHeight);
    if (const MenuSuboption* suboption = FindSuboption(open, marked)) {
        constexpr int markerDrop = 30;
        constexpr int markerHeight = 14;
        const int middle = (SuboptionHeight - markerHeight) / 2 - Pixels(markerDrop);
        optionMark->setGeometry(SuboptionLeft - 12, Pixels(suboption->top + markerDrop) + middle, 4, markerHeight);
    }
    exit->setGeometry(ButtonMargin, height() - ButtonMargin - RowHeight, width() - 2 * ButtonMargin, RowHeight);
}

void MenuColumn::OrderTabs()
{
    QWidget* last = logo;
    const auto append = [&last](QWidget* next) {
        QWidget::setTabOrder(last, next);
        last = next;
    };
    for (int group = 1; group <= MenuGroups; ++group) {
        append(buttons.at(static_cast<size_t>(group) - 1));
        if (group == open)
            for (SuboptionLabel* label : suboptions)
                append(label);
    }
    append(exit);
}

QSize MenuColumn::sizeHint() const
{
    int width = 216;
    for (const MenuButton* button : buttons)
        width = qMax(width, button->sizeHint().width() + ButtonMargin);
    const QFontMetrics metrics(FontFor(TextRole::Strong));
    for (int group = 1; group <= MenuGroups; ++group)
        for (const MenuSuboption& suboption : MenuGroupOf(group).suboptions)
            width = qMax(width, SuboptionLeft + metrics.horizontalAdvance(suboption.caption) + 3 * Spacing::Inside);
    return {width, minimumSizeHint().height()};
}

QSize MenuColumn::minimumSizeHint() const
{
    return {216, Pixels(GroupButtonTop(MenuGroups, 1)) + 2 * RowHeight + 4 * ButtonMargin};
}

void MenuColumn::paintEvent(QPaintEvent* /*event*/)
{
    QPainter(this).fillRect(rect(), CurrentTheme().menu);
}

void MenuColumn::resizeEvent(QResizeEvent* /*event*/)
{
    PlaceChildren();
}

#include "menu_column.moc"
