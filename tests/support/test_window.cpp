#include "support/test_window.h"

#include "base/texts.h"
#include "utilities/start_and_end.h"

#include <QDir>
#include <QListView>

using namespace Qt::StringLiterals;

ModalWindows::ModalWindows()
{
    connect(&timer, &QTimer::timeout, this, &ModalWindows::Look);
    timer.start(2);
}

void ModalWindows::WillPress(QMessageBox::StandardButton button, std::function<void()> look)
{
    expected.emplace_back([button, look = std::move(look)](QDialog& dialog) {
        if (look)
            look();
        auto* box = qobject_cast<QMessageBox*>(&dialog);
        if (box == nullptr || box->button(button) == nullptr)
            return false;
        QTest::mouseClick(box->button(button), Qt::LeftButton);
        return true;
    });
}

void ModalWindows::WillDo(std::function<void(QDialog&)> action)
{
    expected.emplace_back([action = std::move(action)](QDialog& dialog) {
        if (qobject_cast<QMessageBox*>(&dialog) != nullptr)
            return false;
        action(dialog);
        // A check that failed in the middle leaves the window open for ever.
        return !dialog.isVisible() || !QTest::currentTestFailed();
    });
}

QList<SeenBox> ModalWindows::TakeSeen()
{
    return std::exchange(seen, {});
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
    if (const auto* box = qobject_cast<QMessageBox*>(dialog))
        seen.append({box->windowTitle(), box->text(), box->icon(), box->standardButton(box->defaultButton()),
                     box->textFormat()});
    if (expected.empty() && always) {
        if (auto* box = qobject_cast<QMessageBox*>(dialog))
            box->buttons().constFirst()->click();
        else
            always(*dialog);
        return;
    }
    std::function<bool(QDialog&)> action;
    if (!expected.empty()) {
        action = std::move(expected.front());
        expected.pop_front();
    }
    if (!action || !action(*dialog)) {
        ++unforeseen;
        qWarning("Not foreseen: %s",
                 qPrintable(dialog->windowTitle() + u' ' + (seen.isEmpty() ? QString() : seen.last().text)));
        dialog->reject();
    }
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
    Database database;
    database.Open(copy.toStdString(), ofUsers ? std::string() : DrawConnect);
    TableLayout layout;
    for (const TableLayout& known : {DrawTable(MainGame), DrawTable(ThunderballGame), DrawList(MainGame),
                                     DrawList(ThunderballGame), LinksTable(), UsersTable(), EntriesTable()})
        if (QString::fromStdString(known.name) == table)
            layout = known;
    RecordSet set;
    set.Open(database, layout);
    QStringList rows;
    for (set.MoveFirst(); !set.Eof(); set.MoveNext()) {
        QStringList fields;
        for (int position = 0; position < static_cast<int>(layout.columns.size()); ++position) {
            const bool ofTexts = layout.columns[static_cast<size_t>(position)].type == "TEXT";
            fields.append(ofTexts ? FromUtf8(set.Text(position)) : QString::number(set.Number(position), 'g', 17));
        }
        rows.append(fields.join(u','));
    }
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
    QVERIFY2(modals.AllCame(), "A window was not foreseen, or a foreseen one did not come");
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

QString TestWindow::TextOf(const QString& name) const
{
    return Find(name)->property("text").toString();
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

QString TestWindow::FocusedName() const
{
    return QApplication::focusWidget() == nullptr ? QString() : QApplication::focusWidget()->objectName();
}

QColor TestWindow::ColourOf(const QString& name, QPalette::ColorRole role) const
{
    return Find(name)->palette().color(role);
}

QString TestWindow::ColoursOf(const QString& array, const QString& elements, QPalette::ColorRole role) const
{
    QStringList colours;
    for (const QChar element : elements)
        colours.append(ColourOf(array + u'_' + element, role).name().toUpper());
    return colours.join(u' ');
}

void PressIn(const QDialog& dialog, const QString& name)
{
    QTest::mouseClick(dialog.findChild<QWidget*>(name), Qt::LeftButton);
}
