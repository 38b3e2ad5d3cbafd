#include "support/stored_draws.h"
#include "support/test_window.h"

namespace {

const QString Unpointed =
    "Move the pointer over the different screenshots to see a description of it, then click to go "
    "to it.";
const QString CountOption =
    "\r\nYou have the option to count main balls only, bonus balls only or both main AND bonus balls.";

void Open(TestWindow& window, int page)
{
    window.Click("Button5");
    window.Click(page == 21 ? "Suboption1" : "Suboption2");
}

void PointAt(TestWindow& window, const QString& screen, QPoint place = {})
{
    QTest::mouseMove(window.Find(screen), place);
    QApplication::processEvents();
}

/// Foresees the chart window, closes it, and fills in what it described.
void WillShowChart(TestWindow& window, QString& described)
{
    window.modals.WillDo([&described](QDialog& dialog) {
        described = dialog.windowTitle() + ": " + dialog.findChild<QLabel*>("title")->text() + ": " +
                    dialog.findChild<QLabel*>("description")->text();
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
}

} // namespace

class AnalysisPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ScreensDescribeAndOpen_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<int>("screen");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("description");
        QTest::addColumn<QString>("opens");
        const auto row = [](int page, int screen, const char* title, const QString& description, const QString& opens) {
            QTest::addRow("%d, %d", page, screen) << page << screen << QString(title) << description << opens;
        };
        const auto chart = [row](int page, int screen, const char* title, const QString& shows, const QString& opens) {
            row(page, screen, title, "This shows you how many " + shows,
                "This is a bar chart, showing how many " + opens);
        };
        chart(21, 1, "Ball Frequency",
              "times each lottery ball has been drawn from the main lottery draw." + CountOption,
              "times each lottery ball has been drawn in the main lottery draw.");
        chart(21, 2, "Colour Frequency",
              "times each lottery ball colour (and it's associated number range) has been drawn from the main lottery "
              "draw." +
                  CountOption,
              "times each different colour of lottery ball has been drawn in the main lottery draw.");
        chart(21, 3, "Odd/Even Numbers",
              "times each drawn lottery ball from the main lottery draw has been either an odd or even number." +
                  CountOption,
              "times the lottery balls have been either odd, or even, in the main lottery draw.");
        chart(21, 4, "How Long Since ?",
              "draws have taken place since each lottery ball was last drawn in the main lottery draw.\r\nYou have the "
              "option to stop the count at the first main ball, bonus ball or either found.",
              "draws have taken place since each ball has been drawn.");
        chart(21, 5, "Lottery Machine", "times each lottery machine has been used for the main lottery draw.",
              "times each lottery machine has been used for the main draw.");
        chart(21, 6, "Ball Sets", "times each set of balls has been used for the main lottery draw.",
              "times each set of balls has been used for the main draw.");
        chart(22, 1, "Main Ball Frequency",
              "times each lottery ball has been drawn as a main ball in the thunderball lottery draw.",
              "times each main lottery ball has been drawn in the thunderball draw.");
        chart(22, 2, "How Long Since ?",
              "draws have taken place since each lottery ball was last drawn as a main ball in the thunderball lottery "
              "draw.",
              "draws have taken place since each ball has been drawn as a main ball in the thunderball draw.");
        chart(22, 3, "Thunderball Frequency",
              "times each lottery ball has been drawn as the thunderball in the thunderball lottery draw.",
              "times each lottery ball has been drawn as the thunderball, in the thunderball draw.");
        chart(22, 4, "How Long Since ?",
              "draws have taken place since each lottery ball was last drawn as the thunderball in the thunderball "
              "lottery draw.",
              "draws have taken place since each ball has been drawn as a thunderball in the thunderball draw.");
        const QString typed =
            "After entering any ball number, you will be shown how often that ball has appeared and when it appeared, "
            "as a main ball or ";
        row(21, 7, "Individual Ball Data", typed + "bonus ball.", "Frame_23");
        row(22, 5, "Individual Ball Data", typed + "thunderball.", "Frame_24");
    }

