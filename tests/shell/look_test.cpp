#include "controls/label.h"
#include "look/button.h"
#include "support/approved.h"
#include "support/look_faults.h"
#include "support/shown_pages.h"
#include "support/test_window.h"

#include "analysis/graph_window.h"
#include "builder/draw_day_window.h"
#include "builder/number_window.h"
#include "controls/page_frame.h"
#include "draws/draw_prompt.h"
#include "look/theme.h"
#include "shell/about_window.h"
#include "utilities/advanced_window.h"
#include "walk.h"

#include <QAccessible>
#include <QFileDialog>
#include <QVBoxLayout>

#include <ctime>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

namespace {

constexpr QSize SmallSize(1024, 720);
constexpr QSize LargeSize(1500, 950);

/// A dialog without a fault, with two fields beside their captions, two buttons and a check box.
struct PlantedDialog : QDialog
{
    PlantedDialog()
    {
        auto* rows = new QVBoxLayout(this);
        for (QLineEdit* field : {first, second}) {
            field->setAccessibleName("Number");
            field->setText("12");
            rows->addWidget(field);
        }
        rows->addWidget(caption);
        rows->addWidget(tick);
        rows->addWidget(store);
        store->setDefault(true);
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        if (answersEscape)
            QDialog::keyPressEvent(event);
    }

