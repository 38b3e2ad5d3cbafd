#include "support/approved.h"
#include "support/look_faults.h"
#include "support/shown_pages.h"
#include "support/test_window.h"

#include "balls/ball_disc.h"
#include "balls/ball_edit.h"
#include "controls/grid_model.h"
#include "controls/grid_view.h"
#include "controls/label.h"
#include "look/button.h"
#include "look/theme.h"
#include "walk.h"

#include <QFileDialog>
#include <QScrollBar>
#include <QVBoxLayout>

#include <ctime>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

namespace {

constexpr QSize SmallSize(1024, 720);
constexpr QSize LargeSize(1500, 950);

/// A dialog without a fault.
struct PlantedDialog : QDialog
{
    PlantedDialog()
    {
        auto* rows = new QVBoxLayout(this);
        ball->Carry(new BallEdit(ball));
        list->addItem("Ann");
        list->setFrameShape(QFrame::NoFrame);
        for (QWidget* widget : std::initializer_list<QWidget*>{field, ball, caption, tick, list, store})
            rows->addWidget(widget);
        store->MakeAccent();
    }

    QLineEdit* field = new QLineEdit("12");
    BallDisc* ball = new BallDisc("ball");
    QLabel* caption = MakeLabel("A caption", TextRole::Body, "caption");
    QCheckBox* tick = new QCheckBox("Tick");
    QListWidget* list = new QListWidget;
    Button* store = new Button("Store", "store");
};

void Repaint(QWidget& widget, QPalette::ColorRole role, const QColor& colour)
{
    QPalette planted = widget.palette();
    planted.setColor(role, colour);
    widget.setPalette(planted);
}

} // namespace

// It is always noon of Saturday, 10 October 2015, so that every run shows the same, also what is drawn by chance.
constexpr time_t Now = 1444478400;

extern "C" int gettimeofday(timeval* now, void* /*zone*/) noexcept
{
    *now = {Now, 0};
    return 0;
}

extern "C" int clock_gettime(clockid_t clock, timespec* now) noexcept
{
    *now = {Now, 0};
    return clock == CLOCK_REALTIME ? 0 : static_cast<int>(::syscall(SYS_clock_gettime, clock, now));
}

