#include "support/test_window.h"

namespace {

/// Opens the ball data page by its screen on the analysis menu.
void Open(TestWindow& window, int page)
{
    window.OpenPage(5, page - 22);
    window.Click(page == 23 ? "F21screen_7" : "F22screen_5");
}

QStringList Sentences(const TestWindow& window, int page)
{
    const QString name = QString("F%1data_%2").arg(page);
    return window.TextsOf({name.arg(1), name.arg(2), name.arg(3), name.arg(4)}).split(u'|');
}

/// The two sentences on one role, from the rows that the list's file holds.
QStringList PlainSentences(const QList<QStringList>& draws, int firstField, int lastField, int ball,
                           const QString& role)
{
    int count = 0;
    QString last = "This ball has never been drawn as " + role + ".";
    for (int draw = 0; draw < draws.size(); ++draw) {
        if (!draws[draw].mid(firstField, lastField - firstField + 1).contains(QString::number(ball)) || ++count > 1)
            continue;
        const QDate date = QDate::fromString(draws[draw][1], Qt::ISODate);
        last = QString("This ball was last drawn as %1 %2 draws ago, on %3 %4.")
                   .arg(role, QString::number(draw), draws[draw][2],
                        QLocale(QLocale::English).toString(date, "d MMMM yyyy"));
    }
    return {last, count == 0 ? QString() : QString("This ball has been drawn %1 times as %2.").arg(count).arg(role)};
}

} // namespace

class BallDataPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryBallOfTheRealHistoryIsTold()
    {
        TestWindow window(TestFolder::Content::Starter);
        for (const bool isMain : {true, false}) {
            const int page = isMain ? 23 : 24;
            Open(window, page);
            QList<QStringList> draws;
            for (const QString& row : TestFolder::StoredRows(isMain ? "ukmainlist" : "ukthunderlist"))
                draws.append(row.split(u','));
            const QString prefix = QString("F%1").arg(page);
            for (int ball = 1; ball <= (isMain ? 49 : 34); ++ball) {
                window.Type(prefix + "enter", QString::number(ball));
                const bool hasExtra = isMain || ball <= 14;
                QStringList expected = PlainSentences(draws, 3, isMain ? 8 : 7, ball, "a main ball");
                expected += !hasExtra ? QStringList{"", ""}
                            : isMain  ? PlainSentences(draws, 9, 9, ball, "the bonus ball")
                                      : PlainSentences(draws, 8, 8, ball, "the thunderball");
                QCOMPARE(Sentences(window, page), expected);
                QCOMPARE(window.TextOf(prefix + "number"), QString("%1").arg(ball, 2, 10, QChar('0')));
                if (isMain)
                    continue;
                QVERIFY(window.IsShown("F24ball2") == hasExtra && window.IsShown("F24number2") == hasExtra);
                QCOMPARE(window.TextOf("F24number2"), window.TextOf("F24number"));
                QCOMPARE(window.ColourOf("F24ball2", QPalette::Window), QColor("#FF0000"));
            }
        }
    }

    void SentencesAreLetterForLetter()
    {
        TestWindow window;
        Open(window, 24);
        const QString neverMain = "This ball has never been drawn as a main ball.";
        QCOMPARE(Sentences(window, 24),
                 (QStringList{neverMain, "", "This ball has never been drawn as the thunderball.", ""}));
        Open(window, 23);
        QCOMPARE(Sentences(window, 23).first(), neverMain);
        window.Type("F23enter", "1");
        window.Click("F23back");
        StoreDraws(MainGame, {"2000-01-05,1,2,3,4,5,6,7", "2000-01-15,1,12,13,14,15,16,7",
                              "2000-01-19,21,22,23,24,25,26,27", "2000-01-22,21,22,23,24,25,26,27"});
        // As the page opens it tells anew of ball 1, and its box waits for a number.
        window.Click("F21screen_7");
        QCOMPARE(Sentences(window, 23),
                 (QStringList{"This ball was last drawn as a main ball 2 draws ago, on Sat 15 January 2000.",
                              "This ball has been drawn 2 times as a main ball.",
                              "This ball has never been drawn as the bonus ball.", ""}));
        QCOMPARE(window.TextOf("F23enter"), QString());
        QCOMPARE(window.FocusedName(), QString("F23enter"));
    }

    void WholePartOfTheTypedNumberCounts()
    {
        TestWindow window;
        // What is no ball of the game leaves the ball 3, typed before, or that of the number's first digit.
        const char* white = "#FFFFFF";
        using Row = std::tuple<int, const char*, const char*, const char*>;
        for (const auto& [page, typed, number, disc] :
             {Row{23, "10", "10", "#80FFFF"}, Row{23, "29", "29", "#FF8080"}, Row{23, "30", "30", "#80FF80"},
              Row{23, "49.9", "49", "#FFFF80"}, Row{23, "7.9", "07", white}, Row{23, "8x", "08", white},
              Row{23, " 9", "09", white}, Row{23, "0.9", "03", white}, Row{23, "-5", "03", white},
              Row{23, "abc", "03", white}, Row{23, "50", "05", white}, Row{24, "34", "34", "#000080"},
              Row{24, "35", "03", "#000080"}}) {
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
