#include "support/approved.h"
#include "support/full_disk.h"
#include "support/grid_driver.h"

#include "builder/random_source.h"

#include <QFileInfo>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

const QString LimitQuestion = u"This users spend limit is to low to allow you to store these entries.\r\n"
                              u"Do you want to raise the spend limit."_s;

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
        AddUser(users, u"Ann"_s, limit);
        AddUser(users, u"Ben"_s, 500);
        Open();
    }

    void Open() { Window().ChooseMenu(4, 1); }

    void Choose(int list, int item)
    {
        const QString name = u"F26combo_%1"_s.arg(list);
        TestWindow::Choose(name, item);
        QCOMPARE(Find<QComboBox>(name)->currentIndex(), item);
    }

    void ChooseAll(std::initializer_list<int> items)
    {
        for (int list = 0; const int item : items)
            Choose(list++, item);
    }

    /// Opens the number window and does these presses; tells what the window asks for and, for each "?", what it says
    /// then and whether it offers Store.
    QString Pick(const QStringList& presses)
    {
        QStringList told;
        modals.WillDo([&](QDialog& dialog) {
            QCOMPARE(dialog.windowTitle(), QString("Tavenor 3 --- Number Selection"));
            told.append(dialog.findChild<QLabel*>("Label_0")->text());
            for (const QString& press : presses) {
                if (press == "close")
                    dialog.close();
                else if (press != "?")
                    PressIn(dialog, press);
                else
                    told.append(dialog.findChild<QLabel*>("Label_1")->text() +
                                (dialog.findChild<QWidget*>("store")->isVisible() ? " Store" : ""));
            }
            QVERIFY(!dialog.isVisible());
        });
        Click("F26choose");
        return told.join(u'|');
    }

    void Go() { Click("F26go", {QMessageBox::Ok}); }

    void BuildKeyNumbers()
    {
        ChooseAll({0, 1, 0});
        Pick({"clear", "n_5", "n_17", "store"});
        Go();
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
    /// The cells of a grid row, from the Entry column on.
    QString GridRow(int row) { return Grid().Row(row, 1); }

    /// One step in words: "user 0", "type 2", "option 1", "count 5", "leave 5", "late 5", "go", "pick", "back", "open".
    void Do(const QString& step)
    {
        const QString word = step.section(u' ', 0, 0);
        const QString rest = step.section(u' ', 1);
        if (const auto list = QStringList{"user", "type", "option"}.indexOf(word); list >= 0) {
            Choose(static_cast<int>(list), rest.toInt());
        } else if (word == "open") {
            Open();
        } else if (word == "go") {
            Go();
        } else if (word == "pick" || word == "back") {
            Pick({"random", word == "pick" ? "store" : "nostore"});
        } else {
            Type("F26text", rest);
            if (word == "late")
                Click("F26go");
            else
                Press("F26text", word == "count" ? Qt::Key_Return : Qt::Key_Tab);
        }
    }
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
              "user 0:type;type 3:typed none go;go:typed none go grid store;user 0:typed none store;"
              "type 0:typed count none store;type 1:typed option store;type 0:typed count store",
              "user 1:type;type 1:typed option;option 0:typed option choose;back:typed option choose;"
              "pick:typed option choose go;go:typed option choose go grid store;"
              "option 0:typed option choose store;pick:typed option choose go;back:typed option choose;"
              "user 1:typed option;user 0:type;type 2:typed option;option 6:typed option choose;"
              "pick:typed option choose go;go:typed option choose go grid store;"
              "pick:typed option choose go;type 2:typed option",
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
        QStringList seen;
        for (int type = 0; type < 4; ++type) {
            window.ChooseAll({0, type});
            seen.append("focus: " + window.FocusedName());
            seen.append(window.TextsOf({"Label_8", "Label_9"}));
            const auto* options = window.Find<QComboBox>("F26combo_2");
            for (int option = 0; options->isVisible() && option < options->count(); ++option)
                seen.append(options->itemText(option));
            window.modals.WillPress(QMessageBox::Ok);
            window.Click("F26info");
            const SeenBox box = window.modals.TakeSeen().value(0);
            QCOMPARE(box.icon, QMessageBox::Information);
            seen.append(box.title + ": " + QString(box.text).replace("\r\n", "\\r\\n"));
        }
        CompareApproved("build_types", seen);
    }

    void CountIsTakenOrEmptied()
    {
        Generator window;
        window.ChooseAll({0, 0});
        for (const char* refused : {"200.5", "0.9", "abc", ""}) {
            window.Do(QString("count ") + refused);
            QCOMPARE(window.TextOf("F26text") + window.FocusedName(), QString("F26text"));
        }
        for (const auto& [taken, rows] : {std::pair("1", 1), {"200", 200}, {"4.5", 4}, {"1 2 lines", 12}}) {
            window.Do(QString("count ") + taken);
            QCOMPARE(window.TextOf("F26text") + window.FocusedName(), QString(taken) + "F26go");
            window.modals.WillPress(QMessageBox::Ok);
            window.PressFocused(Qt::Key_Return);
            QCOMPARE(window.Grid().Rows(), rows);
            QVERIFY(window.GridRow(rows - 1).startsWith(QString::number(rows) + u','));
        }
    }

    /// Every Entry cell has its colour, that of the selected first line too.
    void EntryCellsHaveTheirColour()
    {
        Generator page;
        page.BuildKeyNumbers();
        auto* grid = page.Find<GridView>("F26grid");
        const QImage shown = grid->viewport()->grab().toImage();
        for (int row = 0; row < 3; ++row)
            QCOMPARE(shown.pixelColor(grid->visualRect(grid->model()->index(row, 1)).topLeft() + QPoint(3, 3)),
                     QColor("#5B74D7"));
    }

    void OnlyRandomLinesDifferFromRunToRun()
    {
        Generator window;
        const auto firstRow = [&window] {
            SharedRandomSource().Reseed(5);
            window.Go();
            return window.GridRow(0);
        };
        window.ChooseAll({0, 3});
        QCOMPARE(firstRow(), firstRow());
        window.Choose(1, 0);
        window.Do("count 1");
        // Two lines by chance are equal once in fourteen million times.
        QVERIFY(firstRow() != firstRow());
    }

    void NumberWindowCountsKeepsAndHandsOverItsNumbers()
    {
        Generator window;
        window.ChooseAll({0, 2, 0});
        QCOMPARE(window.Pick({"?", "n_49", "?", "Selall", "?", "random", "?", "clear", "n_8", "n_7", "n_6", "n_5",
                              "n_4", "n_3", "n_2", "n_1", "store"}),
                 QString("Select 8 numbers.|Your have 0 numbers selected.|Your have 1 number selected.|"
                         "Your have 49 numbers selected.|Your have 8 numbers selected. Store"));
        window.Go();
        QCOMPARE(window.Grid().Rows(), 4);
        QCOMPARE(window.Grid().Selected(), QString("0-0"));
        for (const char* row : {"1,2,3,4,5,6,7", "2,1,3,4,5,6,8", "3,1,2,4,5,7,8", "4,1,2,3,6,7,8"})
            QCOMPARE(window.GridRow(row[0] - '1'), QString(row));
        QVERIFY(window.Grid().view->isColumnHidden(0));
        window.Open();
        window.ChooseAll({1, 1, 0});
        QCOMPARE(window.Pick({"?", "n_1", "n_2", "n_3", "n_4", "n_5", "n_6", "?", "close"}),
                 QString("Select 2 numbers.|Your have 8 numbers selected.|Your have 2 numbers selected. Store"));
        QCOMPARE(window.Pick({"?", "close"}), QString("Select 2 numbers.|Your have 8 numbers selected."));
        QVERIFY(!window.IsShown("F26go"));
        window.Pick({"clear", "n_49", "n_3", "store"});
        QCOMPARE(window.Pick({"?", "close"}), QString("Select 2 numbers.|Your have 2 numbers selected. Store"));
    }

    void NumberBoardIsWorkedByKeys()
    {
        Generator window;
        window.ChooseAll({0, 1, 0});
        window.modals.WillDo([&](QDialog& dialog) {
            const auto press = [](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
            QTRY_COMPARE(window.FocusedName(), QString("n_1"));
            for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Space})
                press(key);
            QCOMPARE(window.FocusedName(), QString("n_9"));
            QCOMPARE(window.Find<QComboBox>("F26combo_1")->currentIndex(), 1);
            QVERIFY(dialog.findChild<QCheckBox*>("n_9")->isChecked());
            press(Qt::Key_Right);
            press(Qt::Key_Space);
            QCOMPARE(QApplication::focusWidget()->palette().color(QPalette::Window), QColor("#80FFFF"));
            QString stops;
            for (int stop = 0; stop < 6; ++stop) {
                press(Qt::Key_Tab);
                stops += window.FocusedName() + ' ';
            }
            QCOMPARE(stops, QString("Selall clear random nostore store n_10 "));
            press(Qt::Key_Return);
        });
        window.Click("F26choose");
        QVERIFY(window.IsShown("F26go"));
        window.Go();
        const QStringList last = window.GridRow(11).split(u',').mid(1);
        QVERIFY(last.contains("9") && last.contains("10"));
    }

    void StoringKeepsToTheLimit()
    {
        for (const auto& [limit, answer, newLimit] :
             {std::tuple(14, QMessageBox::NoButton, 14), {13, QMessageBox::Yes, 14}, {13, QMessageBox::No, 13}}) {
            const bool isStored = answer != QMessageBox::No;
            QStringList texts{isStored ? QString("The entries have been stored.")
                                       : "These entries have NOT been stored."};
            Generator window(limit);
            // The number goes on from the last row's, not from the largest.
            for (const auto& [number, user] : {std::pair(90, 1), {91, 2}, {7, 1}})
                AddEntry(entries, {number, user, 2, {1, 2, 3, 4, 5, 6}, {}});
            window.BuildKeyNumbers();
            QStringList built;
            for (int row = 0; isStored && row < 12; ++row)
                built.append(
                    QString("%1,1,1,%2,-1,0,0,0,0,0,-1").arg(8 + row).arg(window.GridRow(row).section(u',', 1)));
            if (answer != QMessageBox::NoButton) {
                texts.prepend(LimitQuestion);
                window.modals.WillPress(answer);
            }
            if (isStored)
                window.modals.WillDo([](QDialog& dialog) {
                    QCOMPARE(dialog.objectName(), QString("frmday"));
                    for (const char* control : {"check1_0", "check1_6", "store"})
                        dialog.findChild<QAbstractButton*>(control)->click();
                });
            QCOMPARE(window.Click("F26store", {QMessageBox::Ok}), texts);
            QCOMPARE(TestFolder::StoredRows("users").value(0), QString("1,Ann,%1").arg(newLimit));
            QCOMPARE(TestFolder::StoredRows("entries").mid(3), built);
            QCOMPARE(window.Seen(), isStored ? QString() : QString("type info made ask option choose go grid store"));
            QCOMPARE(window.Find<QComboBox>("F26combo_0")->currentIndex(), isStored ? -1 : 0);
        }
    }

    void EntriesGoToTheUserNamedNowOnTheDaysLastStored()
    {
        Generator window;
        QStringList stored;
        for (const bool storesDays : {false, true, false}) {
            window.Open();
            window.BuildKeyNumbers();
            window.Choose(0, 1);
            window.modals.WillDo([storesDays](QDialog& dialog) {
                PressIn(dialog, "selall");
                if (storesDays)
                    PressIn(dialog, "store");
                dialog.close();
            });
            window.Click("F26store", {QMessageBox::Ok});
            const QStringList fields = TestFolder::StoredRows("entries").last().split(u',');
            stored.append((fields.mid(0, 3) + fields.mid(9)).join(u','));
        }
        QCOMPARE(stored,
                 (QStringList{"12,2,1,0,0,0,0,0,0,0", "24,2,1,-1,-1,-1,-1,-1,-1,-1", "36,2,1,-1,-1,-1,-1,-1,-1,-1"}));
    }

    void WhatCannotBeStoredIsNotStoredInPart()
    {
        for (const bool diskFull : {false, true}) {
            Generator window(5);
            for (const char* step : {"user 0", "type 0", "count 200", "go"})
                window.Do(step);
            std::optional<FullDisk> full;
            window.modals.WillPress(QMessageBox::Yes);
            window.modals.WillDo([&](QDialog& dialog) {
                if (diskFull) {
                    full.emplace(static_cast<rlim_t>(QFileInfo(window.files.Path("userdata.tv3")).size()));
                } else {
                    FindUserByName(users, "Ann");
                    users.Delete();
                }
                dialog.close();
            });
            const QStringList told = window.Click("F26store", {QMessageBox::Ok});
            full.reset();
            QVERIFY(told.value(1).startsWith("The entries could not be stored, because "));
            QCOMPARE(TestFolder::StoredRows("entries"), QStringList());
            QCOMPARE(TestFolder::StoredRows("users").first(), QString(diskFull ? "1,Ann,5" : "2,Ben,500"));
            QVERIFY(window.IsShown("F26grid") && window.IsShown("F26store"));
        }
    }
};

TAVENOR_TEST(EntryGeneratorPageTest)
#include "entry_generator_page_test.moc"