    QLineEdit* first = new QLineEdit;
    QLineEdit* second = new QLineEdit;
    QLabel* caption = MakeLabel("A caption", TextRole::Body, "caption");
    QCheckBox* tick = new QCheckBox("Tick");
    Button* store = new Button("Store", "store");
    bool answersEscape = true;
};

void MakePale(QWidget& widget, QPalette::ColorRole role)
{
    QPalette pale;
    pale.setColor(role, role == QPalette::WindowText ? QColor(128, 136, 150) : QColor(150, 150, 150));
    widget.setPalette(pale);
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

    void cleanup() { SetAppearance(Appearance::FromDesktop); }

    void APlantedFaultIsFound()
    {
        using Plant = void (*)(PlantedDialog&);
        const std::pair<QString, Plant> rows[] = {
            {"", [](PlantedDialog&) {}},
            {"name", [](PlantedDialog& dialog) { dialog.first->setAccessibleName({}); }},
            {"fit", [](PlantedDialog& dialog) { dialog.caption->setMaximumWidth(20); }},
            {"fit", [](PlantedDialog& dialog) { dialog.store->setMaximumWidth(30); }},
            {"fit", [](PlantedDialog& dialog) { dialog.first->setMaximumHeight(8); }},
            {"overlap",
             [](PlantedDialog& dialog) {
                 dialog.layout()->removeWidget(dialog.tick);
                 dialog.tick->move(dialog.store->pos() - QPoint(0, dialog.tick->height() - 4));
             }},
            {"order", [](PlantedDialog& dialog) { QWidget::setTabOrder(dialog.second, dialog.first); }},
            {"default", [](PlantedDialog& dialog) { dialog.store->setDefault(false); }},
            {"escape", [](PlantedDialog& dialog) { dialog.answersEscape = false; }},
            {"contrast", [](PlantedDialog& dialog) { MakePale(*dialog.caption, QPalette::WindowText); }},
            {"contrast outline", [](PlantedDialog& dialog) { MakePale(*dialog.tick, QPalette::PlaceholderText); }},
            {"ring",
             [](PlantedDialog& dialog) {
                 QPalette hidden = dialog.store->palette();
                 hidden.setColor(QPalette::Highlight, hidden.color(QPalette::Window));
                 dialog.tick->setPalette(hidden);
             }},
            {"fixed", [](PlantedDialog& dialog) { dialog.setFixedSize(dialog.sizeHint()); }}};
        for (const auto& [kind, plant] : rows) {
            PlantedDialog dialog;
            dialog.show();
            plant(dialog);
            QVERIFY(QTest::qWaitForWindowExposed(&dialog));
            QStringList faults = LayoutFaults(dialog) + ContrastFaults(dialog) + FocusFaults(dialog);
            faults += DialogFaults(dialog);
            QVERIFY2(kind.isEmpty() == faults.isEmpty(), qPrintable(kind + ": " + faults.join('\n')));
            for (const QString& fault : faults)
                QVERIFY2(fault.startsWith(kind), qPrintable(kind + ": " + fault));
        }
    }

    void PagesAndWindowsShowWhatIsApproved()
    {
        const TestFolder files(TestFolder::Content::Starter);
        OpenDatabaseFiles();
        MainWindow window;
        window.show();
        ShownPages seen;
        const Walk walk(window, [&seen](const QString& name, QWidget& shown) { seen.TakeDown(name, shown); });
        walk.MainJob();
        walk.EverythingElse();
        for (auto page = seen.Files().begin(); page != seen.Files().end(); ++page)
            CompareApproved(page.key(), page.value());
    }

    void EveryPageAndWindowInTheLight() { LookAtAll(Appearance::Light); }
    void EveryPageAndWindowInTheDark() { LookAtAll(Appearance::Dark); }

    void GridsAndReportAreReadAloud()
    {
        TestWindow window(TestFolder::Content::Starter);
        AddUser(users, "Ann", 10);
        window.Window().ChooseMenu(2, 3);
        QAccessibleTableInterface* grid =
            QAccessible::queryAccessibleInterface(window.Find("F10Grid1"))->tableInterface();
        QCOMPARE(grid->rowCount(), 2065);
        QCOMPARE(grid->columnDescription(0), QString("Date"));
        QCOMPARE(grid->cellAt(0, 0)->text(QAccessible::Name), QString("07/10/2015"));
        window.Window().ChooseMenu(3, 4);
        window.Find<QPushButton>("F12check")->click();
        QAccessibleTextInterface* report =
            QAccessible::queryAccessibleInterface(window.Find("F12text"))->textInterface();
        QVERIFY(report->text(0, report->characterCount()).contains("There are no user entries stored."));
    }

    void EveryDialogHasADefaultAndAnswersEscape()
    {
        const TestFolder files(TestFolder::Content::Starter);
        OpenDatabaseFiles();
        QStringList faults;
        BuilderState state;
        DaySet days{};
        NumberWindow numbers(state, nullptr);
        DrawDayWindow drawDays(days, nullptr);
        DrawPrompt prompt("main", nullptr);
        AdvancedWindow advanced(nullptr);
        AboutWindow about(nullptr);
        GraphWindow chart(nullptr);
        chart.PrepareChart(1);
        for (QDialog* dialog :
             std::initializer_list<QDialog*>{&numbers, &drawDays, &prompt, &advanced, &about, &chart}) {
            dialog->show();
            faults += DialogFaults(*dialog);
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }

private:
    static void LookAtAll(Appearance appearance)
    {
        SetAppearance(appearance);
        const TestFolder files(TestFolder::Content::Starter);
        OpenDatabaseFiles();
        MainWindow window;
        window.show();
        QStringList faults;
        const auto add = [&faults](const QString& name, const QStringList& found) {
            for (const QString& fault : found)
                faults.append(name + ": " + fault);
        };
        const Walk walk(window, [&](const QString& name, QWidget& shown) {
            if (qobject_cast<QFileDialog*>(&shown) != nullptr)
                return;
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
            add(name, LayoutFaults(shown) + ScreenReaderFaults(shown));
            if (!qEnvironmentVariableIsSet("LAYOUT_ONLY"))
                add(name, ContrastFaults(shown) + FocusFaults(shown));
        });
        walk.MainJob();
        walk.EverythingElse();
        for (const QString& fault : faults)
            qWarning("%s", qPrintable(fault));
        QCOMPARE(faults.size(), 0);
    }
};

TAVENOR_TEST(LookTest)
#include "look_test.moc"
