#include "support/test_window.h"

#include "records/engine.h"
#include "utilities/start_and_end.h"

#include <QListView>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

ModalWindows::ModalWindows()
{
    timer.callOnTimeout([this] { Look(); });
    timer.start(2);
}

void ModalWindows::Look()
{
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || answered.contains(dialog) || !dialog->isVisible())
        return;
    answered.append(dialog);
    const auto* box = qobject_cast<QMessageBox*>(dialog);
    if (box != nullptr)
        seen.append({box->windowTitle(), box->text(), box->icon(), box->textFormat()});
    if (!expected.empty()) {
        const auto action = std::move(expected.front());
        expected.pop_front();
        action(*dialog);
    } else if (always && box != nullptr)
        box->buttons().constFirst()->click();
    else if (always)
        always(*dialog);
    else
        QTest::qFail(qPrintable("Not foreseen: " + dialog->windowTitle() + seen.value(0).text), __FILE__, __LINE__);
    // What nobody closes after a check that failed would stay open for ever.
    if (QTest::currentTestFailed() && dialog == QApplication::activeModalWidget())
        dialog->reject();
}

TestFolder::TestFolder(Content content)
{
    SetProgramDir(folder.path().toStdString());
    if (content == Content::Starter) {
        for (const QString& name : {u"drawdata.tv3"_s, u"userdata.tv3"_s})
            QFile::copy(QStringLiteral(TAVENOR_STARTER "/") + name, folder.filePath(name));
        return;
    }
    // One file serves all tests of a program, so that its key is derived once.
    static const QTemporaryDir emptyFiles;
    const QString draws = emptyFiles.filePath(u"drawdata.tv3"_s);
    if (!QFile::exists(draws))
        CreateDatabase(draws.toStdString(), DrawConnect, DrawDatabaseLayouts());
    QFile::copy(draws, folder.filePath(u"drawdata.tv3"_s));
    CreateDatabase(UserDataPath, {}, {UsersTable(), EntriesTable()});
}

TestFolder::~TestFolder()
{
    DrawDb.Close();
    UserDb.Close();
}

QStringList TestFolder::StoredRows(const QString& table)
{
    const bool ofUsers = table == "users"_L1 || table == "entries"_L1;
    // A copy is read: a second descriptor of the live file would drop the engine's locks when it is closed.
    const QTemporaryDir copies;
    const QString copy = copies.filePath(u"copy"_s);
    QFile::copy(QString::fromStdString((ofUsers ? UserDataPath : DrawDataPath).string()), copy);
    const Engine engine = OpenEngine(copy.toStdString(), SQLITE_OPEN_READONLY, "The rows could not be read");
    const std::string password = PasswordOf(ofUsers ? std::string() : DrawConnect);
    sqlite3_key(engine.get(), password.data(), static_cast<int>(password.size()));
    QStringList rows;
    const auto append = [](void* to, int count, char** values, char** /*columns*/) {
        const QStringList fields(values, values + count);
        static_cast<QStringList*>(to)->append(fields.join(u','));
        return 0;
    };
    sqlite3_exec(engine.get(), qPrintable("SELECT * FROM " + table), append, &rows, nullptr);
    return rows;
}

TestWindow::TestWindow(TestFolder::Content content) : files(content)
{
    EndProcess = [this] { ended = true; };
    OpenDatabaseFiles();
    window = std::make_unique<MainWindow>();
    window->show();
    if (!QTest::qWaitForWindowActive(window.get()))
        qFatal("The window was not shown");
}

TestWindow::~TestWindow()
{
    window.reset();
    QVERIFY2(modals.AllCame(), "A foreseen window did not come");
}

void TestWindow::Settle()
{
    QApplication::processEvents();
    // There is no window manager that would give the focus back when a message box or a list has closed.
    if (QApplication::activeWindow() == nullptr || !QApplication::activeWindow()->isVisible()) {
        window->activateWindow();
        QApplication::processEvents();
    }
}

void TestWindow::Choose(const QString& list, int item)
{
    auto* combo = Find<QComboBox>(list);
    QTest::mouseClick(combo, Qt::LeftButton);
    QVERIFY(combo->view()->isVisible());
    QTest::keyClick(combo->view(), Qt::Key_Home);
    for (int step = 0; step < item; ++step)
        QTest::keyClick(combo->view(), Qt::Key_Down);
    QTest::keyClick(combo->view(), Qt::Key_Return);
    Settle();
}
