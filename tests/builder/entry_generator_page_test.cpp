#include "support/grid_driver.h"
#include "support/test_window.h"

#include "builder/built_entries.h"
#include "builder/entry_builders.h"
#include "platform/random_source.h"
#include "users/user_records.h"

#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QListView>

#include <algorithm>
#include <csignal>
#include <utility>

#include <sys/resource.h>

namespace {

const QString LimitQuestion = QStringLiteral("This users spend limit is to low to allow you to store these entries.\r\n"
                                             "Do you want to raise the spend limit.");
const QString Stored = QStringLiteral("The entries have been stored.");

/// The controls that come and go, by the words that the tests use for them.
const std::vector<std::pair<QString, QString>> Changing{
    {"type", "F26combo_1"},   {"info", "F26info"},  {"made", "Label_8"},     {"ask", "Label_9"},
    {"option", "F26combo_2"}, {"count", "F26text"}, {"choose", "F26choose"}, {"none", "Label_12"},
    {"go", "F26go"},          {"grid", "F26grid"},  {"store", "F26store"}};

/// The page in the real window, with two users, "Ann" and "Ben".
class Generator : public TestWindow
{
public:
    explicit Generator(double limit = 500)
    {
        AddUser(users, QStringLiteral("Ann"), limit);
        AddUser(users, QStringLiteral("Ben"), 500);
        Open();
    }

    void Open()
    {
        Click("Button4");
        Click("Suboption1");
    }

    /// Chooses an item of a list as a player does, also when it is chosen already.
    void Choose(int list, int item)
    {
        auto* combo = Find<QComboBox>(QStringLiteral("F26combo_%1").arg(list));
        QTest::mouseClick(combo, Qt::LeftButton);
        QVERIFY(combo->view()->isVisible());
        QTest::keyClick(combo->view(), Qt::Key_Home);
        for (int i = 0; i < item; ++i)
            QTest::keyClick(combo->view(), Qt::Key_Down);
        QTest::keyClick(combo->view(), Qt::Key_Return);
        QCOMPARE(combo->currentIndex(), item);
        Settle();
    }

    void ChooseAll(int user, int type, int option)
    {
        Choose(0, user);
        Choose(1, type);
        Choose(2, option);
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
                if (press == "Escape")
                    QTest::keyClick(&dialog, Qt::Key_Escape);
                else if (press == "close")
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

    void Go()
    {
        modals.WillPress(QMessageBox::Ok);
        Click("F26go");
    }

    void BuildKeyNumbers()
    {
        ChooseAll(0, 1, 0);
        Pick({"clear", "n_5", "n_17", "store"});
        Go();
        modals.TakeSeen();
    }

    QString Seen() const
    {
        QStringList seen;
        for (const auto& [word, name] : Changing)
            if (IsShown(name))
                seen.append(word);
        return seen.join(u' ');
    }

    /// The cells of a grid row, from the Entry column on.
    QString GridRow(int row) { return GridDriver(*this, "F26grid").Row(row, 1); }

    /// One step in words: "user 0", "type 2", "option 1", "count 5", "leave 5", "late 5", "go", "pick", "back", "open".
    void Do(const QString& step)
    {
        const QString word = step.section(u' ', 0, 0);
        const QString rest = step.section(u' ', 1);
        if (const auto list = QStringList{"user", "type", "option"}.indexOf(word); list >= 0) {
            Choose(static_cast<int>(list), rest.toInt());
        } else if (word == "count" || word == "leave") {
            Type("F26text", rest);
            Press("F26text", word == "count" ? Qt::Key_Return : Qt::Key_Tab);
        } else if (word == "late") {
            Type("F26text", rest);
            Click("F26go");
        } else if (word == "go") {
            Go();
        } else if (word == "pick" || word == "back") {
            Pick({"random", word == "pick" ? "store" : "nostore"});
        } else {
            Open();
        }
    }
};

} // namespace

class EntryGeneratorPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void WithoutUsersTheUserPageOpens()
    {
        TestWindow window;
        window.modals.WillPress(QMessageBox::Ok);
        window.Click("Button4");
        window.Click("Suboption1");
        QCOMPARE(window.modals.TakeTexts(),
                 QStringList{"You cannot store entries until you have created a user profile."});
        QVERIFY(window.IsShown("Frame_11") && !window.IsShown("Frame_26"));
    }

