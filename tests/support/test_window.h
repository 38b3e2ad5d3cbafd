#pragma once

#include "support/run_tests.h"
#include "support/stored_draws.h"

#include "shell/main_window.h"
#include "store/draw_tables.h"
#include "store/user_records.h"
#include "store/user_tables.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <deque>
#include <functional>
#include <memory>

/// What a message box said before it was answered.
struct SeenBox
{
    QString title;
    QString text;
    QMessageBox::Icon icon;
    Qt::TextFormat format;
};

/// Answers the program's modal windows in the order in which the test foresees them. One that nobody foresaw
/// fails the test and is closed.
class ModalWindows
{
public:
    ModalWindows();

    /// The next modal window is a message box, and this button of it is pressed, after a look at what it covers.
    void WillPress(QMessageBox::StandardButton button, std::function<void()> look = {});
    /// The next modal window is a dialog of the program's own; the action works in it and closes it.
    void WillDo(std::function<void(QDialog&)> action) { expected.push_back(std::move(action)); }

    /// Every further window is answered by this, so that none is unforeseen: a message box by its first button, and any
    /// other dialog by the action.
    void WillAlwaysDo(std::function<void(QDialog&)> action) { always = std::move(action); }

    /// The message boxes seen since this was last asked.
    QList<SeenBox> TakeSeen() { return std::exchange(seen, {}); }
    /// Their texts only.
    QStringList TakeTexts();
    /// Whether every foreseen window has come.
    bool AllCame() const { return expected.empty(); }

private:
    void Look();

    std::deque<std::function<void(QDialog&)>> expected;
    std::function<void(QDialog&)> always;
    QList<SeenBox> seen;
    QList<QPointer<QDialog>> answered;
    QTimer timer;
};

/// The files of one test: a folder of its own with databases in it, in which the program works.
class TestFolder
{
public:
    enum class Content
    {
        Empty,
        Starter
    };

    explicit TestFolder(Content content);
    ~TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    QString Path(const QString& file) const { return folder.filePath(file); }
    QStringList Files() const;

    /// Every row of a table, as the file holds it, read by a connection of its own: fields joined by commas.
    static QStringList StoredRows(const QString& table);
    /// The number, which is the first field, of every row of a table, joined by blanks.
    static QString StoredNumbers(const QString& table);

private:
    QTemporaryDir folder;
};

/// The real main window on the files of one test, with what is needed to press its keys and read its labels. The test
/// fails when it ends before every foreseen modal window has come, or after one that nobody foresaw.
class TestWindow
{
public:
    explicit TestWindow(TestFolder::Content content = TestFolder::Content::Empty);
    ~TestWindow();
    TestWindow(const TestWindow&) = delete;
    TestWindow& operator=(const TestWindow&) = delete;

    MainWindow& Window() { return *window; }
    /// The control of that object name; the test fails where there is none.
    template <typename Type = QWidget>
    Type* Find(const QString& name) const
    {
        auto* found = window->findChild<Type*>(name);
        if (found == nullptr)
            qFatal("There is no control named %s", qPrintable(name));
        return found;
    }
    QString TextOf(const QString& name) const { return Find(name)->property("text").toString(); }
    /// The texts of several controls, with "|" between them.
    QString TextsOf(const QStringList& names) const;
    /// The texts of a control array's elements, with blanks between them; "1230" is element 1, 2, 3 and 0.
    QString TextsOf(const QString& array, const QString& elements) const;
    bool IsShown(const QString& name) const { return Find(name)->isVisible(); }
    void Click(const QString& name);
    /// Clicks a control and answers the message boxes that follow, in order; what they said comes back.
    QStringList Click(const QString& name, std::initializer_list<QMessageBox::StandardButton> answers);
    /// Clicks into a text field, replaces its text by typing, and leaves it alone.
    void Type(const QString& name, const QString& text);
    /// Types the texts into the fields through which the Enter key leads, and presses it in the last one too.
    void TypeInTurn(const QString& firstField, const QStringList& texts);
    /// Chooses an item of a list as a player does, also when it is chosen already.
    void Choose(const QString& list, int item);
    /// Chooses a group of the menu and one of its sub-options.
    void OpenPage(int group, int suboption);
    void Press(const QString& name, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void PressFocused(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    QString FocusedName() const
    {
        return QApplication::focusWidget() == nullptr ? QString() : QApplication::focusWidget()->objectName();
    }
    QColor ColourOf(const QString& name, QPalette::ColorRole role) const { return Find(name)->palette().color(role); }
    /// The same of a control array's elements, as "#RRGGBB" with blanks between them.
    QString ColoursOf(const QString& array, const QString& elements, QPalette::ColorRole role) const;

    TestFolder files;
    ModalWindows modals;
    bool ended = false;

protected:
    /// Lets what an action has set off come to its end, and gives the window its focus back.
    void Settle();

private:
    std::unique_ptr<MainWindow> window;
};

/// Clicks a control of a dialog.
inline void PressIn(const QDialog& dialog, const QString& name)
{
    QTest::mouseClick(dialog.findChild<QWidget*>(name), Qt::LeftButton);
}
