#include "support/approved.h"
#include "support/grid_driver.h"
#include "support/raw_file.h"

#include "builder/random_source.h"

namespace {

/// The controls that come and go, by the words that the tests use for them.
const std::pair<QString, QString> Changing[] = {{"type", "F26combo_1"},  {"info", "F26info"},      {"made", "Label_8"},
                                                {"ask", "Label_9"},      {"option", "F26combo_2"}, {"count", "F26text"},
                                                {"choose", "F26choose"}, {"none", "Label_12"},     {"go", "F26go"},
                                                {"grid", "F26grid"},     {"store", "F26store"}};

/// The page in the real window, with two users, "Ann" and "Ben".
class Generator : public TestWindow
{
public:
    explicit Generator(double limit = 500)
    {
        AddUser(users, "Ann", limit);
        AddUser(users, "Ben", 500);
        Do("open");
    }

    /// Steps in words: "open", "user 0", "type 2", "option 1", a count "count 5" with Enter, "leave 5" with Tab and
    /// "late 5" with a press of Go, "pick" and "back" for random numbers that are stored or not, and "go".
    void Do(const QString& steps)
    {
        for (const QString& step : steps.split(u';')) {
            const QString word = step.section(u' ', 0, 0);
            const QString rest = step.section(u' ', 1);
            const auto list = QStringList{"user", "type", "option"}.indexOf(word);
            if (list >= 0) {
                Choose(u"F26combo_%1"_s.arg(list), rest.toInt());
            } else if (word == "open") {
                Window().ChooseMenu(4, 1);
            } else if (word == "go") {
                Click("F26go", {QMessageBox::Ok});
            } else if (word == "pick" || word == "back") {
                Pick({"random", word == "pick" ? "store" : "nostore"});
            } else {
                Type("F26text", rest);
                word == "late" ? Click("F26go") : Press("F26text", word == "count" ? Qt::Key_Return : Qt::Key_Tab);
            }
        }
    }

    /// Opens the number window and does these presses; tells what the window asks for and, for each "?", what it says
    /// then and whether it offers Store.
    QString Pick(const QStringList& presses)
    {
        QStringList told;
        modals.WillDo([&](QDialog& dialog) {
            told.append(dialog.findChild<QLabel*>("Label_0")->text());
            for (const QString& press : presses) {
                QVERIFY(dialog.findChild<QPushButton*>("Selall")->shortcut() != QKeySequence("Alt+S"));
                if (press == "close")
                    dialog.close();
                else if (press != "?")
                    PressIn(dialog, press);
                else
                    told.append(dialog.findChild<QLabel*>("Label_1")->text() +
                                (dialog.findChild<QWidget*>("store")->isVisible() ? " Store" : ""));
            }
        });
        Click("F26choose");
        return told.join(u'|');
    }

    QString Seen() const
    {
        QStringList seen;
        for (const auto& [word, name] : Changing)
            if (IsShown(name))
                seen.append(word);
        return seen.join(u' ');
    }

    GridDriver Grid() { return {*this, "F26grid"}; }
};

} // namespace

class EntryGeneratorPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EachStepShowsItsControls()
    {
        // A step and, after the colon, what is seen then; "typed" is what every build type shows.
        for (const QString steps :
             {"open:;user 0:type;type 0:typed count;count 0:typed count;leave 5:typed count none go;"
              "go:typed count none go grid store;count 6:typed count none go grid store;"
              "count x:typed count grid store;count 6:typed count none go grid store;"
              "user 0:typed count none store;count 7:typed count none go store;late 500:typed count store;"
              "leave 7:typed count none go store;type 0:typed count none store;user 1:type store;"
              "type 0:typed count store;open:",
              "user 0:type;type 0:typed count;count 200:typed count none go;count 0.9:typed count;"
              "count 1:typed count none go;type 3:typed none go;go:typed none go grid store;user 0:typed none store;"
              "type 0:typed count none store;type 1:typed option store;type 0:typed count store",
              "user 1:type;type 1:typed option;option 0:typed option choose;back:typed option choose;"
              "pick:typed option choose go;go:typed option choose go grid store;"
              "option 0:typed option choose store;pick:typed option choose go;back:typed option choose;"
              "user 1:typed option;user 0:type;type 2:typed option;option 6:typed option choose;"
              "pick:typed option choose go;go:typed option choose go grid store;"
              "pick:typed option choose go;type 2:typed option",
              // What no numbers were needed for is not told to another user.
              "user 1:type;type 3:typed none go;type 1:typed option;type 3:typed none go;user 0:type;"
              "type 0:typed count;count 7:typed count none go;user 1:type;type 0:typed count"}) {
            Generator window;
            for (const QString& line : steps.split(u';')) {
                window.Do(line.section(u':', 0, 0));
                const QString seen = line.section(u':', 1).replace("typed", "type info made ask");
                QVERIFY2(window.Seen() == seen, qPrintable(line + ", but " + window.Seen()));
            }
        }
    }

    void BuildTypesAreExplained()
    {
        Generator window;
        window.Do("user 0");
        QStringList seen;
        for (int type = 0; type < 4; ++type) {
            window.Do(u"type %1"_s.arg(type));
            seen.append("focus: " + window.FocusedName());
            seen.append(window.TextsOf({"Label_8", "Label_9"}));
            const auto* options = window.Find<QComboBox>("F26combo_2");
            for (int option = 0; options->isVisible() && option < options->count(); ++option) {
                window.Do(u"option %1"_s.arg(option));
                seen.append(options->itemText(option) + ": " + window.Pick({"close"}));
            }
            window.modals.WillPress(QMessageBox::Ok);
            window.Click("F26info");
            const SeenBox box = window.modals.TakeSeen().value(0);
            seen.append(box.title + ": " + QString(box.text).replace("\r\n", "\\r\\n"));
        }
        CompareApproved("build_types", seen);
        window.Do("user 1");
        QCOMPARE(window.Find<QComboBox>("F26combo_1")->currentIndex(), -1);
    }

    void ChanceDiffersFromRunToRunAndTheCountIsKept()
    {
        Generator window;
        window.Do("user 0;type 0;count 200.5");
        QCOMPARE(window.TextOf("F26text") + window.FocusedName(), QString("F26text"));
        for (const auto& [steps, run] : {std::pair("count 2.5", "go"), {"type 2;option 2", "pick;go"}}) {
            window.Do(steps);
            QSet<QString> rows;
            for (int runs = 0; runs < 2; ++runs) {
                SharedRandomSource().Reseed(5);
                window.Do(run);
                for (int row = 0; row < 2; ++row)
                    rows.insert(window.Grid().Row(row, 2));
            }
            QCOMPARE(rows.size(), 4);
            QCOMPARE(window.Grid().Rows(), *run == 'g' ? 2 : 20);
        }
    }

    void NumberWindowCountsKeepsAndHandsOverItsNumbers()
    {
        Generator window;
        window.Do("user 0;type 2;option 0");
        QCOMPARE(window.Pick({"?", "n_49", "?", "Selall", "?", "random", "?", "clear", "n_8", "n_7", "n_6", "n_5",
                              "n_4", "n_3", "n_2", "n_1", "store"}),
                 QString("Select 8 numbers.|Your have 0 numbers selected.|Your have 1 number selected.|"
                         "Your have 49 numbers selected.|Your have 8 numbers selected. Store"));
        QCOMPARE(window.FocusedName(), QString("F26go"));
        window.Do("go");
        const GridDriver grid = window.Grid();
        QStringList rows;
        for (int row = 0; row < grid.Rows(); ++row)
            rows.append(grid.Row(row, 1));
        QCOMPARE(rows, (QStringList{"1,2,3,4,5,6,7", "2,1,3,4,5,6,8", "3,1,2,4,5,7,8", "4,1,2,3,6,7,8"}));
        // Every Entry cell has its colour, that of the selected first line too.
        QCOMPARE(grid.Selected(), QString("0-0"));
        const QPoint corner = grid.view->visualRect(grid.view->model()->index(0, 1)).topLeft() + QPoint(3, 3);
        QCOMPARE(grid.view->viewport()->grab().toImage().pixelColor(corner), QColor("#5B74D7"));
        window.Do("open;user 1;type 1;option 0");
        QCOMPARE(window.Pick({"?", "n_1", "n_2", "n_3", "n_4", "n_5", "n_6", "?", "close"}),
                 QString("Select 2 numbers.|Your have 8 numbers selected.|Your have 2 numbers selected. Store"));
        QCOMPARE(window.Pick({"?", "clear", "n_9", "n_2", "store"}),
                 QString("Select 2 numbers.|Your have 8 numbers selected."));
        QCOMPARE(window.Pick({"?", "close"}), QString("Select 2 numbers.|Your have 2 numbers selected. Store"));
        // The keys untick 9 and tick 10.
        window.modals.WillDo([&](QDialog& dialog) {
            QTRY_COMPARE(window.FocusedName(), QString("n_1"));
            QStringList stops;
            for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Space,
                                      Qt::Key_Right, Qt::Key_Space, Qt::Key_Tab}) {
                QTest::keyClick(QApplication::focusWidget(), key);
                stops.append(window.FocusedName());
            }
            QCOMPARE(stops.join(u' '), QString("n_1 n_8 n_8 n_9 n_9 n_10 n_10 Selall"));
            QCOMPARE(dialog.findChild<QWidget*>("n_10")->palette().color(QPalette::Window), QColor("#80FFFF"));
            PressIn(dialog, "store");
        });
        window.Click("F26choose");
        window.Do("go");
        const QStringList last = grid.Row(11, 2).split(u',');
        QVERIFY(last.contains("2") && last.contains("10"));
    }

    /// They go to the user who is named when they are stored.
    void EntriesAreStoredWithinTheLimit()
    {
        const QString stored = "The entries have been stored.";
        const QString question = "This users spend limit is to low to allow you to store these entries.\r\n"
                                 "Do you want to raise the spend limit.|";
        Generator window(14);
        // The number goes on from the last row's, not from the largest.
        for (const auto& [number, user] : {std::pair(90, 1), {91, 2}, {7, 1}})
            AddEntry(entries, {number, user, 2, {1, 2, 3, 4, 5, 6}, {}});
        int next = 8;
        for (const auto& [presses, told, days, limit] :
             {std::tuple("", stored, ",0,0,0,0,0,0,0", 14),
              {"", question + "These entries have NOT been stored.", "", 14},
              {"selall clear check1_0 check1_6 store", question + stored, ",-1,0,0,0,0,0,-1", 26}}) {
            const QStringList before = TestFolder::StoredRows("entries");
            window.Do("open;user 1;type 1;option 0");
            window.Pick({"clear", "n_5", "n_17", "store"});
            window.Do("go;user 0");
            const bool refused = told.contains("NOT");
            if (told.startsWith(question))
                window.modals.WillPress(refused ? QMessageBox::No : QMessageBox::Yes);
            QStringList built;
            if (!refused) {
                for (int row = 0; row < 12; ++row)
                    built.append(QString("%1,1,1,").arg(next++) + window.Grid().Row(row, 2) + days);
                window.modals.WillDo([pressed = QString(presses)](QDialog& dialog) {
                    QVERIFY(!dialog.findChild<QWidget*>("store")->isVisible());
                    for (const QString& control : pressed.split(u' ', Qt::SkipEmptyParts))
                        PressIn(dialog, control);
                    dialog.close();
                });
            }
            QCOMPARE(window.Click("F26store", {QMessageBox::Ok}).join(u'|'), told);
            QCOMPARE(TestFolder::StoredRows("users").value(0), QString("1,Ann,%1").arg(limit));
            QCOMPARE(TestFolder::StoredRows("entries").mid(before.size()), built);
            QCOMPARE(window.Seen(), QString(refused ? "type store" : ""));
        }
    }

    void AnotherCopysChangesOfTheUserAreNoticed()
    {
        for (const auto& [change, reason] :
             {std::pair("DELETE FROM users WHERE UserId = 1", "there is no user of this name"),
              {"UPDATE users SET SpendLimit = 8 WHERE UserId = 1", "the user's spend limit no longer allows them"}}) {
            Generator window(9);
            window.Do("user 0;type 3;go");
            window.modals.WillDo([sql = change](QDialog& dialog) {
                RunSql(UserDataPath, {}, sql);
                dialog.close();
            });
            const QString told = window.Click("F26store", {QMessageBox::Ok}).value(0);
            QVERIFY(told.startsWith(QString("The entries could not be stored, because ") + reason));
            QCOMPARE(TestFolder::StoredRows("entries"), QStringList());
            QVERIFY(window.IsShown("F26grid") && window.IsShown("F26store"));
        }
    }
};

TAVENOR_TEST(EntryGeneratorPageTest)
#include "entry_generator_page_test.moc"