    void EachStepShowsItsControls_data()
    {
        // A step and, behind the colon, what is seen after it; "typed" is what every build type shows.
        QTest::addColumn<QString>("steps");
        QTest::newRow("random") << "open:;user 0:type;type 0:typed count;count 0:typed count;"
                                   "leave 5:typed count none go;go:typed count none go grid store;"
                                   "count 6:typed count none go grid store;count x:typed count grid store;"
                                   "count 6:typed count none go grid store;user 0:typed count none store;"
                                   "count 7:typed count none go store;late 500:typed count store;"
                                   "leave 7:typed count none go store;type 0:typed count none store;"
                                   "user 1:type store;open:";
        QTest::newRow("full selection") << "user 0:type;type 3:typed none go;go:typed none go grid store;"
                                           "user 0:typed none store;type 0:typed count none store;"
                                           "type 1:typed option store;type 0:typed count store";
        QTest::newRow("key numbers") << "user 1:type;type 1:typed option;option 0:typed option choose;"
                                        "back:typed option choose;pick:typed option choose go;"
                                        "go:typed option choose go grid store;option 0:typed option choose store;"
                                        "pick:typed option choose go;back:typed option choose;user 1:typed option;"
                                        "user 0:type";
        QTest::newRow("wheeled pairs") << "user 0:type;type 2:typed option;option 6:typed option choose;"
                                          "pick:typed option choose go;go:typed option choose go grid store;"
                                          "pick:typed option choose go;type 2:typed option";
    }

    void EachStepShowsItsControls()
    {
        QFETCH(QString, steps);
        Generator window;
        for (const QString& line : steps.replace("typed", "type info made ask").split(u';')) {
            window.Do(line.section(u':', 0, 0));
            QVERIFY2(window.Seen() == line.section(u':', 1), qPrintable(line + ", but " + window.Seen()));
        }
        QVERIFY(window.modals.AllCame());
    }

    void TabGoesInReadingOrder()
    {
        Generator window;
        QCOMPARE(window.FocusedName(), QString("F26combo_0"));
        const auto stops = [&window](int count) {
            window.Find("F26combo_0")->setFocus();
            QStringList names;
            for (int stop = 0; stop < count; ++stop) {
                window.PressFocused(Qt::Key_Tab);
                names.append(window.FocusedName());
            }
            return names.join(u' ');
        };
        window.BuildKeyNumbers();
        QCOMPARE(stops(7), QString("F26combo_1 F26info F26combo_2 F26choose F26go F26grid F26store"));
        QCOMPARE(GridDriver(window, "F26grid").Selected(), QString("0-0"));
        window.Choose(1, 0);
        QCOMPARE(stops(4), QString("F26combo_1 F26info F26text F26store"));
    }

    void BuildTypeIsExplained_data()
    {
        // Name, made, asked, focus, options; then the description.
        QTest::addColumn<QString>("words");
        QTest::addColumn<QString>("description");
        QTest::newRow("0") << "Random|1 to 200 entries|How many entries?|F26text"
                           << "With this build type, the numbers in your\r\n"
                              "entries are chosen purely at random, just like\r\n"
                              "a lucky dip ticket, so a win is NOT guaranteed.";
        QTest::newRow("1") << "Key Numbers|12 to 23 entries|How many key numbers?|F26combo_2|"
                              "2 Key Numbers (12 entries)|3 Key Numbers (16 entries)|4 Key Numbers (23 entries)"
                           << "With this build type, your chosen key numbers are on\r\n"
                              "every entry and every other number is covered across the entries,\r\n"
                              "so if two of your key numbers are drawn, you are\r\n"
                              "guaranteed to win at least 4 x 3match (£40).\r\n"
                              "If you match 3 of your key numbers, EVERY line wins!!";
        QTest::newRow("2") << "Wheeled Pairs|4 to 120 entries|Which wheel option?|F26combo_2|"
                              "8 Number Wheel (4 entries)|10 Number Wheel (10 entries)|12 Number Wheel (20 entries)|"
                              "14 Number Wheel (35 entries)|16 Number Wheel (56 entries)|18 Number Wheel (84 entries)|"
                              "20 Number Wheel (120 entries)"
                           << "With this build type, your chosen numbers are put into pairs,\r\n"
                              "and every pair is matched with every other pair,\r\n"
                              "so if three of your numbers are drawn,\r\n"
                              "you are guaranteed to win at least 1 x 3match (£10).";
        QTest::newRow("3") << "Full Selection|9 entries|No options available|F26go"
                           << "With this build type, you are guaranteed to\r\n"
                              "have every ball drawn, but they may be on\r\n"
                              "different entries, so a win is NOT guaranteed.";
    }

