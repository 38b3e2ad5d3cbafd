#include "support/test_window.h"

#include "shell/menu_table.h"
#include "shell/page_table.h"
#include "shell/shut_down.h"
#include "shell/start_up.h"
#include "users/user_records.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <csignal>

namespace {

/// The tops of the five group buttons in the menu's own unit.
QList<int> ButtonTops(const TestWindow& window)
{
    constexpr int twipsPerPixel = 10;
    QList<int> tops;
    for (int group = 1; group <= MenuGroups; ++group)
        tops.append(window.Find(QString("Button%1").arg(group))->y() * twipsPerPixel);
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

/// Whether a process has come so far that it answers SIGTERM itself, as the program does once its files are open.
bool CatchesTermination(qint64 process)
{
    QFile status(QString("/proc/%1/status").arg(process));
    if (!status.open(QIODevice::ReadOnly))
        return false;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("SigCgt:"))
            return (line.mid(7).trimmed().toULongLong(nullptr, 16) >> (SIGTERM - 1) & 1U) != 0;
    return false;
}

const QStringList FailureLines{"There is a problem with the database files.",
                               "If the problem persists, download with database files",
                               "from https://www.tavenor.example and put them in the Tavenor 3 directory",
                               "or contact us at support@tavenor.example"};

} // namespace

class MainWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void GroupsFoldOutInPlace_data()
    {
        QTest::addColumn<int>("group");
        QTest::addColumn<QList<int>>("tops");
        QTest::addColumn<QStringList>("suboptions");
        const QList<int> home{1440, 1920, 2400, 2880, 3360};
        QTest::newRow("1") << 1 << QList<int>{1440, 3600, 4080, 4560, 5040}
                           << QStringList{"Add Main Draw 1920", "Add Thunderball Draw 2290"};
        QTest::newRow("2") << 2 << QList<int>{1440, 1920, 4080, 4560, 5040}
                           << QStringList{"View Latest Draw 2400", "View Any Single Draw 2760",
                                          "View or Edit All Draws 3120"};
        QTest::newRow("3") << 3 << QList<int>{1440, 1920, 2400, 4560, 5040}
                           << QStringList{"User Details 2880", "Add New Entries 3240", "View or Edit Entries 3600",
                                          "Check Your Entries 3960"};
        QTest::newRow("4") << 4 << QList<int>{1440, 1920, 2400, 2880, 5040} << QStringList{"Main Draw 3360"};
        QTest::newRow("5") << 5 << home << QStringList{"Main Draw 3840", "Thunderball Draw 4200"};
    }

    void GroupsFoldOutInPlace()
    {
        QFETCH(int, group);
        QFETCH(QList<int>, tops);
        QFETCH(QStringList, suboptions);
        TestWindow window;
        QCOMPARE(ButtonTops(window), (QList<int>{1440, 1920, 2400, 2880, 3360}));
        window.Click(QString("Button%1").arg(group));
        QCOMPARE(ButtonTops(window), tops);
        QStringList shown;
        for (int number = 1; number <= MostSuboptions; ++number) {
            const QString name = QString("Suboption%1").arg(number);
            if (window.IsShown(name))
                shown.append(window.TextOf(name) + ' ' + QString::number(window.Find(name)->y() * 10));
        }
        QCOMPARE(shown, suboptions);
        QVERIFY(!window.IsShown("Optionmark"));
        QCOMPARE(ShownPage(window), QString::number(group));
        window.Click("Logo");
        QCOMPARE(ShownPage(window), QString("0"));
        QVERIFY(!window.IsShown("Suboption1"));
    }

    void EverySuboptionAndLabelLeadsToItsPage_data()
    {
        QTest::addColumn<int>("group");
        QTest::addColumn<int>("suboption");
        QTest::addColumn<int>("label");
        QTest::addColumn<int>("page");
        const auto row = [](int group, int suboption, int label, int page) {
            QTest::addRow("page %d", page) << group << suboption << label << page;
        };
        row(1, 1, 0, 6);
        row(1, 2, 1, 7);
        row(2, 1, 9, 8);
        row(2, 2, 8, 9);
        row(2, 3, 26, 10);
        row(3, 1, 14, 11);
        row(3, 2, 13, 18);
        row(3, 3, 15, 13);
        row(3, 4, 21, 12);
        row(4, 1, 19, 26);
        row(5, 1, 24, 21);
        row(5, 2, 23, 22);
    }

    void EverySuboptionAndLabelLeadsToItsPage()
    {
        QFETCH(int, group);
        QFETCH(int, suboption);
        QFETCH(int, label);
        QFETCH(int, page);
        TestWindow window;
        AddUser(users, "Ann", 10);
        const QString button = QString("Button%1").arg(group);
        const QString option = QString("Suboption%1").arg(suboption);
        window.Click(button);
        window.Click(option);
        QCOMPARE(ShownPage(window), QString::number(page));
        const QWidget* mark = window.Find("Optionmark");
        QVERIFY(mark->isVisible());
        QVERIFY(mark->geometry().center().y() > window.Find(option)->geometry().top());
        QVERIFY(mark->geometry().center().y() < window.Find(option)->geometry().bottom());
        window.Click(button);
        QCOMPARE(ShownPage(window), QString::number(group));
        QVERIFY(!mark->isVisible());
        window.Click(QString("lab_%1").arg(label));
        QCOMPARE(ShownPage(window), QString::number(page));
        QVERIFY(mark->isVisible());
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
        window.Find("Logo")->setFocus();
        QStringList order;
        window.Press("Button2", Qt::Key_Return);
        window.Find("Logo")->setFocus();
        for (int step = 0; step < 6; ++step) {
            window.PressFocused(Qt::Key_Tab);
            order.append(window.FocusedName());
        }
        QCOMPARE(order, (QStringList{"Button1", "Button2", "Suboption1", "Suboption2", "Suboption3", "Button3"}));
    }

    void AboutWindowTellsTheVersion()
    {
        TestWindow window;
        QString title;
        QStringList texts;
        window.modals.WillDo([&](QDialog& dialog) {
            title = dialog.windowTitle();
            for (const QLabel* label : dialog.findChildren<QLabel*>())
                texts.append(label->text());
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        window.Click("about");
        QCOMPARE(title, QString("Tavenor 3 --- About..."));
        QVERIFY(texts.contains("Tavenor") && texts.contains("v3.01"));
    }

    void ExitAsksFirst()
    {
        TestWindow window;
        window.modals.WillPress(QMessageBox::No);
        window.Click("Exit");
        const QList<SeenBox> seen = window.modals.TakeSeen();
        QCOMPARE(seen[0].text, QString("Are you sure you want to exit?"));
        QCOMPARE(seen[0].title, QString("Tavenor 3"));
        QCOMPARE(seen[0].buttons, QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(seen[0].defaultButton, QMessageBox::No);
        QVERIFY(!window.ended);
        window.modals.WillPress(QMessageBox::Yes);
        window.Click("Exit");
        QVERIFY(window.ended);
        QCOMPARE(window.files.Files(), (QStringList{"drawdata.tv3", "userdata.tv3"}));
    }

    void ClosingTheWindowCompactsWithoutAsking()
    {
        TestWindow window(TestFolder::Content::Starter);
        const QStringList before = TestFolder::StoredRows("ukmain");
        for (ukmain.MoveFirst(); !ukmain.Eof(); ukmain.MoveNext())
            if (ukmain.Number(0) > 100)
                ukmain.Delete();
        const auto size = QFile(window.files.Path("drawdata.tv3")).size();
        QFile leftover(window.files.Path("drawdata.tp2"));
        QVERIFY(leftover.open(QIODevice::WriteOnly));
        leftover.close();
        window.Window().close();
        QVERIFY(window.ended);
        QVERIFY(QFile(window.files.Path("drawdata.tv3")).size() < size / 2);
        QCOMPARE(window.files.Files(), (QStringList{"drawdata.tv3", "userdata.tv3"}));
        QCOMPARE(TestFolder::StoredRows("ukmain"), before.mid(0, 100));
        QVERIFY(window.modals.AllCame());
    }

    void FailingCompactionLeavesTheLiveFileAndGoesOn()
    {
        TestWindow window;
        // The compaction cannot write over a folder that stands in its way.
        QVERIFY(QDir(window.files.Path(".")).mkpath("drawdata.tp1"));
        QFile live(window.files.Path("drawdata.tv3"));
        QVERIFY(live.open(QIODevice::ReadOnly));
        const QByteArray before = live.readAll();
        live.close();
        window.modals.WillPress(QMessageBox::Ok);
        window.Window().close();
        const QStringList texts = window.modals.TakeTexts();
        QCOMPARE(texts.size(), 1);
        QVERIFY2(texts[0].startsWith("The file drawdata.tp1 could not be"), qPrintable(texts[0]));
        QVERIFY(live.open(QIODevice::ReadOnly));
        QCOMPARE(live.readAll(), before);
        QVERIFY(window.ended);
        QCOMPARE(window.files.Files(), (QStringList{"drawdata.tv3", "userdata.tv3"}));
    }

    void AnotherCopyKeepsTheFilesAsTheyAre()
    {
        const TestFolder folder(TestFolder::Content::Starter);
        OpenDatabaseFiles();
        QProcess copy;
        copy.setWorkingDirectory(folder.Path("."));
        copy.start(TAVENOR_PROGRAM, {});
        QVERIFY(copy.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(CatchesTermination(copy.processId()), 60000);
        copy.terminate();
        QVERIFY(copy.waitForFinished(60000));
        QCOMPARE(copy.exitStatus(), QProcess::NormalExit);
        QCOMPARE(copy.exitCode(), 0);
        ukmain.MoveLast();
        ukmain.Delete();
        QCOMPARE(CloseAndCompactFiles(), QString());
        QCOMPARE(TestFolder::StoredRows("ukmain").size(), 2064);
        QCOMPARE(folder.Files(), (QStringList{"drawdata.tv3", "userdata.tv3"}));
    }

    void FilesThatCannotBeOpenedEndTheProgram_data()
    {
        QTest::addColumn<QString>("broken");
        QTest::newRow("drawdata.tv3 missing") << "drawdata.tv3";
        QTest::newRow("userdata.tv3 missing") << "userdata.tv3";
        QTest::newRow("userdata.tv3 with a password") << "protected";
        QTest::newRow("a list missing") << "ukmainlist";
    }

    void FilesThatCannotBeOpenedEndTheProgram()
    {
        QFETCH(QString, broken);
        const TestFolder folder(TestFolder::Content::Empty);
        if (broken == "protected") {
            QFile::remove(folder.Path("userdata.tv3"));
            QFile::copy(folder.Path("drawdata.tv3"), folder.Path("userdata.tv3"));
        } else if (broken == "ukmainlist") {
            QFile::remove(folder.Path("drawdata.tv3"));
            QFile::copy(folder.Path("userdata.tv3"), folder.Path("drawdata.tv3"));
        } else {
            QFile::remove(folder.Path(broken));
        }
        bool ended = false;
        EndProcess = [&ended] { ended = true; };
        ModalWindows modals;
        modals.WillPress(QMessageBox::Ok);
        OpenDatabases();
        const QList<SeenBox> seen = modals.TakeSeen();
        QCOMPARE(seen.size(), 1);
        QCOMPARE(seen[0].text, FailureLines.join("\r\n"));
        QCOMPARE(seen[0].icon, QMessageBox::Critical);
        QCOMPARE(seen[0].title, QString("Tavenor 3"));
        QCOMPARE(seen[0].buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
        QVERIFY(ended);
    }
};

TAVENOR_TEST_MAIN(MainWindowTest)
#include "main_window_test.moc"
