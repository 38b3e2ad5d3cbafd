#include "support/approved.h"
#include "support/look_faults.h"
#include "support/shown_pages.h"
#include "support/test_window.h"

#include "look/theme.h"
#include "shell/page_area.h"
#include "walk.h"

#include <QAccessible>
#include <QFileDialog>
#include <QVBoxLayout>

#include <ctime>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

constexpr QSize SmallSize(1024, 720);

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

    void APlantedFaultIsFound()
    {
        QDialog dialog;
        auto* caption = new QLabel("A caption");
        auto* tick = new QCheckBox("Tick");
        auto* list = new QListWidget;
        list->addItem("Ann");
        list->setFrameShape(QFrame::NoFrame);
        list->setAccessibleName("Users");
        auto* narrow = new QPushButton("Store");
        auto* rows = new QVBoxLayout(&dialog);
        for (QWidget* widget : std::initializer_list<QWidget*>{caption, tick, list, narrow})
            rows->addWidget(widget);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        const auto kindsOfFaults = [&dialog] {
            QStringList kinds;
            for (const QStringList& faults : {LayoutFaults(dialog), ContrastFaults(dialog), FocusFaults(dialog)})
                for (const QString& fault : faults)
                    kinds.append(fault.section(' ', 0, 0));
            kinds.sort();
            return kinds.join(", ");
        };
        QCOMPARE(kindsOfFaults(), QString());
        QPalette planted;
        planted.setColor(QPalette::WindowText, "#808896");
        planted.setColor(QPalette::PlaceholderText, "#969696");
        planted.setColor(QPalette::Highlight, Qt::transparent);
        caption->setPalette(planted);
        tick->setPalette(planted);
        narrow->setMaximumWidth(20);
        dialog.setFixedSize(dialog.sizeHint());
        list->setCurrentRow(0);
        list->setAccessibleName({});
        QApplication::processEvents();
        narrow->move(list->geometry().center());
        QCOMPARE(kindsOfFaults(), QString("contrast, contrast, contrast, fit, fixed, overlap, ring, told, told"));
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

    void EveryPageAndWindowInTheLight() { LookAtAll(false); }
    void EveryPageAndWindowInTheDark() { LookAtAll(true); }

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
        const Walk walk(window, [&](const QString& name, QWidget& shown) {
            // What the toolkit's own window holds are the folders of the computer.
            if (qobject_cast<QFileDialog*>(&shown) != nullptr)
                return;
            QStringList found;
            if (&shown == &window) {
                window.resize(SmallSize);
                // A layout that turns a row into a column is heard of by what lies around it one turn later.
                for (int turn = 0; turn < 3; ++turn)
                    QApplication::processEvents();
                if (window.size() != SmallSize)
                    found.append(QString("fit %1 x %2").arg(window.width()).arg(window.height()));
            }
            found += LayoutFaults(shown);
            if (!byLayoutOnly) {
                seen.TakeDown(name, shown);
                found += ContrastFaults(shown);
                found += FocusFaults(shown);
            }
            QVERIFY2(found.isEmpty(), qPrintable(name + ": " + found.join('\n')));
        });
        walk.MainJob();
        walk.EverythingElse();
        QCOMPARE(window.objectName(), QString("frmmain"));
        QCOMPARE(QAccessible::queryAccessibleInterface(window.findChild<PageArea*>())->childCount(), 1);
        for (auto page = seen.files.begin(); page != seen.files.end() && !dark; ++page)
            CompareApproved(page.key(), page.value());
    }
};

TAVENOR_TEST(LookTest)
#include "look_test.moc"