    void BuildTypeIsExplained()
    {
        Generator window;
        window.Choose(0, 0);
        QCOMPARE(window.FocusedName(), QString("F26combo_1"));
        window.Choose(1, QByteArray(QTest::currentDataTag()).toInt());
        const QString name = window.Find<QComboBox>("F26combo_1")->currentText();
        QStringList words{name, window.TextOf("Label_8"), window.TextOf("Label_9"), window.FocusedName()};
        const auto* options = window.Find<QComboBox>("F26combo_2");
        for (int i = 0; i < options->count(); ++i)
            words.append(options->itemText(i));
        QTEST(words.join(u'|'), "words");
        QCOMPARE(options->currentIndex(), -1);
        window.modals.WillPress(QMessageBox::Ok);
        window.Click("F26info");
        const SeenBox box = window.modals.TakeSeen().value(0);
        QCOMPARE(box.title, name);
        QCOMPARE(box.icon, QMessageBox::Information);
        QTEST(box.text, "description");
    }

    void CountIsTakenOrEmptied_data()
    {
        QTest::addColumn<int>("rows");
        for (const char* refused : {"0", "201", "200.5", "abc", "", "0.9", "-1"})
            QTest::newRow(refused) << 0;
        QTest::newRow("1") << 1;
        QTest::newRow("200") << 200;
        QTest::newRow("4.5") << 4;
        QTest::newRow("1 2 lines") << 12;
    }

    void CountIsTakenOrEmptied()
    {
        QFETCH(int, rows);
        Generator window;
        window.Choose(0, 0);
        window.Choose(1, 0);
        const QString typed = QString::fromLatin1(QTest::currentDataTag());
        window.Do("count " + typed);
        if (rows == 0) {
            QCOMPARE(window.TextOf("F26text"), QString());
            QCOMPARE(window.FocusedName(), QString("F26text"));
            return;
        }
        QCOMPARE(window.TextOf("F26text"), typed);
        QCOMPARE(window.FocusedName(), QString("F26go"));
        window.modals.WillPress(QMessageBox::Ok);
        window.PressFocused(Qt::Key_Return);
        QCOMPARE(GridDriver(window, "F26grid").Rows(), rows);
        QVERIFY(window.GridRow(rows - 1).startsWith(QString::number(rows) + u','));
    }

    void WheelFillsTheGrid()
    {
        Generator window;
        window.ChooseAll(0, 2, 0);
        window.Pick({"n_1", "n_2", "n_3", "n_4", "n_5", "n_6", "n_7", "n_8", "store"});
        window.Go();
        QCOMPARE(GridDriver(window, "F26grid").Rows(), 4);
        for (const char* row : {"1,2,3,4,5,6,7", "2,1,3,4,5,6,8", "3,1,2,4,5,7,8", "4,1,2,3,6,7,8"})
            QCOMPARE(window.GridRow(row[0] - '1'), QString(row));
        const auto* grid = window.Find<GridView>("F26grid");
        QVERIFY(grid->isColumnHidden(0) && !grid->isColumnHidden(1));
        QStringList headings;
        for (int column = 1; column < 8; ++column)
            headings.append(grid->model()->headerData(column, Qt::Horizontal).toString());
        QCOMPARE(headings.join(u','), QString("Entry,Ball 1,Ball 2,Ball 3,Ball 4,Ball 5,Ball 6"));
        QCOMPARE(grid->model()->index(3, 1).data(Qt::BackgroundRole).value<QColor>(), QColor("#5B74D7"));
    }

    void OnlyRandomLinesDifferFromRunToRun()
    {
        Generator window;
        window.Choose(0, 0);
        window.Choose(1, 3);
        SharedRandomSource().Reseed(5);
        window.Go();
        RandomSource same(5);
        QStringList full{"1"};
        const Line line = BuildFullSelectionEntries(same).front();
        for (const int number : line)
            full.append(QString::number(number));
        QCOMPARE(window.GridRow(0), full.join(u','));
        window.Choose(1, 0);
        window.Do("count 50");
        QString builds[2];
        for (QString& build : builds) {
            SharedRandomSource().Reseed(5);
            window.Go();
            for (int row = 0; row < 50; ++row)
                build += window.GridRow(row);
        }
        QVERIFY(builds[0] != builds[1]);
    }

