#include "support/file_bytes.h"
#include "support/forked.h"
#include "support/test_window.h"

#include "shell/menu_table.h"
#include "shell/page_table.h"
#include "utilities/start_and_end.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QProcess>
#include <QWheelEvent>

#include <csignal>

namespace {

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

/// Whether a process has come so far that it answers a signal itself, as the program does once its files are open.
bool Catches(qint64 process, int signal)
{
    const QByteArray text = BytesOf(QString("/proc/%1/status").arg(process));
    return (text.mid(text.indexOf("SigCgt:") + 8, 16).toULongLong(nullptr, 16) >> (signal - 1) & 1U) != 0;
}

/// How often the key of a file lies in the memory of a process that is like this one. It is kept as a text, in which
/// the key's 64 digits stand between "x'" and those of the file's salt.
QString KeysInMemory(const QByteArray& salt)
{
    return RunForked([&salt](const ForkedProcess::Say& say) {
               QFile memory("/proc/self/mem");
               if (!memory.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
                   return;
               int found = 0;
               for (const QByteArray& line : BytesOf("/proc/self/maps").split('\n')) {
                   if (!line.contains(" rw-p "))
                       continue;
                   const QList<QByteArray> ends = line.split(' ').first().split('-');
                   const qint64 start = ends[0].toLongLong(nullptr, 16);
                   const qint64 size = ends[1].toLongLong(nullptr, 16) - start;
                   // What a sanitizer keeps beside the process's own memory takes terabytes.
                   constexpr qint64 most = 1LL << 30;
                   if (size > most)
                       continue;
                   memory.seek(start);
                   const QByteArray bytes = memory.read(size);
                   for (qsizetype at = bytes.indexOf(salt); at >= 0; at = bytes.indexOf(salt, at + 1))
                       found += bytes.mid(at - 66, 2) == "x'" ? 1 : 0;
               }
               say(QString::number(found));
           })
        .lines.value(0);
}

} // namespace

class MainWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// The labels of the introduction pages, by their indices, in the order of the sub-options as which they act.
    void LabelsOfAGroupActAsItsSuboptions()
    {
        TestWindow window;
        AddUser(users, "Ann", 10);
        const QList<int> labels[] = {{0, 1}, {9, 8, 26}, {14, 13, 15, 21}, {19}, {24, 23}};
        const QWidget* mark = window.Find("Optionmark");
        for (int group = 1; group <= MenuGroups; ++group)
            for (int number = 1; number <= labels[group - 1].size(); ++number) {
                const QWidget* suboption = window.Find(QString("Suboption%1").arg(number));
                window.OpenPage(group, number);
                const QString page = ShownPage(window);
                window.Click(QString("Button%1").arg(group));
                QCOMPARE(ShownPage(window), QString::number(group));
                QVERIFY(!mark->isVisible());
                window.Click(QString("lab_%1").arg(labels[group - 1][number - 1]));
                QCOMPARE(ShownPage(window), page);
                QVERIFY(mark->isVisible());
                QCOMPARE(mark->geometry().center().y(), suboption->geometry().center().y());
            }
    }

    void DescriptionsDoNothingAndStartScreenLeadsBack()
    {
        TestWindow window;
        for (const auto& [clicked, page] :
             {std::pair("Button4", "4"), {"lab_16", "4"}, {"lab_17", "4"}, {"main_4", "0"}}) {
            window.Click(clicked);
            QCOMPARE(ShownPage(window), QString(page));
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
        const QStringList question{"Are you sure you want to exit?"};
        QCOMPARE(window.Click("Exit", {QMessageBox::No}), question);
        QVERIFY(!window.ended);
        QCOMPARE(window.Click("Exit", {QMessageBox::Yes}), question);
        QVERIFY(window.ended);
        QCOMPARE(window.files.Files(), (QStringList{"drawdata.tv3", "userdata.tv3"}));
    }

    void ClosingCompactsWithoutAsking()
    {
        TestWindow window(TestFolder::Content::Starter);
        const QStringList kept = TestFolder::StoredRows("ukmain").mid(0, 100);
        Transaction transaction(DrawDb, "The draws could not be deleted");
        for (ukmain.MoveFirst(); !ukmain.Eof(); ukmain.MoveNext())
            if (ukmain.Number(0) > 100)
                ukmain.Delete();
        transaction.Commit();
        const qint64 size = QFileInfo(window.files.Path("drawdata.tv3")).size();
        window.Window().close();
        QVERIFY(window.ended);
        QVERIFY(QFileInfo(window.files.Path("drawdata.tv3")).size() < size / 2);
        QCOMPARE(window.files.Files(), (QStringList{"drawdata.tv3", "userdata.tv3"}));
        QCOMPARE(TestFolder::StoredRows("ukmain"), kept);
    }

    void TheKeyIsWipedAtTheEnd()
    {
        const TestFolder folder(TestFolder::Content::Empty);
        const QByteArray salt = BytesOf(folder.Path("drawdata.tv3")).first(16).toHex();
        OpenDatabaseFiles();
        QVERIFY(KeysInMemory(salt).toInt() > 0);
        QCOMPARE(CloseAndCompactFiles(), QString());
        QCOMPARE(KeysInMemory(salt), QString("0"));
    }

    void ASignalEndsTheProgramInOrderAndAnotherCopyKeepsItsFiles()
    {
        const TestFolder folder(TestFolder::Content::Starter);
        OpenDatabaseFiles();
        for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
            QProcess copy;
            copy.start(TAVENOR_PROGRAM, {folder.Path(".")});
            QVERIFY(copy.waitForStarted());
            QTRY_VERIFY_WITH_TIMEOUT(Catches(copy.processId(), signal), 60000);
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
        for (const auto& [word, code, said] : {std::tuple("--version", 0, "Tavenor 3.01\n"),
                                               {"--help", 0, "Usage: tavenor3 [FOLDER]"},
                                               {"--nothing", 2, "tavenor3: --nothing is not understood."},
                                               {"nowhere", 1, "tavenor3: The folder nowhere could not be opened."}}) {
            QProcess program;
            program.start(TAVENOR_PROGRAM, {word});
            QVERIFY(program.waitForFinished(60000));
            QCOMPARE(program.exitCode(), code);
            QVERIFY((program.readAllStandardOutput() + program.readAllStandardError()).contains(said));
        }
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
            QCOMPARE(seen.value(0).text,
                     QString("There is a problem with the database files.\r\n"
                             "If the problem persists, download with database files\r\n"
                             "from https://www.tavenor.example and put them in the Tavenor 3 directory\r\n"
                             "or contact us at support@tavenor.example"));
            QCOMPARE(seen[0].icon, QMessageBox::Critical);
            QCOMPARE(seen[0].title, QString("Tavenor 3"));
            QVERIFY(ended);
        }
    }
};

TAVENOR_TEST(MainWindowTest)
#include "main_window_test.moc"
