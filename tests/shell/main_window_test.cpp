#include "support/file_bytes.h"
#include "support/test_window.h"

#include "shell/menu_table.h"
#include "shell/page_table.h"
#include "utilities/shut_down.h"
#include "utilities/start_up.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QProcess>
#include <QWheelEvent>

#include <csignal>

namespace {

/// The tops of the five group buttons in the menu's own unit.
QList<int> ButtonTops(const TestWindow& window)
{
    QList<int> tops;
    for (int group = 1; group <= MenuGroups; ++group)
        tops.append(window.Find(QString("Button%1").arg(group))->y() * 10);
    return tops;
}

/// The indices of the visible pages.
QString ShownPage(TestWindow& window)
{
    QStringList shown;
    for (int index = 0; index < PageCount; ++index) {
        const auto* frame = window.Window().findChild<QWidget*>(QString("Frame_%1").arg(index));
        if (frame != nullptr && frame->isVisible())
            shown.append(QString::number(index));
    }
    return shown.join(',');
}

/// Presses keys where the focus is, such as "Alt+A Return =12", of which the last types two digits; a message is
/// answered by its default button. Tells how many keys were pressed, those of a chord one by one, without what was
/// typed.
int PressKeys(TestWindow& window, const QString& keys)
{
    int pressed = 0;
    window.modals.WillAlwaysDo([](QDialog&) {});
    for (const QString& key : keys.split(' ')) {
        if (key.startsWith('=')) {
            QTest::keyClicks(QApplication::focusWidget(), key.mid(1));
            continue;
        }
        const QKeyCombination combination = QKeySequence(key)[0];
        window.PressFocused(combination.key(), combination.keyboardModifiers());
        pressed += static_cast<int>(key.count('+')) + 1;
    }
    return pressed;
}

/// Whether a process has come so far that it answers SIGTERM itself, as the program does once its files are open.
bool CatchesTermination(qint64 process)
{
    const QByteArray text = BytesOf(QString("/proc/%1/status").arg(process));
    return (text.mid(text.indexOf("SigCgt:") + 8, 16).toULongLong(nullptr, 16) >> (SIGTERM - 1) & 1U) != 0;
}

} // namespace

class MainWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// An option is a sub-option's caption, its top, the label of the introduction page that acts as it, and its page.
    void GroupsFoldOutInPlaceAndLeadToTheirPages()
    {
        int group = 0;
        for (const auto& [tops, options] :
             {std::pair(QList<int>{1440, 3600, 4080, 4560, 5040},
                        QStringList{"Add Main Draw,1920,lab_0,6", "Add Thunderball Draw,2290,lab_1,7"}),
              {{1440, 1920, 4080, 4560, 5040},
               {"View Latest Draw,2400,lab_9,8", "View Any Single Draw,2760,lab_8,9",
                "View or Edit All Draws,3120,lab_26,10"}},
              {{1440, 1920, 2400, 4560, 5040},
               {"User Details,2880,lab_14,11", "Add New Entries,3240,lab_13,18", "View or Edit Entries,3600,lab_15,13",
                "Check Your Entries,3960,lab_21,12"}},
              {{1440, 1920, 2400, 2880, 5040}, {"Main Draw,3360,lab_19,26"}},
              {{1440, 1920, 2400, 2880, 3360}, {"Main Draw,3840,lab_24,21", "Thunderball Draw,4200,lab_23,22"}}})
            FoldOut(++group, tops, options);
    }

    void DescriptionsDoNothingAndStartScreenLeadsBack()
    {
        TestWindow window;
        window.Click("Button4");
        QCOMPARE(window.TextOf("lab_16"),
                 QString("Use any of a  number of different build methods to create entries and "
                         "then store them under any user."));
        window.Click("lab_16");
        window.Click("lab_17");
        QCOMPARE(ShownPage(window), QString("4"));
        window.Click("main_4");
        QCOMPARE(ShownPage(window), QString("0"));
    }

    void MenuWorksByKeyboardInReadingOrder()
    {
        TestWindow window;
        window.Press("Button2", Qt::Key_Return);
        window.Find("Logo")->setFocus();
        for (const char* next : {"Button1", "Button2", "Suboption1", "Suboption2", "Suboption3", "Button3"}) {
            window.PressFocused(Qt::Key_Tab);
            QCOMPARE(window.FocusedName(), QString(next));
        }
        // The start page, left while the links cover it, comes back whole, and the menu keeps the focus.
        for (const QStringList& way : {QStringList{"Logo"}, QStringList{"Button1", "Logo"}}) {
            window.Press("Logo", Qt::Key_Return);
            window.Find("F0links")->setFocus();
            window.PressFocused(Qt::Key_Return);
            QCOMPARE(ShownPage(window), QString("0,25"));
            for (const QString& name : way) {
                window.Find(name)->setFocus();
                window.PressFocused(Qt::Key_Return);
            }
            QCOMPARE(ShownPage(window), QString("0"));
            QVERIFY(window.Find("F0links")->isEnabled() && !window.IsShown("Suboption1"));
            QCOMPARE(window.FocusedName(), QString("Logo"));
        }
    }

    void AltAndALetterPressAButtonWhoseCaptionStandsAsItIs()
    {
        TestWindow window;
        for (const auto& [letter, group] : {std::pair(Qt::Key_R, "2"), {Qt::Key_Y, "3"}, {Qt::Key_A, "1"}}) {
            window.Press("Logo", letter, Qt::AltModifier);
            // The toolkit shows the button pressed for a moment.
            QTRY_COMPARE(ShownPage(window), QString(group));
        }
        QCOMPARE(window.TextOf("Button1"), QString("Add Draws"));
        window.Click("Suboption1");
        window.Type("F6MBall1_0", "7");
        window.Press("F6MBall1_0", Qt::Key_E, Qt::AltModifier);
        QTRY_COMPARE(window.TextOf("F6MBall1_0"), QString());
        QCOMPARE(window.TextOf("F6Reset"), QString("Reset"));
    }

    /// On every page the buttons that can be pressed have letters of their own, the default action its first.
    void LettersOfAPageAreItsButtonsOwn()
    {
        TestWindow window(TestFolder::Content::Starter);
        AddUser(users, "Ann", 10);
        for (const char* keys : {"Alt+A Alt+M", "Alt+A Alt+T", "Alt+R Alt+N", "Alt+R Alt+O", "Alt+R Alt+O Return",
                                 "Alt+Y Alt+U", "Alt+Y Alt+U Alt+W", "Alt+Y Alt+N", "Alt+Y Alt+O", "Alt+Y Alt+K",
                                 "Alt+Y Alt+K Alt+C", "Alt+G Alt+M", "Alt+L Alt+M"}) {
            PressKeys(window, keys);
            QString letters;
            for (const auto* button : window.Window().findChildren<QAbstractButton*>()) {
                if (!button->isVisible() || !button->isEnabled() ||
                    (!button->inherits("Button") && button->shortcut().isEmpty()))
                    continue;
                const QString letter = button->shortcut().toString().right(1);
                QVERIFY2(!letter.isEmpty() && !letters.contains(letter),
                         qPrintable(keys + QString(": ") + button->text()));
                QVERIFY2(!button->property("accent").toBool() || button->text().startsWith(letter),
                         qPrintable(button->text()));
                letters += letter;
            }
        }
    }

    void TheFocusGoesWhereTheWorkBeginsAndStaysOnThePage()
    {
        TestWindow window(TestFolder::Content::Starter);
        AddUser(users, "Ann", 10);
        QCOMPARE(window.FocusedName(), QString("Button1"));
        for (const auto& [keys, focused] : {std::pair("Alt+Y", "Suboption1"),
                                            {"Tab Tab Tab Return", "F12user"},
                                            {"Alt+Y Alt+N", "F18ent_1"},
                                            {"Alt+R Return", "Suboption1"},
                                            {"Alt+R Alt+O", "F10Grid1"},
                                            {"Alt+A Space", "F6MBall1_1"},
                                            // A button that vanishes when it is pressed.
                                            {"Alt+Y Alt+K Alt+C Alt+E", "F12check"}}) {
            PressKeys(window, keys);
            QCOMPARE(window.FocusedName(), QString(focused));
        }
    }

    void TheWheelChangesNothingThatHasNoFocus()
    {
        TestWindow window;
        AddUser(users, "Ann", 10);
        for (const auto& [suboption, name, property] :
             {std::tuple(2, "F18type", "currentText"), {4, "F12cal", "date"}}) {
            window.OpenPage(3, suboption);
            if (suboption == 4)
                window.Click("F12dateselect");
            auto* field = window.Find(name);
            for (const bool hasFocus : {false, true}) {
                window.Find(hasFocus ? name : "Logo")->setFocus();
                const QVariant before = field->property(property);
                QWheelEvent wheel(field->rect().center(), field->mapToGlobal(field->rect().center()), {}, {0, -120},
                                  Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
                QApplication::sendEvent(field, &wheel);
                QCOMPARE(field->property(property) != before, hasFocus);
            }
        }
    }

    void TheMainJobTakesFewKeys()
    {
        TestWindow window(TestFolder::Content::Starter);
        const QString line = " Return =15 Return =22 Return =38 Return =41 Return =44 Return";
        int keys = PressKeys(window, "Alt+A Return =3" + line + " =7 Return =A Return =1 Return Return");
        keys += PressKeys(window, "Alt+Y Return =Ann Return =10 Return Return Alt+N");
        for (const char* first : {"=3", "=4", "=5"})
            keys += PressKeys(window, first + line + " Alt+T Alt+S");
        keys += PressKeys(window, "Alt+K Alt+C");
        // Each message is answered by one more.
        const auto messages = static_cast<int>(window.modals.TakeSeen().size());
        QCOMPARE(messages, 4);
        QVERIFY(TestFolder::StoredRows("ukmain").last().endsWith(",3,15,22,38,41,44,7,ARTHUR,1"));
        QCOMPARE(TestFolder::StoredRows("entries").size(), 3);
        QVERIFY(window.Find("F12text")->property("plainText").toString().contains("3>  5 main balls"));
        QVERIFY2(keys + messages <= 60, qPrintable(QString::number(keys + messages)));
    }

    void ExitAsksFirst()
    {
        TestWindow window;
        window.modals.WillPress(QMessageBox::No);
        window.Click("Exit");
        const QList<SeenBox> seen = window.modals.TakeSeen();
        QCOMPARE(seen.value(0).text, QString("Are you sure you want to exit?"));
        QCOMPARE(seen[0].title, QString("Tavenor 3"));
        QCOMPARE(seen[0].buttons, QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(seen[0].defaultButton, QMessageBox::No);
        QVERIFY(!window.ended);
        window.Click("Exit", {QMessageBox::Yes});
        QVERIFY(window.ended);
        QCOMPARE(window.files.Files(), (QStringList{"drawdata.tv3", "userdata.tv3"}));
    }

    void ClosingCompactsWithoutAskingAndLeavesAFileThatItCannot()
    {
        TestWindow window(TestFolder::Content::Starter);
        const QStringList kept = TestFolder::StoredRows("ukmain").mid(0, 100);
        Transaction transaction(DrawDb, "The draws could not be deleted");
        for (ukmain.MoveFirst(); !ukmain.Eof(); ukmain.MoveNext())
            if (ukmain.Number(0) > 100)
                ukmain.Delete();
        transaction.Commit();
        const QString live = window.files.Path("drawdata.tv3");
        const auto size = QFileInfo(live).size();
        // The compaction cannot write over a folder that stands in its way, but over what an interrupted run left.
        QVERIFY(QDir().mkdir(window.files.Path("drawdata.tp1")));
        window.modals.WillPress(QMessageBox::Ok);
        window.Window().close();
        QVERIFY(window.modals.TakeTexts().value(0).startsWith("The file drawdata.tp1 could not be"));
        QVERIFY(window.ended);
        QCOMPARE(QFileInfo(live).size(), size);
        QVERIFY(QDir().rmdir(window.files.Path("drawdata.tp1")));
        QVERIFY(QFile::copy(live, window.files.Path("drawdata.tp2")));
        CloseAndCompact();
        QVERIFY(QFileInfo(live).size() < size / 2);
        QCOMPARE(window.files.Files(), (QStringList{"drawdata.tv3", "userdata.tv3"}));
        QCOMPARE(TestFolder::StoredRows("ukmain"), kept);
    }

    void AnotherCopyKeepsTheFilesAsTheyAre()
    {
        const TestFolder folder(TestFolder::Content::Starter);
        OpenDatabaseFiles();
        for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
            QProcess copy;
            copy.setWorkingDirectory(folder.Path("."));
            copy.start(TAVENOR_PROGRAM, {});
            QVERIFY(copy.waitForStarted());
            QTRY_VERIFY_WITH_TIMEOUT(CatchesTermination(copy.processId()), 60000);
            QCOMPARE(::kill(static_cast<pid_t>(copy.processId()), signal), 0);
            QVERIFY(copy.waitForFinished(60000));
            QCOMPARE(copy.exitStatus(), QProcess::NormalExit);
            QCOMPARE(copy.exitCode(), 0);
        }
        ukmain.MoveLast();
        ukmain.Delete();
        QCOMPARE(CloseAndCompactFiles(), QString());
        QCOMPARE(TestFolder::StoredRows("ukmain").size(), 2064);
        QCOMPARE(folder.Files(), (QStringList{"drawdata.tv3", "userdata.tv3"}));
    }

    void TheCommandLineIsAnswered()
    {
        const TestFolder folder(TestFolder::Content::Empty);
        const QTemporaryDir elsewhere;
        QProcess program;
        program.setWorkingDirectory(elsewhere.path());
        for (const auto& [word, code, said] : {std::tuple("--version", 0, "Tavenor 3.01\n"),
                                               {"--help", 0, "Usage: tavenor3 [FOLDER]"},
                                               {"--nothing", 2, "tavenor3: --nothing is not understood."},
                                               {"nowhere", 1, "tavenor3: The folder nowhere could not be opened."}}) {
            program.start(TAVENOR_PROGRAM, {word});
            QVERIFY(program.waitForFinished(60000));
            QCOMPARE(program.exitCode(), code);
            QVERIFY((program.readAllStandardOutput() + program.readAllStandardError()).contains(said));
        }
        program.start(TAVENOR_PROGRAM, {folder.Path(".")});
        QVERIFY(program.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(CatchesTermination(program.processId()), 60000);
        program.terminate();
        QVERIFY(program.waitForFinished(60000));
        QCOMPARE(program.exitCode(), 0);
    }

    void FilesThatCannotBeOpenedEndTheProgram()
    {
        // A file that is missing, or in whose place the other one stands: with a password, and without one.
        for (const auto& [broken, inItsPlace] : {std::pair("drawdata.tv3", ""),
                                                 {"userdata.tv3", ""},
                                                 {"userdata.tv3", "drawdata.tv3"},
                                                 {"drawdata.tv3", "userdata.tv3"}}) {
            const TestFolder folder(TestFolder::Content::Empty);
            QVERIFY(QFile::remove(folder.Path(broken)));
            QCOMPARE(QFile::copy(folder.Path(inItsPlace), folder.Path(broken)), *inItsPlace != '\0');
            bool ended = false;
            EndProcess = [&ended] { ended = true; };
            ModalWindows modals;
            modals.WillPress(QMessageBox::Ok);
            OpenDatabases();
            const QList<SeenBox> seen = modals.TakeSeen();
            QCOMPARE(seen.size(), 1);
            QCOMPARE(seen[0].text,
                     QString("There is a problem with the database files.\r\n"
                             "If the problem persists, download with database files\r\n"
                             "from https://www.tavenor.example and put them in the Tavenor 3 directory\r\n"
                             "or contact us at support@tavenor.example"));
            QCOMPARE(seen[0].icon, QMessageBox::Critical);
            QCOMPARE(seen[0].title, QString("Tavenor 3"));
            QCOMPARE(seen[0].buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
            QVERIFY(ended);
        }
    }

private:
    static void FoldOut(int group, const QList<int>& tops, const QStringList& options)
    {
        TestWindow window;
        AddUser(users, "Ann", 10);
        const QString button = QString("Button%1").arg(group);
        const QWidget* mark = window.Find("Optionmark");
        QCOMPARE(ButtonTops(window), (QList<int>{1440, 1920, 2400, 2880, 3360}));
        for (int number = 1; number <= MostSuboptions; ++number) {
            const QString name = QString("Suboption%1").arg(number);
            const QWidget* suboption = window.Find(name);
            window.Click(button);
            QCOMPARE(suboption->isVisible(), number <= options.size());
            if (!suboption->isVisible())
                continue;
            const QStringList option = options[number - 1].split(',');
            QCOMPARE(window.TextOf(name), option[0]);
            QCOMPARE(suboption->y() * 10, option[1].toInt());
            for (const QString& clicked : {name, option[2]}) {
                window.Click(button);
                QCOMPARE(ButtonTops(window), tops);
                QCOMPARE(ShownPage(window), QString::number(group));
                QVERIFY(!mark->isVisible());
                window.Click(clicked);
                QCOMPARE(ShownPage(window), option[3]);
                QVERIFY(mark->isVisible());
                QCOMPARE(mark->y() * 10, suboption->y() * 10 + 30);
                QCOMPARE(mark->geometry().center().y(), suboption->geometry().center().y());
            }
        }
    }
};

TAVENOR_TEST(MainWindowTest)
#include "main_window_test.moc"
