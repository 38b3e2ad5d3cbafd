#include "support/test_window.h"

namespace {

/// Opens the ball data page by its screen on the analysis menu.
void Open(TestWindow& window, int page)
{
    window.OpenPage(5, page - 22);
    window.Click(page == 23 ? "F21screen_7" : "F22screen_5");
}

QString Sentences(const TestWindow& window, int page)
{
    const QString name = QString("F%1data_%2").arg(page);
    return window.TextsOf({name.arg(1), name.arg(2), name.arg(3), name.arg(4)});
}

} // namespace

class BallDataPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SentencesAreLetterForLetter()
    {
        TestWindow window;
        Open(window, 24);
        QCOMPARE(Sentences(window, 24), QString("This ball has never been drawn as a main ball.||"
                                                "This ball has never been drawn as the thunderball.|"));
        Open(window, 23);
        // A draw that holds a ball twice has it once.
        StoreDraws(MainGame, {"2000-01-05,1,1,3,4,5,6,7", "2000-01-15,1,12,13,14,15,16,7",
                              "2000-01-19,21,22,23,24,25,26,27", "2000-01-22,21,22,23,24,25,26,1"});
        StoreDraws(ThunderballGame,
                   {"2000-01-01,5,6,7,8,9,14", "2000-01-08,1,2,3,14,34,14", "2000-01-15,20,21,22,23,24,3"});
        using Row = std::tuple<int, const char*, const char*>;
        for (const auto& [page, ball, told] :
             {Row{23, "1",
                  "This ball was last drawn as a main ball 2 draws ago, on Sat 15 January 2000.|"
                  "This ball has been drawn 2 times as a main ball.|"
                  "This ball was last drawn as the bonus ball 0 draws ago, on Sat 22 January 2000.|"
                  "This ball has been drawn 1 times as the bonus ball."},
              Row{23, "7",
                  "This ball has never been drawn as a main ball.||"
                  "This ball was last drawn as the bonus ball 2 draws ago, on Sat 15 January 2000.|"
                  "This ball has been drawn 2 times as the bonus ball."},
              Row{23, "49",
                  "This ball has never been drawn as a main ball.||This ball has never been drawn as the bonus ball.|"},
              Row{24, "14",
                  "This ball was last drawn as a main ball 1 draws ago, on Sat 8 January 2000.|"
                  "This ball has been drawn 1 times as a main ball.|"
                  "This ball was last drawn as the thunderball 1 draws ago, on Sat 8 January 2000.|"
                  "This ball has been drawn 2 times as the thunderball."},
              Row{24, "34",
                  "This ball was last drawn as a main ball 1 draws ago, on Sat 8 January 2000.|"
                  "This ball has been drawn 1 times as a main ball.||"},
              Row{24, "15", "This ball has never been drawn as a main ball.|||"}}) {
            Open(window, page);
            window.Type(QString("F%1enter").arg(page), ball);
            QCOMPARE(Sentences(window, page), QString(told));
        }
        // As the page opens it tells anew of ball 1, and its box waits for a number.
        Open(window, 23);
        QVERIFY(Sentences(window, 23).startsWith("This ball was last drawn as a main ball 2 draws ago"));
        QCOMPARE(window.TextOf("F23enter") + window.FocusedName(), QString("F23enter"));
    }

    void WholePartOfTheTypedNumberCounts()
    {
        TestWindow window;
        // What is no ball of the game leaves the ball 3, typed before, or that of the number's first digit.
        const char* white = "#FFFFFF";
        const char* navy = "#000080";
        using Row = std::tuple<int, const char*, const char*, const char*>;
        for (const auto& [page, typed, number, disc] :
             {Row{23, "10", "10", "#80FFFF"}, Row{23, "29", "29", "#FF8080"}, Row{23, "30", "30", "#80FF80"},
              Row{23, "49.9", "49", "#FFFF80"}, Row{23, "7.9", "07", white}, Row{23, "8x", "08", white},
              Row{23, " 9", "09", white}, Row{23, "0.9", "03", white}, Row{23, "-5", "03", white},
              Row{23, "abc", "03", white}, Row{23, "50", "05", white}, Row{24, "34", "34", navy},
              Row{24, "35", "03", navy}, Row{24, "14", "14", navy}, Row{24, "15", "15", navy}}) {
            Open(window, page);
            const QString prefix = QString("F%1").arg(page);
            window.Type(prefix + "enter", "3");
            window.Type(prefix + "enter", typed);
            QVERIFY2(window.ColourOf(prefix + "ball", QPalette::Window) == QColor(disc), typed);
            for (const QString& left : {QString(typed), QString()}) {
                QVERIFY2(window.TextOf(prefix + "number") == number, typed);
                QCOMPARE(window.TextOf(prefix + "enter"), left);
                window.Press(prefix + "enter", Qt::Key_Return);
            }
            // The ball as a thunderball.
            const bool hasExtra = QString(number).toInt() <= 14;
            if (page == 24) {
                QVERIFY2(window.IsShown("F24ball2") == hasExtra && window.IsShown("F24number2") == hasExtra, typed);
                QVERIFY2(window.TextOf("F24number2") == number, typed);
                QCOMPARE(window.ColourOf("F24ball2", QPalette::Window), QColor("#FF0000"));
            }
        }
    }

    void BackAndEscapeUncoverTheMenu()
    {
        TestWindow window;
        for (const bool byEscape : {false, true}) {
            Open(window, 23);
            QVERIFY(window.IsShown("Frame_21"));
            // The menu behind the page takes no keys.
            window.PressFocused(Qt::Key_Tab);
            QCOMPARE(window.FocusedName(), QString("F23back"));
            window.PressFocused(Qt::Key_Tab);
            QVERIFY(!window.FocusedName().startsWith("F21"));
            window.Press(byEscape ? "F23enter" : "F23back", byEscape ? Qt::Key_Escape : Qt::Key_Space);
            QVERIFY(!window.IsShown("Frame_23") && window.IsShown("Frame_21"));
            QCOMPARE(window.TextOf("F21title"), QString("Individual Ball Data"));
            QCOMPARE(window.FocusedName(), QString("F21screen_7"));
        }
    }
};

TAVENOR_TEST(BallDataPageTest)
#include "ball_data_page_test.moc"