/// Run once for each scale, and once with a larger font, by the tests' own environment.
class LookTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // The size of most desktops, where the test's own screen has a smaller one.
        QFont desktop = QApplication::font();
        desktop.setPointSizeF(qEnvironmentVariableIsSet("LARGER_FONT") ? 10.5 * 1.5 : 10.5);
        QApplication::setFont(desktop);
    }

    void cleanup() { SetDesktopPrefersDark(false); }

    void APlantedFaultIsFound()
    {
        using Plant = void (*)(PlantedDialog&);
        const std::pair<QString, Plant> rows[] = {
            {"", [](PlantedDialog&) {}},
            {"fit", [](PlantedDialog& dialog) { dialog.caption->setMaximumWidth(20); }},
            {"fit", [](PlantedDialog& dialog) { dialog.field->setMaximumHeight(8); }},
            {"overlap",
             [](PlantedDialog& dialog) {
                 dialog.layout()->removeWidget(dialog.caption);
                 dialog.caption->move(dialog.tick->pos() - QPoint(0, 4));
             }},
            {"fixed", [](PlantedDialog& dialog) { dialog.setFixedSize(dialog.sizeHint()); }},
            {"contrast text", [](PlantedDialog& dialog) { Repaint(*dialog.caption, QPalette::WindowText, "#808896"); }},
            {"contrast outline",
             [](PlantedDialog& dialog) { Repaint(*dialog.tick, QPalette::PlaceholderText, "#969696"); }},
            {"ring", [](PlantedDialog& dialog) { Repaint(*dialog.tick, QPalette::Highlight, Qt::transparent); }},
            {"ring", [](PlantedDialog& dialog) { Repaint(*dialog.ball, QPalette::Highlight, Qt::transparent); }},
            {"told", [](PlantedDialog& dialog) { dialog.list->setCurrentRow(0); }},
            {"told", [](PlantedDialog& dialog) { dialog.layout()->addWidget(new QComboBox); }}};
        for (const auto& [kind, plant] : rows) {
            PlantedDialog dialog;
            dialog.show();
            plant(dialog);
            QVERIFY(QTest::qWaitForWindowExposed(&dialog));
            QStringList faults = LayoutFaults(dialog) + ContrastFaults(dialog);
            // This moves the focus, and so comes last.
            faults += FocusFaults(dialog);
            QVERIFY2(kind.isEmpty() == faults.isEmpty(), qPrintable(kind + ": " + faults.join('\n')));
            for (const QString& fault : faults)
                QVERIFY2(fault.startsWith(kind), qPrintable(kind + ": " + fault));
        }
    }

    void EveryPageAndWindowInTheLight() { LookAtAll(false); }
    void EveryPageAndWindowInTheDark() { LookAtAll(true); }

    void AGridAsksForTheRoomOfWhatItShows()
    {
        GridModel model({{"Shown", 0.5}, {"Hidden, and longer than the others", 0}, {"Also shown", 0.5}});
        GridModel same({{"Shown", 0.5}, {"Also shown", 0.5}});
        GridView grid("grid", "Grid");
        GridView other("other", "Other grid");
        for (const auto& [view, rows] : {std::pair(&grid, &model), {&other, &same}}) {
            view->setModel(rows);
            view->SetColumnShares(rows->ColumnShares());
        }
        QCOMPARE(grid.minimumSizeHint(), other.minimumSizeHint());
    }

    void AScrollBarIsDraggedFromEndToEnd()
    {
        for (const auto way : {Qt::Horizontal, Qt::Vertical}) {
            QScrollBar bar(way);
            bar.setRange(0, 100);
            bar.setPageStep(50);
            bar.resize(way == Qt::Horizontal ? QSize(300, bar.sizeHint().height())
                                             : QSize(bar.sizeHint().width(), 300));
            const QPoint middle = bar.rect().center();
            const QPoint end = bar.rect().bottomRight() - QPoint(2, 2);
            QTest::mouseClick(&bar, Qt::LeftButton, {}, end);
            QCOMPARE(bar.value(), 50);
            QTest::mousePress(&bar, Qt::LeftButton, {}, middle);
            QTest::mouseMove(&bar, end);
            QTest::mouseRelease(&bar, Qt::LeftButton, {}, end);
            QCOMPARE(bar.value(), 100);
            // The slider is thinner than the bar, and stands at its end now.
            const QImage picture = bar.grab().toImage();
            const QColor slider =
                picture.pixelColor(way == Qt::Horizontal ? QPoint(290, middle.y()) : QPoint(middle.x(), 290));
            QVERIFY(slider != picture.pixelColor(middle / 2) && slider != picture.pixelColor(end));
        }
    }

private:
    static void LookAtAll(bool dark)
    {
        SetDesktopPrefersDark(dark);
        const TestFolder files(TestFolder::Content::Starter);
        OpenDatabaseFiles();
        MainWindow window;
        window.show();
        const bool byLayoutOnly = qEnvironmentVariableIsSet("LAYOUT_ONLY");
        ShownPages seen;
        QStringList faults;
        const auto add = [&faults](const QString& name, const QStringList& found) {
            for (const QString& fault : found)
                faults.append(name + ": " + fault);
        };
        const Walk walk(window, [&](const QString& name, QWidget& shown) {
            const bool isFileDialog = qobject_cast<QFileDialog*>(&shown) != nullptr;
            if (&shown == &window) {
                window.resize(LargeSize);
                QApplication::processEvents();
                add(name, LayoutFaults(window));
                window.resize(SmallSize);
                // A layout that turns a row into a column is heard of by what lies around it one turn later.
                for (int turn = 0; turn < 3; ++turn)
                    QApplication::processEvents();
                if (window.size() != SmallSize)
                    add(name, {QString("fit %1 x %2").arg(window.width()).arg(window.height())});
            }
            if (!isFileDialog)
                add(name, LayoutFaults(shown));
            if (byLayoutOnly)
                return;
            seen.TakeDown(name, shown);
            if (!isFileDialog)
                add(name, ContrastFaults(shown) + FocusFaults(shown));
        });
        walk.MainJob();
        walk.EverythingElse();
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        for (auto page = seen.files.begin(); page != seen.files.end() && !dark; ++page)
            CompareApproved(page.key(), page.value());
    }
};

TAVENOR_TEST(LookTest)
#include "look_test.moc"
