#include "support/file_bytes.h"
#include "support/test_window.h"

#include "controls/card.h"
#include "look/theme.h"
#include "records/key_store.h"
#include "utilities/start_and_end.h"

#include <QDir>
#include <QProcess>

#include <csignal>

namespace {

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
    /// Each row: what is clicked in turn, and the page that is shown then.
    void LabelsActAsSuboptionsAndDescriptionsDoNothing()
    {
        TestWindow window;
        AddUser(users, "Ann", 10);
        for (const char* row : {"Button1 lab_0 Frame_6", "Button1 lab_1 Frame_7", "Button2 lab_9 Frame_8",
                                "Button2 lab_8 Frame_9", "Button2 lab_26 Frame_10", "Button3 lab_14 Frame_11",
                                "Button3 lab_13 Frame_18", "Button3 lab_15 Frame_13", "Button3 lab_21 Frame_12",
                                "Button4 lab_19 Frame_26", "Button5 lab_24 Frame_21", "Button5 lab_23 Frame_22",
                                "Button4 lab_17 Frame_4", "main_4 Frame_0", "F0links Frame_25"}) {
            QStringList names = QString(row).split(' ');
            const QString page = names.takeLast();
            for (const QString& name : names)
                window.Click(name);
            QVERIFY2(window.IsShown(page), row);
        }
        // The covered start page comes back whole.
        window.Click("Logo");
        QVERIFY(!window.IsShown("Frame_25") && window.Find("F0links")->isEnabled());
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
        // No button has the letter, and no field takes it.
        PressKeys(window, "Alt+A Return Alt+V");
        QCOMPARE(window.FocusedName() + window.TextOf("F6MBall1_1"), QString("F6MBall1_1"));
        // What is clicked vanishes with its page.
        window.Click("Button2");
        window.Click("lab_8");
        QCOMPARE(window.FocusedName(), QString("Suboption2"));
    }

