#include "users/draw_day_window.h"

#include "platform/guard.h"
#include "platform/page_frame.h"
#include "users/day_boxes.h"

#include <QVBoxLayout>

DrawDayWindow::DrawDayWindow(DaySet& chosenDays, QWidget* parent)
    : QDialog(parent),
      days(chosenDays),
      boxes(new DayBoxes({QStringLiteral("check1"), QStringLiteral("selall"), QStringLiteral("clear")}, QString())),
      store(new Button(QStringLiteral("Store"), QStringLiteral("store")))
{
    setObjectName(QStringLiteral("frmday"));
    setWindowTitle(QStringLiteral("Tavenor 3 --- Select Draw Day"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Spacing::Page, Spacing::Page, Spacing::Page, Spacing::Page);
    layout->setSpacing(Spacing::Cards);
    layout->addWidget(
        MakeLabel(QStringLiteral("Select the draw day(s)."), TextRole::Heading, QStringLiteral("Label1")));
    layout->addWidget(boxes);
    // The button keeps its room while it is hidden, so that the window does not jump.
    QSizePolicy keepsRoom = store->sizePolicy();
    keepsRoom.setRetainSizeWhenHidden(true);
    store->setSizePolicy(keepsRoom);
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