    void ScreensDescribeAndOpen()
    {
        QFETCH(int, page);
        QFETCH(int, screen);
        QFETCH(QString, title);
        QFETCH(QString, description);
        QFETCH(QString, opens);
        TestWindow window;
        StoreDraws(MainGame, {"2026-11-21,3,15,22,31,40,49,9,MERLIN,4"});
        StoreDraws(ThunderballGame, {"2026-11-21,1,2,3,4,5,6"});
        Open(window, page);
        const QString prefix = QString("F%1").arg(page);
        const QString control = prefix + QString("screen_%1").arg(screen);
        QVERIFY(!window.IsShown(prefix + "shape"));
        PointAt(window, control);
        QCOMPARE(window.TextOf(prefix + "title"), title);
        QCOMPARE(window.TextOf(prefix + "label"), description);
        QVERIFY(window.IsShown(prefix + "shape"));
        QCOMPARE(window.Find(prefix + "shape")->pos(), window.Find(control)->pos() - QPoint(10, 10));
        QString described;
        if (!opens.startsWith("Frame"))
            WillShowChart(window, described);
        window.Click(control);
        if (opens.startsWith("Frame"))
            QVERIFY(window.IsShown(opens));
        else
            QCOMPARE(described, (page == 21 ? "Tavenor 3: Main Draw: " : "Tavenor 3: Thunderball Draw: ") + opens);
        QVERIFY(window.modals.AllCame());
        QVERIFY(!window.IsShown(prefix + "loading"));
    }

    void TitleAndDescriptionOpenTheSelectedScreen()
    {
        TestWindow window(TestFolder::Content::Starter);
        Open(window, 21);
        for (const char* label : {"F21title", "F21label"})
            window.Click(label);
        QVERIFY(window.modals.AllCame());
        PointAt(window, "F21screen_5");
        // A button let go beside the label that it was pressed on is no click.
        QTest::mousePress(window.Find("F21title"), Qt::LeftButton);
        QTest::mouseRelease(window.Find("F21title"), Qt::LeftButton, {}, QPoint(5, -20));
        QVERIFY(window.modals.AllCame());
        for (const char* label : {"F21label", "F21title"}) {
            QString described;
            WillShowChart(window, described);
            window.Click(label);
            QVERIFY(described.contains("lottery machine"));
        }
        QVERIFY(window.modals.AllCame());
        Open(window, 22);
        Open(window, 21);
        QCOMPARE(window.TextOf("F21title"), QString("Main Draw Analysis"));
        QCOMPARE(window.TextOf("F21label"), Unpointed);
        QVERIFY(!window.IsShown("F21shape"));
        window.Click("F21label");
        QVERIFY(window.modals.AllCame());
    }

    void OnlyAnotherScreenRedraws()
    {
        TestWindow window;
        Open(window, 22);
        QCOMPARE(window.TextOf("F22title"), QString("Thunderball Draw Analysis"));
        PointAt(window, "F22screen_1");
        window.Find<QLabel>("F22title")->setText("as it was");
        PointAt(window, "F22screen_1", QPoint(20, 20));
        QCOMPARE(window.TextOf("F22title"), QString("as it was"));
        PointAt(window, "F22screen_3");
        QCOMPARE(window.TextOf("F22title"), QString("Thunderball Frequency"));
        window.Window().resize(1300, 900);
        QApplication::processEvents();
        QCOMPARE(window.Find("F22shape")->geometry(),
                 window.Find("F22screen_3")->geometry().adjusted(-10, -10, 10, 10));
    }

    void TabDescribesAndEnterOrSpaceOpens()
    {
        TestWindow window(TestFolder::Content::Starter);
        Open(window, 21);
        window.Find("F21screen_1")->setFocus();
        window.PressFocused(Qt::Key_Tab);
        QCOMPARE(window.FocusedName(), QString("F21screen_2"));
        QCOMPARE(window.TextOf("F21title"), QString("Colour Frequency"));
        // The pointer strays to another screen; the keys open the one that has the focus.
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
            PointAt(window, "F21screen_6");
            QString described;
            WillShowChart(window, described);
            window.PressFocused(key);
            QVERIFY(described.contains("different colour"));
        }
        QVERIFY(window.modals.AllCame());
    }

    void WithoutDrawsEveryChartSaysSoOnce()
    {
        for (const int page : {21, 22}) {
            TestWindow window;
            // The other game's draws make no difference.
            StoreDraws(page == 21 ? ThunderballGame : MainGame, {"2026-11-21,1,2,3,4,5,6,7"});
            Open(window, page);
            const int charts = page == 21 ? 6 : 4;
            for (int screen = 1; screen <= charts; ++screen) {
                window.modals.WillPress(QMessageBox::Ok);
                window.Click(QString("F%1screen_%2").arg(page).arg(screen));
                QCOMPARE(window.modals.TakeTexts(), QStringList{"There are no draws in the database."});
                QVERIFY(!window.IsShown(QString("F%1loading").arg(page)));
            }
            window.Click(QString("F%1screen_%2").arg(page).arg(charts + 1));
            QVERIFY(window.IsShown(QString("Frame_%1").arg(page + 2)));
            QVERIFY(window.modals.AllCame());
        }
    }
};

TAVENOR_TEST_MAIN(AnalysisPageTest)
#include "analysis_page_test.moc"
