#include "support/approved.h"
#include "support/look_faults.h"
#include "support/shown_pages.h"
#include "support/test_window.h"

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
        for (const QString kind :
             {"", "fit", "overlap", "fixed", "contrast text", "contrast outline", "ring", "told"}) {
            QDialog dialog;
            auto* rows = new QVBoxLayout(&dialog);
            auto* field = new QLineEdit("12");
            QLabel* caption = MakeLabel("A caption", TextRole::Body, "caption");
            auto* tick = new QCheckBox("Tick");
            auto* list = new QListWidget;
            list->addItem("Ann");
            list->setFrameShape(QFrame::NoFrame);
            auto* store = new Button("Store", "store");
            store->MakeAccent();
            for (QWidget* widget : std::initializer_list<QWidget*>{field, caption, tick, list, store})
                rows->addWidget(widget);
            dialog.show();
            if (kind == "fit")
                caption->setMaximumWidth(20);
            else if (kind == "overlap") {
                rows->removeWidget(store);
                store->move(caption->pos());
            } else if (kind == "fixed")
                dialog.setFixedSize(dialog.sizeHint());
            else if (kind == "contrast text")
                Repaint(*caption, QPalette::WindowText, "#808896");
            else if (kind == "contrast outline")
                Repaint(*tick, QPalette::PlaceholderText, "#969696");
            else if (kind == "ring")
                Repaint(*tick, QPalette::Highlight, Qt::transparent);
            else if (kind == "told")
                list->setCurrentRow(0);
            QVERIFY(QTest::qWaitForWindowExposed(&dialog));
            QStringList faults = LayoutFaults(dialog);
            faults += ContrastFaults(dialog);
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
            bar.resize(way == Qt::Horizontal ? QSize(300, 12) : QSize(12, 300));
            const QPoint end = bar.rect().bottomRight() - QPoint(2, 2);
            QTest::mouseClick(&bar, Qt::LeftButton, {}, end);
            QCOMPARE(bar.value(), 50);
            QTest::mousePress(&bar, Qt::LeftButton, {}, bar.rect().center());
            QTest::mouseMove(&bar, end);
            QTest::mouseRelease(&bar, Qt::LeftButton, {}, end);
            QCOMPARE(bar.value(), 100);
        }
    }

    /// Shaping a text of megabytes would take seconds.
    void OfALongTextTheBeginningIsDrawn()
    {
        const auto draw = [](auto&& shown, int length) {
            shown.addItem(QString(length, 'I'));
            shown.resize(20000, 60);
            return shown.grab().toImage();
        };
        const auto inList = [&draw](int length) { return draw(QListWidget(), length); };
        const auto inBox = [&draw](int length) { return draw(QComboBox(), length); };
        QVERIFY(inList(999) != inList(1000) && inList(1000) == inList(1001));
        QVERIFY(inBox(999) != inBox(1000) && inBox(1000) == inBox(1001));
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
        const Walk walk(window, [&](const QString& name, QWidget& shown) {
            QStringList found;
            if (&shown == &window) {
                window.resize(LargeSize);
                QApplication::processEvents();
                found += LayoutFaults(window);
                window.resize(SmallSize);
                // A layout that turns a row into a column is heard of by what lies around it one turn later.
                for (int turn = 0; turn < 3; ++turn)
                    QApplication::processEvents();
                if (window.size() != SmallSize)
                    found.append(QString("fit %1 x %2").arg(window.width()).arg(window.height()));
            }
            const bool isOurs = qobject_cast<QFileDialog*>(&shown) == nullptr;
            if (isOurs)
                found += LayoutFaults(shown);
            if (!byLayoutOnly)
                seen.TakeDown(name, shown);
            if (isOurs && !byLayoutOnly) {
                found += ContrastFaults(shown);
                found += FocusFaults(shown);
            }
            for (const QString& fault : found)
                faults.append(name + ": " + fault);
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