    void NumberWindowCountsAndKeepsItsNumbers()
    {
        Generator window;
        window.ChooseAll(0, 2, 0);
        QCOMPARE(window.Pick({"?", "n_49", "?", "Selall", "?", "random", "?", "clear", "n_8", "n_7", "n_6", "n_5",
                              "n_4", "n_3", "n_2", "n_1", "store"}),
                 QString("Select 8 numbers.|Your have 0 numbers selected.|Your have 1 number selected.|"
                         "Your have 49 numbers selected.|Your have 8 numbers selected. Store"));
        window.Open();
        window.ChooseAll(1, 1, 0);
        QCOMPARE(window.Pick({"?", "n_1", "n_2", "n_3", "n_4", "n_5", "n_6", "?", "Escape"}),
                 QString("Select 2 numbers.|Your have 8 numbers selected.|Your have 2 numbers selected. Store"));
        QCOMPARE(window.Pick({"?", "close"}), QString("Select 2 numbers.|Your have 8 numbers selected."));
        QVERIFY(!window.IsShown("F26go"));
        window.Pick({"clear", "n_49", "n_3", "store"});
        QCOMPARE(window.Pick({"?", "close"}), QString("Select 2 numbers.|Your have 2 numbers selected. Store"));
        QVERIFY(window.modals.AllCame());
    }

