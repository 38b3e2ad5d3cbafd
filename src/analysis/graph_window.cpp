#include "analysis/graph_window.h"

#include "analysis/bar_chart.h"
#include "analysis/draw_history.h"
#include "platform/card.h"
#include "platform/guard.h"
#include "platform/message_box.h"
#include "platform/page_frame.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QSignalBlocker>

namespace {

constexpr QSize DefaultSize(1000, 640);

} // namespace

GraphWindow::GraphWindow(QWidget* parent)
    : QDialog(parent),
      title(MakeLabel({}, TextRole::Title, QStringLiteral("title"))),
      description(MakeLabel({}, TextRole::Body, QStringLiteral("description"))),
      typelabel(MakeLabel(QStringLiteral("Ball type to count"), TextRole::Caption, QStringLiteral("typelabel"))),
      balltype(new QComboBox),
      graph(new BarChart),
      back(new Button(QStringLiteral("BACK"), QStringLiteral("back")))
{
    setObjectName(QStringLiteral("frmgraph"));
    setWindowTitle(ApplicationTitle);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    description->setWordWrap(true);
    description->setForegroundRole(QPalette::PlaceholderText);
    balltype->setObjectName(QStringLiteral("balltype"));
    balltype->setAccessibleName(typelabel->text());
    graph->setObjectName(QStringLiteral("graph"));
    BuildLayout();
    resize(DefaultSize);
    ConnectGuarded(balltype, &QComboBox::currentIndexChanged, this, [this](int index) { balltype_Click(index); });
}

void GraphWindow::BuildLayout()
{
    auto* texts = new QVBoxLayout;
    texts->setSpacing(Spacing::Between);
    texts->addWidget(title);
    texts->addWidget(description);
    texts->addStretch(1);
    auto* choice = new QVBoxLayout;
    choice->setSpacing(Spacing::Inside);
    choice->addWidget(typelabel);
    choice->addWidget(balltype);
    choice->addStretch(1);
    auto* head = new QHBoxLayout;
    head->setSpacing(2 * Spacing::Page);
    head->addLayout(texts, 1);
    head->addLayout(choice);

    auto* card = new Card;
    card->Content()->setContentsMargins(Spacing::Inside, Spacing::Inside, Spacing::Inside, Spacing::Inside);
    card->Content()->addWidget(graph);
    back->setDefault(true);
    // back_Click.
    connect(back, &QPushButton::clicked, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Spacing::Page, Spacing::Page, Spacing::Page, Spacing::Cards);
    layout->setSpacing(Spacing::Cards);
    layout->addLayout(head);
    layout->addWidget(card, 1);
    layout->addWidget(back, 0, Qt::AlignRight);
}

void GraphWindow::PrepareChart(int chartNumber)
{
    chart = &FindChart(chartNumber);
    ballType = chart->ballType;
    const bool hasOption = chart->hasBallTypeOption;
    typelabel->setVisible(hasOption);
    balltype->setVisible(hasOption);
    {
        const QSignalBlocker unheard(balltype);
        balltype->clear();
        balltype->addItems(
            {QStringLiteral("Main balls only"), QStringLiteral("Bonus balls only"), QStringLiteral("All balls")});
        balltype->setCurrentIndex(static_cast<int>(ballType));
    }
    (hasOption ? static_cast<QWidget*>(balltype) : back)->setFocus();
    title->setText(chart->Title());
    graph->setAccessibleName(QStringLiteral("Bar chart, %1").arg(chart->Title()));
    count = CountChart(*chart);
    ComputeChart();
}

void GraphWindow::ComputeChart()
{
    description->setText(chart->Description(ballType));
    aborted = count->IsEmpty();
    if (aborted) {
        ShowMessage(QStringLiteral("There are no draws in the database."));
        reject();
        return;
    }
    graph->ShowBars(count->Bars(ballType));
}

void GraphWindow::balltype_Click(int index)
{
    if (index == static_cast<int>(ballType))
        return;
    ballType = static_cast<BallType>(index);
    ComputeChart();
}
