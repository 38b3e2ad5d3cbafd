#include "shell/menu_column.h"

#include "look/shortcut_letters.h"
#include "look/theme.h"
#include "shell/menu_buttons.h"
#include "shell/menu_table.h"

#include <QFrame>
#include <QtMath>

using namespace Qt::StringLiterals;

namespace {

using MenuMeasure::ButtonMargin;
using MenuMeasure::RowHeight;

constexpr int SuboptionLeft = 50;
constexpr int SuboptionHeight = 34;

constexpr Picture GroupPictures[] = {Picture::AddDraws, Picture::DrawRecords, Picture::Users, Picture::Generator,
                                     Picture::Analysis};

} // namespace

MenuColumn::MenuColumn(QWidget* parent)
    : QWidget(parent),
      logo(new LogoButton(this)),
      optionMark(new OptionMark(this)),
      line(new QFrame(this)),
      exit(new MenuButton(u"Exit"_s, u"Exit"_s, Picture::Exit, this))
{
    setObjectName(u"Leftframe"_s);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    line->setObjectName(u"Line2"_s);
    line->setAutoFillBackground(true);
    QPalette quiet = line->palette();
    quiet.setColor(QPalette::Window, QColor(255, 255, 255, 36));
    line->setPalette(quiet);
    SetShortcutLetter(*exit, ShortcutLetters.back());
    connect(logo, &QAbstractButton::clicked, this, &MenuColumn::LogoClicked);
    connect(exit, &QAbstractButton::clicked, this, &MenuColumn::ExitClicked);
    for (int group = 1; group <= MenuGroups; ++group) {
        auto* button =
            new MenuButton(MenuGroupOf(group).caption, u"Button%1"_s.arg(group), GroupPictures[group - 1], this);
        SetShortcutLetter(*button, ShortcutLetters[group - 1]);
        connect(button, &QAbstractButton::clicked, this, [this, group] { Q_EMIT GroupClicked(group); });
        buttons.append(button);
    }
    for (int number = 1; number <= MostSuboptions; ++number) {
        auto* label = new SuboptionLabel(number, this);
        connect(label, &QAbstractButton::clicked, this, [this, number] { Q_EMIT SuboptionClicked(number); });
        suboptions.append(label);
    }
}

void MenuColumn::LayOut(int openGroup)
{
    open = openGroup;
    marked = 0;
    optionMark->hide();
    for (int number = 1; number <= MostSuboptions; ++number) {
        SuboptionLabel* label = suboptions[number - 1];
        const MenuSuboption* suboption = FindSuboption(open, number);
        label->setVisible(suboption != nullptr);
        label->SetMarked(false);
        if (suboption != nullptr) {
            label->setText(suboption->caption);
            label->setAccessibleName(suboption->caption);
            SetShortcutLetter(*label, suboption->letter);
        }
    }
    for (int group = 1; group <= MenuGroups; ++group)
        buttons[group - 1]->SetOpen(group == open);
    PlaceChildren();
    OrderTabs();
}

void MenuColumn::Mark(int suboption)
{
    marked = suboption;
    for (int number = 1; number <= MostSuboptions; ++number)
        suboptions[number - 1]->SetMarked(number == marked);
    PlaceChildren();
    optionMark->show();
}

void MenuColumn::FocusChosen()
{
    QAbstractButton* first = buttons.constFirst();
    (open > 0 ? suboptions[qMax(marked, 1) - 1] : first)->setFocus(Qt::TabFocusReason);
}

void MenuColumn::PlaceChildren()
{
    // A scroll bar stands in the margin beside the buttons, which keep their places.
    const int buttonWidth = qMin(sizeHint().width() - 2 * ButtonMargin, width() - ButtonMargin);
    logo->setGeometry(ButtonMargin, 14, buttonWidth, 62);
    line->setGeometry(ButtonMargin, height() - 2 * ButtonMargin - RowHeight - 6, buttonWidth, 1);
    for (int group = 1; group <= MenuGroups; ++group)
        buttons[group - 1]->setGeometry(ButtonMargin, GroupButtonTop(group, open), buttonWidth, RowHeight);
    for (int number = 1; number <= MostSuboptions; ++number)
        if (const MenuSuboption* suboption = FindSuboption(open, number))
            suboptions[number - 1]->setGeometry(SuboptionLeft, suboption->top,
                                                ButtonMargin + buttonWidth - SuboptionLeft, SuboptionHeight);
    if (const MenuSuboption* suboption = FindSuboption(open, marked)) {
        constexpr int markerDrop = 3;
        optionMark->setGeometry(SuboptionLeft - 12, suboption->top + markerDrop, 4, SuboptionHeight - 2 * markerDrop);
    }
    exit->setGeometry(ButtonMargin, height() - ButtonMargin - RowHeight, buttonWidth, RowHeight);
}

void MenuColumn::OrderTabs()
{
    QWidget* last = logo;
    const auto append = [&last](QWidget* next) {
        QWidget::setTabOrder(last, next);
        last = next;
    };
    for (int group = 1; group <= MenuGroups; ++group) {
        append(buttons[group - 1]);
        if (group == open)
            for (SuboptionLabel* label : suboptions)
                append(label);
    }
    append(exit);
}

QSize MenuColumn::sizeHint() const
{
    int width = qMax(216, logo->sizeHint().width() + ButtonMargin);
    for (const MenuButton* button : buttons)
        width = qMax(width, button->sizeHint().width() + ButtonMargin);
    const QFontMetricsF metrics(FontFor(TextRole::Strong));
    for (int group = 1; group <= MenuGroups; ++group)
        for (const MenuSuboption& suboption : MenuGroupOf(group).suboptions)
            width = qMax(width, SuboptionLeft + qCeil(metrics.horizontalAdvance(suboption.caption)) +
                                    2 * Spacing::Inside + ButtonMargin);
    return {width, minimumSizeHint().height()};
}

QSize MenuColumn::minimumSizeHint() const
{
    return {0, GroupButtonTop(MenuGroups, 1) + 2 * RowHeight + 4 * ButtonMargin};
}

void MenuColumn::resizeEvent(QResizeEvent* /*event*/)
{
    PlaceChildren();
}
