#include "builder/draw_day_window.h"

#include "controls/guard.h"
#include "controls/keeping_room.h"
#include "controls/label.h"
#include "look/button.h"
#include "look/theme.h"
#include "users/day_boxes.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

DrawDayWindow::DrawDayWindow(DaySet& chosenDays, QWidget* parent)
    : SmallWindow(u"frmday"_s, u"Tavenor 3 --- Select Draw Day"_s, parent),
      days(chosenDays),
      boxes(new DayBoxes({u"check1"_s, u"selall"_s, u"clear"_s}, QString())),
      store(new Button(u"Store"_s, u"store"_s))
{
    QVBoxLayout* layout = Content();
    layout->addWidget(MakeLabel(u"Select the draw day(s)."_s, TextRole::Heading, u"Label1"_s));
    layout->addWidget(boxes);
    KeepingRoom(store);
    store->setDefault(true);
    store->hide();
    layout->addWidget(store, 0, Qt::AlignRight);
    ConnectGuarded(boxes, &DayBoxes::Changed, this, [this] { store->setVisible(boxes->AnyTicked()); });
    ConnectGuarded(store, &QPushButton::clicked, this, [this] { store_Click(); });
}

void DrawDayWindow::store_Click()
{
    days = boxes->Days();
    accept();
}
