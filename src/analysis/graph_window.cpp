#include "analysis/graph_window.h"

#include "analysis/bar_chart.h"
#include "analysis/charts.h"
#include "controls/card.h"
#include "controls/guard.h"
#include "controls/label.h"
#include "controls/message_box.h"
#include "look/button.h"
#include "look/theme.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QShortcut>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

GraphWindow::GraphWindow(QWidget* parent)
    : SmallWindow(u"frmgraph"_s, ApplicationTitle, parent),
      title(MakeLabel({}, TextRole::Title, u"title"_s)),
      description(MakeLabel({}, TextRole::Body, u"description"_s)),
      typelabel(MakeLabel(u"Ball type to count"_s, TextRole::Caption, u"typelabel"_s)),
      balltype(new QComboBox),
      graph(new BarChart),
      back(new Button(u"BACK"_s, u"back"_s))
{
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    description->setWordWrap(true);
    description->setForegroundRole(QPalette::PlaceholderText);
    balltype->setObjectName(u"balltype"_s);
    balltype->setAccessibleName(typelabel->text());
    graph->setObjectName(u"graph"_s);
    BuildLayout();
    OpenAt({1000, 640});
    connect(new QShortcut(QKeySequence::Copy, this), &QShortcut::activated, graph, &BarChart::Copy);
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
    back->MakeQuietDefault();
    // back_Click.
    connect(back, &QPushButton::clicked, this, &QDialog::reject);

    QVBoxLayout* layout = Content();
    layout->addLayout(head);
    layout->addWidget(card, 1);
    layout->addWidget(back, 0, Qt::AlignRight);
}

bool GraphWindow::PrepareChart(int chartNumber)
{
    chart = &FindChart(chartNumber);
    ballType = chart->ballType;
    const bool hasOption = chart->HasBallTypeOption();
    typelabel->setVisible(hasOption);
    balltype->setVisible(hasOption);
    {
        const QSignalBlocker unheard(balltype);
        balltype->clear();
        balltype->addItems({u"Main balls only"_s, u"Bonus balls only"_s, u"All balls"_s});
        balltype->setCurrentIndex(static_cast<int>(ballType));
    }
    (hasOption ? static_cast<QWidget*>(balltype) : back)->setFocus();
    title->setText(chart->Title());
    graph->setAccessibleName(u"Bar chart, %1"_s.arg(chart->Title()));
    return ComputeChart();
}

bool GraphWindow::ComputeChart()
{
    description->setText(chart->Description(ballType));
    const std::vector<ChartBar> bars = CountBars(*chart, ballType);
    if (bars.empty()) {
        ShowMessage(u"There are no draws in the database."_s);
        reject();
        return false;
    }
    graph->ShowBars(bars);
    return true;
}

void GraphWindow::balltype_Click(int index)
{
    if (index == static_cast<int>(ballType))
        return;
    ballType = static_cast<BallType>(index);
    ComputeChart();
}
