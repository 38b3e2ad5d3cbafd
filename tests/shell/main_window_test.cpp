#include "support/file_bytes.h"
#include "support/test_window.h"

#include "controls/page_frame.h"
#include "records/key_store.h"
#include "shell/menu_table.h"
#include "utilities/start_and_end.h"

#include <QDir>
#include <QProcess>
#include <QWheelEvent>

#include <csignal>

namespace {

const QStringList TwoFiles{"drawdata.tv3", "userdata.tv3"};

QString PagesShown(TestWindow& window)
{
    QStringList shown;
    for (const auto* page : window.Window().findChildren<PageFrame*>())
        if (page->isVisible())
            shown.append(page->objectName());
    return shown.join(' ');
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

/// Whether a process has come so far that it answers a signal itself, as the program does once its files are open.
bool Catches(qint64 process, int signal)
{
    const QByteArray text = BytesOf(QString("/proc/%1/status").arg(process));
    return (text.mid(text.indexOf("SigCgt:") + 8, 16).toULongLong(nullptr, 16) >> (signal - 1) & 1U) != 0;
}

} // namespace

class MainWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// The labels of the introduction pages, by their indices, in the order of the sub-options as which they act.
    void LabelsActAsSuboptionsAndDescriptionsDoNothing()
    {
        TestWindow window;
        AddUser(users, "Ann", 10);
        const QList<int> labels[] = {{0, 1}, {9, 8, 26}, {14, 13, 15, 21}, {19}, {24, 23}};
        const QWidget* mark = window.Find("Optionmark");
        for (int group = 1; group <= MenuGroups; ++group)
            for (int number = 1; number <= labels[group - 1].size(); ++number) {
                window.OpenPage(group, number);
                const QString page = PagesShown(window);
                window.Click(QString("Button%1").arg(group));
                QVERIFY(PagesShown(window) == QString("Frame_%1").arg(group) && !mark->isVisible());
                window.Click(QString("lab_%1").arg(labels[group - 1][number - 1]));
                QVERIFY(PagesShown(window) == page && mark->isVisible());
                QCOMPARE(mark->geometry().center().y(),
                         window.Find(QString("Suboption%1").arg(number))->geometry().center().y());
            }
        for (const auto& [clicked, page] :
             {std::pair("Button4", "Frame_4"), {"lab_16", "Frame_4"}, {"lab_17", "Frame_4"}, {"main_4", "Frame_0"}}) {
            window.Click(clicked);
            QCOMPARE(PagesShown(window), QString(page));
        }
        // Beneath the pages.
        QCOMPARE(window.TextsOf({"LFlabel1", "LFlabel2"}), QString("Loading Data|Please wait"));
    }

