#include "support/test_window.h"

#include "records/engine.h"
#include "utilities/start_and_end.h"

#include <QDir>
#include <QListView>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

ModalWindows::ModalWindows()
{
    timer.callOnTimeout([this] { Look(); });
    timer.start(2);
}

void ModalWindows::WillPress(QMessageBox::StandardButton button, std::function<void()> look)
{
    expected.emplace_back([button, look = std::move(look)](QDialog& dialog) {
        if (look)
            look();
        const auto* box = qobject_cast<QMessageBox*>(&dialog);
        QVERIFY2(box != nullptr && box->button(button) != nullptr, "Another window was foreseen");
        QTest::mouseClick(box->button(button), Qt::LeftButton);
    });
}

QStringList ModalWindows::TakeTexts()
{
    QStringList texts;
    for (const SeenBox& box : TakeSeen())
        texts.append(box.text);
    return texts;
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
        for (const char* name : {"drawdata.tv3", "userdata.tv3"})
            QFile::copy(QStringLiteral(TAVENOR_STARTER "/") + QLatin1String(name),
                        folder.filePath(QLatin1String(name)));
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

QStringList TestFolder::Files() const
{
    return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
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

QString TestFolder::StoredNumbers(const QString& table)
{
    QStringList numbers;
    for (const QString& row : StoredRows(table))
        numbers.append(row.section(u',', 0, 0));
    return numbers.join(u' ');
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

QString TestWindow::TextsOf(const QStringList& names) const
{
    QStringList texts;
    for (const QString& name : names)
        texts.append(TextOf(name));
    return texts.join(u'|');
}

QString TestWindow::TextsOf(const QString& array, const QString& elements) const
{
    QStringList texts;
    for (const QChar element : elements)
        texts.append(TextOf(array + u'_' + element));
    return texts.join(u' ');
}

void TestWindow::Click(const QString& name)
{
    QTest::mouseClick(Find(name), Qt::LeftButton);
    Settle();
}

QStringList TestWindow::Click(const QString& name, std::initializer_list<QMessageBox::StandardButton> answers)
{
    for (const auto answer : answers)
        modals.WillPress(answer);
    Click(name);
    return modals.TakeTexts();
}

void TestWindow::Type(const QString& name, const QString& text)
{
    auto* edit = Find<QLineEdit>(name);
    QTest::mouseClick(edit, Qt::LeftButton);
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
}

void TestWindow::TypeInTurn(const QString& firstField, const QStringList& texts)
{
    Type(firstField, texts.first());
    PressFocused(Qt::Key_Return);
    for (const QString& text : texts.mid(1)) {
        QTest::keyClicks(QApplication::focusWidget(), text);
        PressFocused(Qt::Key_Return);
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

void TestWindow::OpenPage(int group, int suboption)
{
    Click(QString("Button%1").arg(group));
    Click(QString("Suboption%1").arg(suboption));
}

void TestWindow::Press(const QString& name, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(Find(name), key, modifiers);
    Settle();
}

void TestWindow::PressFocused(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    Settle();
}

QString TestWindow::ColoursOf(const QString& array, const QString& elements, QPalette::ColorRole role) const
{
    QStringList colours;
    for (const QChar element : elements)
        colours.append(ColourOf(array + u'_' + element, role).name().toUpper());
    return colours.join(u' ');
}