    void TheMainJobTakesFewKeys()
    {
        TestWindow window(TestFolder::Content::Starter);
        const QString line = " Return =15 Return =22 Return =38 Return =41 Return =44 Return";
        int keys = PressKeys(window, "Alt+A Return =3" + line + " =7 Return =a Return =1 Return Return");
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

    /// Each row: what is clicked in turn, and a button that acts on the cards of the page.
    void OnALargeScreenFormsKeepTheirMeasureAndPicturesGrow()
    {
        TestWindow window(TestFolder::Content::Starter);
        AddUser(users, "Ann", 10);
        AddEntry(entries, {1, 1, 1, {1, 2, 3, 4, 5, 6}, {true}});
        QList<QSize> sizes;
        for (const QSize& screen : {QSize(1024, 720), QSize(1920, 1080)}) {
            window.Window().resize(screen);
            for (const auto& [group, grown] : {std::pair(1, "F6MBall_1"), {5, "F21screen_1"}}) {
                window.OpenPage(group, 1);
                sizes.append(window.Find(grown)->size());
            }
            QCOMPARE(window.Find("F21screen_1")->x(), window.Find("F21title")->x());
        }
        for (const int place : {0, 1})
            QVERIFY(sizes[place + 2].width() > sizes[place].width() &&
                    sizes[place + 2].height() > sizes[place].height());
        for (const char* row : {"Button1 Suboption1 F6Store", "Button1 Suboption2 F7Store",
                                "Button2 Suboption3 F10maineditbutton F16save", "Button3 Suboption1 F11deleteuser",
                                "Button3 Suboption2 F18store", "Button3 Suboption3 F13edit F20store",
                                "Button5 Suboption2 F22screen_5 F24back", "Logo F0links F25back"}) {
            QStringList names = QString(row).split(' ');
            const QString action = names.takeLast();
            for (const QString& name : names)
                window.Click(name);
            const QWidget& button = *window.Find(action);
            QRect cards;
            for (const Card* card : button.parentWidget()->findChildren<Card*>())
                if (card->isVisible())
                    cards |= QRect(card->mapTo(button.parentWidget(), QPoint()), card->size());
            QCOMPARE(button.geometry().topRight(), cards.bottomRight() + QPoint(0, Spacing::Cards + 1));
            QVERIFY2(cards.width() > 0 && cards.width() <= 960 && button.geometry().bottom() < 720, row);
        }
    }

    void ControlsStandAsTheyBelongTogether()
    {
        TestWindow window(TestFolder::Content::Starter);
        AddUser(users, "Ann", 10);
        window.OpenPage(1, 1);
        const auto place = [&window](const char* name) {
            const QWidget& control = *window.Find(name);
            return QRect(control.mapTo(&window.Window(), QPoint()), control.size());
        };
        const int gap = place("F6MBall_6").x() - place("F6MBall_5").x();
        QVERIFY(place("F6MBall_0").x() - place("F6MBall_6").x() > gap);
        QVERIFY(window.Find("F6Mmachine")->width() >= 28 * window.Find("F6Mmachine")->fontMetrics().averageCharWidth());
        QCOMPARE(window.Find("Button1")->font().weight(), int(QFont::DemiBold));
        window.OpenPage(3, 4);
        QVERIFY(qAbs(place("F12typem").center().y() - place("F12user").center().y()) <= 1);
        const QRect report = place("F12text");
        window.Click("F12dateselect");
        QVERIFY(window.IsShown("F12cal") && place("F12text") == report);
    }

    void ExitAsksFirstAndWhatFailsAtTheEndOrTheStartIsTold()
    {
        TestWindow window;
        const QStringList question{"Are you sure you want to exit?"};
        QCOMPARE(window.Click("Exit", {QMessageBox::No}), question);
        QVERIFY(!window.ended);
        QCOMPARE(window.Click("Exit", {QMessageBox::Yes}), question);
        QVERIFY(window.ended && !DrawDb.IsOpen() && !UserDb.IsOpen());
        QVERIFY(QDir().mkdir(window.files.Path("drawdata.tp1")));
        window.ended = false;
        window.modals.WillPress(QMessageBox::Ok);
        window.Window().show();
        window.Window().close();
        QVERIFY(window.modals.TakeTexts().value(0).endsWith("Nothing that you stored is lost.") && window.ended);
        QVERIFY(QFile::remove(window.files.Path("userdata.tv3")));
        window.ended = false;
        window.modals.WillPress(QMessageBox::Ok);
        OpenDatabases();
        QCOMPARE(window.modals.TakeTexts().value(0),
                 QString("There is a problem with the database files.\r\n"
                         "If the problem persists, download with database files\r\n"
                         "from https://www.tavenor.example and put them in the Tavenor 3 directory\r\n"
                         "or contact us at support@tavenor.example"));
        QVERIFY(window.ended);
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

    void TheCommandLineIsAnsweredAndASignalEndsTheProgramInOrder()
    {
        const TestFolder folder(TestFolder::Content::Starter);
        const QString here = folder.Path(".");
        WriteBytes(folder.Path("drawdata.tp1"), "left by a run that was cut short");
        for (const auto& [word, signal, code, said] :
             {std::tuple(QString("--version"), 0, 0, "Tavenor 3.01\n"),
              {"--help", 0, 0, "Usage: tavenor3 [FOLDER]"},
              {"--nothing", 0, 2, "tavenor3: --nothing is not understood."},
              {"nowhere", 0, 1, "tavenor3: The folder nowhere could not be opened."},
              {here, SIGTERM, 0, ""},
              {here, SIGINT, 0, ""},
              {here, SIGHUP, 0, ""}}) {
            QProcess program;
            program.start(TAVENOR_PROGRAM, {word});
            // Before, the new process still answers signals as this one does.
            QVERIFY(program.waitForStarted());
            if (signal != 0) {
                QTRY_VERIFY_WITH_TIMEOUT(Catches(program.processId(), signal), 60000);
                QCOMPARE(::kill(static_cast<pid_t>(program.processId()), signal), 0);
            }
            QVERIFY(program.waitForFinished(60000));
            QCOMPARE(program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1, code);
            QVERIFY((program.readAllStandardOutput() + program.readAllStandardError()).contains(said));
        }
        QCOMPARE(folder.Files().size(), 2);
    }
};

TAVENOR_TEST(MainWindowTest)
#include "main_window_test.moc"
