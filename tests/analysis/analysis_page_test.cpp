#include "support/approved.h"
#include "support/test_window.h"

#include <QLabel>

namespace {

/// One of the two analysis menus in the main window.
class Menu : public TestWindow
{
public:
    explicit Menu(int menuPage, TestFolder::Content content = TestFolder::Content::Empty)
        : TestWindow(content), page(menuPage)
    {
        Open();
    }

    void Open() { OpenPage(5, page - 20); }
    QString Name(const QString& part) const { return QString("F%1%2").arg(page).arg(part); }
    QString ScreenName(int screen) const { return Name(QString("screen_%1").arg(screen)); }
    QString Title() const { return TextOf(Name("title")); }
    void PointAt(int screen, QPoint place = {})
    {
        QTest::mouseMove(Find(ScreenName(screen)), place);
        QApplication::processEvents();
    }
    /// What the chart window says that an action opens.
    QString ChartOf(const std::function<void()>& action)
    {
        QString described;
        modals.WillDo([&described](QDialog& dialog) {
            described = dialog.windowTitle() + ": " + dialog.findChild<QLabel*>("title")->text() + ": " +
                        dialog.findChild<QLabel*>("description")->text();
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        action();
        return modals.AllCame() ? described : "no chart";
    }

    int page;
};

} // namespace

class AnalysisPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ScreensDescribeAndOpen()
    {
        QStringList seen;
        for (const auto& [page, charts] : {std::pair(21, 6), {22, 4}}) {
            Menu menu(page);
            StoreDraws(MainGame, {"2026-11-21,3,15,22,31,40,49,9,MERLIN,4"});
            StoreDraws(ThunderballGame, {"2026-11-21,1,2,3,4,5,6"});
            for (int screen = 1; screen <= charts + 1; ++screen) {
                QCOMPARE(menu.IsShown(menu.Name("shape")), screen > 1);
                const QString control = menu.ScreenName(screen);
                menu.PointAt(screen);
                seen.append(control + ": " + menu.Title() + ": " +
                            menu.TextOf(menu.Name("label")).replace("\r\n", "\\r\\n"));
                QCOMPARE(menu.Find(menu.Name("shape"))->pos(), menu.Find(control)->pos() - QPoint(10, 10));
                if (screen <= charts) {
                    seen.append(menu.ChartOf([&] { menu.Click(control); }));
                    QVERIFY(!menu.IsShown(menu.Name("loading")));
                }
            }
            menu.Click(menu.ScreenName(charts + 1));
            QVERIFY(menu.IsShown(QString("Frame_%1").arg(page + 2)));
        }
        CompareApproved("analysis_screens", seen);
    }

    void KeysTitleAndDescriptionOpenTheSelectedScreen()
    {
        Menu menu(21, TestFolder::Content::Starter);
        for (const char* label : {"F21title", "F21label"})
            menu.Click(label);
        QVERIFY(menu.modals.AllCame());
        menu.PointAt(5);
        // A button let go beside the label that it was pressed on is no click.
        QTest::mousePress(menu.Find("F21title"), Qt::LeftButton);
        QTest::mouseRelease(menu.Find("F21title"), Qt::LeftButton, {}, QPoint(5, -20));
        QVERIFY(menu.modals.AllCame());
        for (const char* label : {"F21label", "F21title"})
            QVERIFY(menu.ChartOf([&] { menu.Click(label); }).contains("lottery machine"));
        menu.Find("F21screen_1")->setFocus();
        menu.PressFocused(Qt::Key_Tab);
        QCOMPARE(menu.FocusedName() + menu.Title(), QString("F21screen_2Colour Frequency"));
        // The pointer strays to another screen; the keys open the one that has the focus.
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
            menu.PointAt(6);
            QVERIFY(menu.ChartOf([&] { menu.PressFocused(key); }).contains("different colour"));
        }
        menu.Click("Suboption2");
        menu.Open();
        QCOMPARE(menu.Title(), QString("Main Draw Analysis"));
        QCOMPARE(menu.TextOf("F21label"), QString("Move the pointer over the different screenshots to see a "
                                                  "description of it, then click to go to it."));
        QVERIFY(!menu.IsShown("F21shape"));
        menu.Click("F21label");
    }

    void OnlyAnotherScreenRedraws()
    {
        Menu menu(22);
        QCOMPARE(menu.Title(), QString("Thunderball Draw Analysis"));
        menu.PointAt(1);
        menu.Find<QLabel>("F22title")->setText("as it was");
        menu.PointAt(1, QPoint(20, 20));
        QCOMPARE(menu.Title(), QString("as it was"));
        menu.PointAt(3);
        QCOMPARE(menu.Title(), QString("Thunderball Frequency"));
        menu.Window().resize(1300, 900);
        QApplication::processEvents();
        QCOMPARE(menu.Find("F22shape")->geometry(), menu.Find("F22screen_3")->geometry().adjusted(-10, -10, 10, 10));
    }

    void WithoutDrawsEveryChartSaysSoOnce()
    {
        for (const int page : {21, 22}) {
            Menu menu(page);
            // The other game's draws make no difference.
            StoreDraws(page == 21 ? ThunderballGame : MainGame, {"2026-11-21,1,2,3,4,5,6,7"});
            const int charts = page == 21 ? 6 : 4;
            for (int screen = 1; screen <= charts; ++screen) {
                menu.modals.WillPress(QMessageBox::Ok);
                menu.Click(menu.ScreenName(screen));
                QCOMPARE(menu.modals.TakeTexts(), QStringList{"There are no draws in the database."});
                QVERIFY(!menu.IsShown(menu.Name("loading")));
            }
            menu.Click(menu.ScreenName(charts + 1));
            QVERIFY(menu.IsShown(QString("Frame_%1").arg(page + 2)) && menu.modals.AllCame());
        }
    }
};

TAVENOR_TEST(AnalysisPageTest)
#include "analysis_page_test.moc"
