#include "users/day_boxes.h"

#include "base/dates.h"
#include "controls/guard.h"
#include "controls/label.h"
#include "look/button.h"
#include "look/theme.h"

#include <QCheckBox>
#include <QGridLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

DayBoxes::DayBoxes(const Names& names, const QString& captionPrefix, QWidget* parent) : QWidget(parent)
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(Spacing::Page);
    grid->setVerticalSpacing(Spacing::Inside);
    constexpr int rowsInColumn = 4;
    for (int day = 0; day < DaysOfWeek; ++day) {
        auto* box = new QCheckBox(captionPrefix + DayNames.at(static_cast<size_t>(day)));
        box->setObjectName(ElementName(names.box, day));
        box->setAccessibleName(DayNames.at(static_cast<size_t>(day)));
        boxes.at(static_cast<size_t>(day)) = box;
        connect(box, &QCheckBox::toggled, this, &DayBoxes::Changed);
        grid->addWidget(box, day % rowsInColumn, day / rowsInColumn);
    }
    grid->setColumnStretch(3, 1);
    if (names.selectAll.isEmpty())
        return;
    auto* selectAll = new Button(u"Select All"_s, names.selectAll);
    auto* clearAll = new Button(u"Clear All"_s, names.clearAll);
    ConnectGuarded(selectAll, &QPushButton::clicked, this, [this] { SetAll(true); });
    ConnectGuarded(clearAll, &QPushButton::clicked, this, [this] { SetAll(false); });
    grid->addWidget(selectAll, 0, 2, 2, 1, Qt::AlignVCenter);
    grid->addWidget(clearAll, 2, 2, 2, 1, Qt::AlignVCenter);
}

DaySet DayBoxes::Days() const
{
    DaySet days{};
    std::transform(boxes.begin(), boxes.end(), days.begin(), [](const QCheckBox* box) { return box->isChecked(); });
    return days;
}

void DayBoxes::SetDays(const DaySet& days)
{
    for (size_t day = 0; day < days.size(); ++day)
        boxes.at(day)->setChecked(days.at(day));
}

void DayBoxes::SetAll(bool ticked)
{
    for (QCheckBox* box : boxes)
        box->setChecked(ticked);
}