    void NumberBoardIsWorkedByKeys()
    {
        Generator window;
        window.ChooseAll(0, 1, 0);
        window.modals.WillDo([&](QDialog& dialog) {
            const auto press = [](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
            QTRY_COMPARE(window.FocusedName(), QString("n_1"));
            for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Space})
                press(key);
            QCOMPARE(window.FocusedName(), QString("n_9"));
            QCOMPARE(window.Find<QComboBox>("F26combo_1")->currentIndex(), 1);
            auto* nine = dialog.findChild<QCheckBox*>("n_9");
            QVERIFY(nine->isChecked());
            QCOMPARE(nine->palette().color(QPalette::Window), QColor("#FFFFFF"));
            press(Qt::Key_Right);
            press(Qt::Key_Space);
            QCOMPARE(QApplication::focusWidget()->palette().color(QPalette::Window), QColor("#80FFFF"));
            QStringList stops;
            for (int i = 0; i < 6; ++i) {
                press(Qt::Key_Tab);
                stops.append(window.FocusedName());
            }
            QCOMPARE(stops.join(u' '), QString("Selall clear random nostore store n_10"));
            press(Qt::Key_Return);
        });
        window.Click("F26choose");
        QVERIFY(window.IsShown("F26go"));
        window.Go();
        const QStringList last = window.GridRow(11).split(u',').mid(1);
        QVERIFY(last.contains("9") && last.contains("10"));
        QVERIFY(window.modals.AllCame());
    }

    void StoringKeepsToTheLimit_data()
    {
        QTest::addColumn<int>("limit");
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QString>("user");
        QTest::newRow("met exactly") << 14 << QStringList{Stored} << "1,Ann,14";
        QTest::newRow("raised") << 13 << QStringList{LimitQuestion, Stored} << "1,Ann,14";
        QTest::newRow("not raised") << 13 << QStringList{LimitQuestion, "These entries have NOT been stored."}
                                    << "1,Ann,13";
    }

    void StoringKeepsToTheLimit()
    {
        QFETCH(int, limit);
        QFETCH(QStringList, texts);
        const bool isStored = texts.last() == Stored;
        Generator window(limit);
        // The number goes on from the last row's, not from the largest.
        for (const auto& [number, user] : {std::pair(90, 1), std::pair(91, 2), std::pair(7, 1)})
            AddEntry(entries, {number, user, 2, {1, 2, 3, 4, 5, 6}, {}});
        window.BuildKeyNumbers();
        QStringList built;
        for (int row = 0; row < 12; ++row)
            built.append(
                QStringLiteral("%1,1,1,%2,-1,0,0,0,0,0,-1").arg(8 + row).arg(window.GridRow(row).section(u',', 1)));
        if (texts.size() > 1)
            window.modals.WillPress(isStored ? QMessageBox::Yes : QMessageBox::No);
        if (isStored)
            window.modals.WillDo([](QDialog& dialog) {
                QCOMPARE(dialog.objectName(), QString("frmday"));
                dialog.findChild<QCheckBox*>("check1_0")->click();
                dialog.findChild<QCheckBox*>("check1_6")->click();
                PressIn(dialog, "store");
            });
        window.modals.WillPress(QMessageBox::Ok);
        window.Click("F26store");
        QCOMPARE(window.modals.TakeTexts(), texts);
        QTEST(TestFolder::StoredRows("users").value(0), "user");
        QCOMPARE(TestFolder::StoredRows("entries").mid(3), isStored ? built : QStringList());
        QCOMPARE(window.Seen(), isStored ? QString() : QString("type info made ask option choose go grid store"));
        QCOMPARE(window.Find<QComboBox>("F26combo_0")->currentIndex(), isStored ? -1 : 0);
        QVERIFY(window.modals.AllCame());
    }

    void EntriesGoToTheUserNamedNowOnTheDaysLastStored()
    {
        Generator window;
        QStringList stored;
        for (const char* leave : {"", "store", ""}) {
            window.Open();
            window.BuildKeyNumbers();
            window.Choose(0, 1);
            window.modals.WillDo([leave](QDialog& dialog) {
                PressIn(dialog, "selall");
                if (*leave == '\0')
                    dialog.close();
                else
                    PressIn(dialog, leave);
            });
            window.modals.WillPress(QMessageBox::Ok);
            window.Click("F26store");
            const QStringList fields = TestFolder::StoredRows("entries").last().split(u',');
            stored.append((fields.mid(0, 3) + fields.mid(9)).join(u','));
        }
        QCOMPARE(stored,
                 (QStringList{"12,2,1,0,0,0,0,0,0,0", "24,2,1,-1,-1,-1,-1,-1,-1,-1", "36,2,1,-1,-1,-1,-1,-1,-1,-1"}));
    }

    void WhatCannotBeStoredIsNotStoredInPart_data()
    {
        QTest::addColumn<QString>("users");
        for (const char* fault : {"user gone before", "user gone meanwhile"})
            QTest::newRow(fault) << "2,Ben,500";
        QTest::newRow("disk full") << "1,Ann,5";
    }

    void WhatCannotBeStoredIsNotStoredInPart()
    {
        const QByteArray fault = QTest::currentDataTag();
        Generator window(5);
        for (const char* step : {"user 0", "type 0", "count 200", "go"})
            window.Do(step);
        window.modals.TakeSeen();
        const auto removeUser = [] {
            FindUserByName(users, "Ann");
            users.Delete();
        };
        struct rlimit former = {};
        getrlimit(RLIMIT_FSIZE, &former);
        const auto restore = qScopeGuard([&] { setrlimit(RLIMIT_FSIZE, &former); });
        if (fault == "user gone before") {
            removeUser();
        } else {
            window.modals.WillPress(QMessageBox::Yes);
            window.modals.WillDo([&](QDialog& dialog) {
                if (fault == "user gone meanwhile")
                    removeUser();
                std::signal(SIGXFSZ, SIG_IGN);
                const struct rlimit small = {static_cast<rlim_t>(QFileInfo(window.files.Path("userdata.tv3")).size()),
                                             former.rlim_max};
                if (fault == "disk full")
                    setrlimit(RLIMIT_FSIZE, &small);
                dialog.close();
            });
        }
        window.modals.WillPress(QMessageBox::Ok);
        window.Click("F26store");
        setrlimit(RLIMIT_FSIZE, &former);
        const QString told = window.modals.TakeTexts().last();
        QVERIFY2(told.startsWith("The entries could not be stored, because "), qPrintable(told));
        QCOMPARE(TestFolder::StoredRows("entries"), QStringList());
        QTEST(TestFolder::StoredRows("users").first(), "users");
        QVERIFY(window.IsShown("F26grid") && window.IsShown("F26store"));
        QVERIFY(window.modals.AllCame());
    }

    void ManyLinesAreStoredAsFastAsAFewSingleOnes()
    {
        Generator window(1e9);
        const auto medianTime = [](size_t lines) {
            std::array<qint64, 9> times{};
            for (qint64& time : times) {
                QElapsedTimer timer;
                timer.start();
                StoreEntriesOfUser("Ann", std::vector<EntryRow>(lines), {}, RaiseLimit::No);
                time = timer.nsecsElapsed();
            }
            std::sort(times.begin(), times.end());
            return static_cast<double>(times[4]);
        };
        const double single = medianTime(1);
        const double many = medianTime(200);
        QVERIFY2(many < 10 * single, qPrintable(QString::number(many / single)));
    }
};

TAVENOR_TEST_MAIN(EntryGeneratorPageTest)
#include "entry_generator_page_test.moc"