    /// The start page, left while the links cover it, comes back whole, and the menu keeps the focus.
    void TheCoveredStartPageComesBack()
    {
        TestWindow window;
        for (const QStringList& way : {QStringList{"Logo"}, QStringList{"Button1", "Logo"}}) {
            window.Find("F0links")->setFocus();
            window.PressFocused(Qt::Key_Return);
            QCOMPARE(PagesShown(window), QString("Frame_0 Frame_25"));
            for (const QString& name : way) {
                window.Find(name)->setFocus();
                window.PressFocused(Qt::Key_Return);
            }
            QCOMPARE(PagesShown(window), QString("Frame_0"));
            QVERIFY(window.Find("F0links")->isEnabled() && !window.IsShown("Suboption1"));
            QCOMPARE(window.FocusedName(), QString("Logo"));
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
                QWheelEvent wheel({5, 5}, field->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                                  Qt::NoModifier, Qt::NoScrollPhase, false);
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

    void ExitAsksFirstAndClosingTellsWhatFailed()
    {
        TestWindow window;
        const QStringList question{"Are you sure you want to exit?"};
        QCOMPARE(window.Click("Exit", {QMessageBox::No}), question);
        QVERIFY(!window.ended);
        QCOMPARE(window.Click("Exit", {QMessageBox::Yes}), question);
        QVERIFY(window.ended && !DrawDb.IsOpen() && !UserDb.IsOpen());
        QVERIFY(QDir().mkdir(window.files.Path("drawdata.tp1")));
        for (const char* end : {"an error.\r\nNothing that you stored is lost.", "the file is not there."}) {
            window.ended = false;
            window.modals.WillPress(QMessageBox::Ok);
            window.Window().show();
            window.Window().close();
            const QString told = window.modals.TakeTexts().value(0);
            QVERIFY2(told.endsWith(end) && window.ended, qPrintable(told));
            QFile::remove(window.files.Path("userdata.tv3"));
        }
    }

    void TheKeyIsWipedAtTheEnd()
    {
        const TestFolder folder(TestFolder::Content::Empty);
        OpenDatabaseFiles();
        const std::string salt = BytesOf(folder.Path("drawdata.tv3")).first(16).toStdString();
        const std::string& key = DerivedKeyText(PasswordOf(DrawConnect), salt);
        const QByteArray kept = QByteArray::fromStdString(key).mid(48);
        QFile memory("/proc/self/mem");
        // The first bytes of what is freed are the allocator's.
        QVERIFY(memory.open(QIODevice::ReadOnly | QIODevice::Unbuffered) &&
                memory.seek(reinterpret_cast<qint64>(key.data()) + 48));
        QCOMPARE(CloseAndCompactFiles(), QString());
        const QByteArray left = memory.read(kept.size());
        QVERIFY(left.size() == kept.size() && left != kept);
    }

    void ASignalEndsTheProgramInOrder()
    {
        const TestFolder folder(TestFolder::Content::Starter);
        for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
            WriteBytes(folder.Path("drawdata.tp1"), "left by a run that was cut short");
            QProcess program;
            program.start(TAVENOR_PROGRAM, {folder.Path(".")});
            QVERIFY(program.waitForStarted());
            QTRY_VERIFY_WITH_TIMEOUT(Catches(program.processId(), signal), 60000);
            QCOMPARE(::kill(static_cast<pid_t>(program.processId()), signal), 0);
            QVERIFY(program.waitForFinished(60000));
            QVERIFY(program.exitStatus() == QProcess::NormalExit && program.exitCode() == 0);
            QCOMPARE(folder.Files(), TwoFiles);
        }
    }

    void TheCommandLineIsAnswered()
    {
        for (const auto& [words, code, said] :
             {std::tuple(QStringList{"--version"}, 0, "Tavenor 3.01\n"),
              {{"--help"}, 0, "Usage: tavenor3 [FOLDER]"},
              {{"--nothing"}, 2, "tavenor3: --nothing is not understood."},
              {{"here", "there"}, 2, "tavenor3: there is not understood."},
              {{"nowhere"}, 1, "tavenor3: The folder nowhere could not be opened."}}) {
            QProcess program;
            program.start(TAVENOR_PROGRAM, words);
            QVERIFY(program.waitForFinished(60000));
            QCOMPARE(program.exitCode(), code);
            QVERIFY((program.readAllStandardOutput() + program.readAllStandardError()).contains(said));
        }
    }

    void FilesThatCannotBeOpenedEndTheProgram()
    {
        const TestFolder folder(TestFolder::Content::Empty);
        QVERIFY(QFile::remove(folder.Path("userdata.tv3")));
        bool ended = false;
        EndProcess = [&ended] { ended = true; };
        ModalWindows modals;
        modals.WillPress(QMessageBox::Ok);
        OpenDatabases();
        const SeenBox seen = modals.TakeSeen().value(0);
        QCOMPARE(seen.text, QString("There is a problem with the database files.\r\n"
                                    "If the problem persists, download with database files\r\n"
                                    "from https://www.tavenor.example and put them in the Tavenor 3 directory\r\n"
                                    "or contact us at support@tavenor.example"));
        QVERIFY(seen.icon == QMessageBox::Critical && seen.title == "Tavenor 3" && ended);
    }
};

TAVENOR_TEST(MainWindowTest)
#include "main_window_test.moc"
