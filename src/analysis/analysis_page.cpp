#include "analysis/analysis_page.h"

#include "analysis/analysis_screens.h"
#include "analysis/graph_window.h"
#include "analysis/screen_button.h"
#include "controls/guard.h"
#include "controls/keeping_room.h"
#include "controls/label.h"
#include "controls/page_switch.h"
#include "game/game.h"
#include "look/theme.h"

#include <QGridLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace {

constexpr int Columns = 3;
constexpr int Rows = 3;
/// The frame stands 150 twips outside its screen.
constexpr int ShapeMargin = 10;
constexpr int DescriptionLines = 4;

QString TitleOf(const Game& game)
{
    return game.name + u" Draw Analysis"_s;
}

/// The frame around the screen under the pointer.
class ScreenFrame : public QWidget
{
public:
    explicit ScreenFrame(QWidget* parent) : QWidget(parent) { setAttribute(Qt::WA_TransparentForMouseEvents); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QColor fill = palette().color(QPalette::Highlight);
        painter.setPen(QPen(fill, 2));
        fill.setAlphaF(0.14F);
        painter.setBrush(fill);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 12, 12);
    }
};

} // namespace

AnalysisPage::AnalysisPage(const Game& drawGame, PageSwitch& pageSwitch)
    : PageFrame(drawGame.IsMain() ? 21 : 22, {}), game(drawGame), pages(pageSwitch), shape(new ScreenFrame(this))
{
    setAccessibleName(TitleOf(game));
    shape->setObjectName(ControlName(u"shape"_s));
    shape->hide();
    BuildHead();
    BuildScreens();
}

void AnalysisPage::BuildHead()
{
    title = MakeLabel(u"Ball Frequency"_s, TextRole::Title, ControlName(u"title"_s));
    label = MakeLabel(u"Information about this option."_s, TextRole::Body, ControlName(u"label"_s));
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setForegroundRole(QPalette::PlaceholderText);
    // The screens keep their places whatever is said above them.
    label->setMinimumHeight(DescriptionLines * label->fontMetrics().lineSpacing());
    for (QLabel* clickable : {title, label})
        clickable->installEventFilter(this);
    loading = MakeLabel(u"Loading..."_s, TextRole::Strong, ControlName(u"loading"_s));
    KeepingRoom(loading);
    loading->hide();

    Body()->addWidget(title);
    Body()->addWidget(label);
    auto* row = new QHBoxLayout;
    row->addWidget(MakeLabel(u"Click on a screen"_s, TextRole::Caption));
    row->addStretch(1);
    row->addWidget(loading);
    Body()->addLayout(row);
}

void AnalysisPage::BuildScreens()
{
    auto* grid = new QGridLayout;
    grid->setSpacing(Spacing::Page);
    int index = 0;
    for (const AnalysisScreen& described : ScreensOf(game)) {
        auto* screen = new ScreenButton(game, described, ElementName(ControlName(u"screen"_s), ++index));
        grid->addWidget(screen, (index - 1) / Columns, (index - 1) % Columns);
        screens.push_back(screen);
        ConnectGuarded(screen, &ScreenButton::PointedAt, this, [this, index] { screen_MouseMove(index); });
        ConnectGuarded(screen, &ScreenButton::clicked, this, [this, index] {
            // A click is always over its screen, even one that no movement has announced.
            screen_MouseMove(index);
            screen_Click();
        });
    }
    for (int column = 0; column < Columns; ++column)
        grid->setColumnStretch(column, 1);
    for (int row = 0; row < Rows; ++row)
        grid->setRowStretch(row, 1);
    Body()->addLayout(grid, 1);
}

void AnalysisPage::Prepare()
{
    selectedScreen = 0;
    shape->hide();
    for (QLabel* clickable : {title, label})
        clickable->unsetCursor();
    title->setText(TitleOf(game));
    label->setText(u"Move the pointer over the different screenshots to see a description of it, then "
                   u"click to go to it."_s);
    show();
}

void AnalysisPage::screen_MouseMove(int index)
{
    if (index == selectedScreen)
        return;
    selectedScreen = index;
    const AnalysisScreen& screen = ScreensOf(game)[static_cast<size_t>(index) - 1];
    shape->show();
    PlaceShape();
    for (QLabel* clickable : {title, label})
        clickable->setCursor(Qt::PointingHandCursor);
    title->setText(screen.title);
    label->setText(screen.description);
}

void AnalysisPage::screen_Click()
{
    if (selectedScreen == 0)
        return;
    loading->show();
    const auto hideLoading = qScopeGuard([this] { loading->hide(); });
    repaint();
    const int chart = ScreensOf(game)[static_cast<size_t>(selectedScreen) - 1].chart;
    if (chart == 0) {
        pages.Page(game.IsMain() ? 23 : 24)->Prepare();
        return;
    }
    GraphWindow frmgraph(window());
    if (frmgraph.PrepareChart(chart))
        frmgraph.exec();
}

void AnalysisPage::PlaceShape()
{
    if (selectedScreen == 0)
        return;
    shape->setGeometry(screens[static_cast<size_t>(selectedScreen) - 1]->geometry().adjusted(-ShapeMargin, -ShapeMargin,
                                                                                             ShapeMargin, ShapeMargin));
    shape->lower();
}

bool AnalysisPage::event(QEvent* event)
{
    const bool handled = PageFrame::event(event);
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest)
        PlaceShape();
    return handled;
}

bool AnalysisPage::eventFilter(QObject* watched, QEvent* event)
{
    if ((watched == title || watched == label) && event->type() == QEvent::MouseButtonRelease) {
        const auto* release = static_cast<QMouseEvent*>(event);
        // A button that is let go elsewhere is no click.
        if (release->button() == Qt::LeftButton &&
            static_cast<QLabel*>(watched)->rect().contains(release->position().toPoint()))
            Guard([this] { screen_Click(); });
    }
    return PageFrame::eventFilter(watched, event);
}
