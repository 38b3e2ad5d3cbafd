#include "support/test_window.h"

#include "analysis/charts.h"

namespace {

/// One of the two analysis menus in the main window.
class Menu : public TestWindow
{
public:
    explicit Menu(int menuPage) : page(menuPage) { Open(); }

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
            described = dialog.findChild<QLabel*>("description")->text();
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
    /// What the screens say of themselves is compared with all that the pages show.
    void EveryScreenIsDescribedAndOpensItsChart()
    {
        for (const auto& [page, charts] : {std::pair(21, QList{1, 2, 3, 4, 5, 6}), {22, {21, 22, 23, 24}}}) {
            Menu menu(page);
            // The other game's draws make no difference.
            StoreDraws(page == 21 ? ThunderballGame : MainGame, {"2026-11-21,1,2,3,4,5,6,7"});
            for (const bool hasDraws : {false, true}) {
                for (int screen = 1; screen <= charts.size(); ++screen) {
                    const QWidget* button = menu.Find(menu.ScreenName(screen));
                    menu.PointAt(screen);
                    QCOMPARE(menu.Title(), button->accessibleName());
                    QCOMPARE(menu.TextOf(menu.Name("label")), button->accessibleDescription());
                    QCOMPARE(menu.Find(menu.Name("shape"))->pos(), button->pos() - QPoint(10, 10));
                    const Chart& chart = FindChart(charts[screen - 1]);
                    if (hasDraws)
                        QCOMPARE(menu.ChartOf([&] { menu.Click(menu.ScreenName(screen)); }),
                                 chart.Description(chart.ballType));
                    else
                        QCOMPARE(menu.Click(menu.ScreenName(screen), {QMessageBox::Ok}),
                                 QStringList{"There are no draws in the database."});
                    QVERIFY(!menu.IsShown(menu.Name("loading")));
                }
                menu.Click(menu.ScreenName(static_cast<int>(charts.size()) + 1));
                QVERIFY(menu.IsShown(QString("Frame_%1").arg(page + 2)) && menu.modals.AllCame());
                StoreDraws(page == 21 ? MainGame : ThunderballGame, {"2026-11-21,3,15,22,31,32,9,7"});
                menu.Open();
            }
        }
    }

    void KeysTitleAndDescriptionOpenTheSelectedScreen()
    {
        Menu menu(21);
        StoreDraws(MainGame, {"2026-11-21,3,15,22,31,40,49,9,MERLIN,4"});
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
        menu.Open();
        QCOMPARE(menu.Title(), QString("Main Draw Analysis"));
        QVERIFY(menu.TextOf("F21label").startsWith("Move the pointer over the ") && !menu.IsShown("F21shape"));
        menu.Click("F21label");
    }

    void OnlyAnotherScreenRedraws()
    {
        Menu menu(22);
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
};

TAVENOR_TEST(AnalysisPageTest)
#include "analysis_page_test.moc"
