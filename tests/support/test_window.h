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
#include <QDir>
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
    void WillPress(QMessageBox::StandardButton button, std::function<void()> look = {})
    {
        expected.emplace_back([button, look = std::move(look)](QDialog& dialog) {
            if (look)
                look();
            const auto* box = qobject_cast<QMessageBox*>(&dialog);
            QVERIFY2(box != nullptr && box->button(button) != nullptr, "Another window was foreseen");
            QTest::mouseClick(box->button(button), Qt::LeftButton);
        });
    }
    /// The next modal window is a dialog of the program's own; the action works in it and closes it.
    void WillDo(std::function<void(QDialog&)> action) { expected.push_back(std::move(action)); }

    /// Every further window is answered by this, so that none is unforeseen: a message box by its first button, and any
    /// other dialog by the action.
    void WillAlwaysDo(std::function<void(QDialog&)> action) { always = std::move(action); }

    /// The message boxes seen since this was last asked.
    QList<SeenBox> TakeSeen() { return std::exchange(seen, {}); }
    /// Their texts only.
    QStringList TakeTexts()
    {
        QStringList texts;
        for (const SeenBox& box : TakeSeen())
            texts.append(box.text);
        return texts;
    }
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

    QString Path(const QString& file) const { return folder.filePath(file); }
    QStringList Files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }

    /// Every row of a table, as the file holds it, read by a connection of its own: fields joined by commas.
    static QStringList StoredRows(const QString& table);
    /// The number, which is the first field, of every row of a table, joined by blanks.
    static QString StoredNumbers(const QString& table)
    {
        QStringList numbers;
        for (const QString& row : StoredRows(table))
            numbers.append(row.section(u',', 0, 0));
        return numbers.join(u' ');
    }

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
    QString TextsOf(const QStringList& names) const
    {
        QStringList texts;
        for (const QString& name : names)
            texts.append(TextOf(name));
        return texts.join(u'|');
    }
    /// The texts of a control array's elements, with blanks between them; "1230" is element 1, 2, 3 and 0.
    QString TextsOf(const QString& array, const QString& elements) const
    {
        QStringList texts;
        for (const QChar element : elements)
            texts.append(TextOf(array + u'_' + element));
        return texts.join(u' ');
    }
    bool IsShown(const QString& name) const { return Find(name)->isVisible(); }
    void Click(const QString& name)
    {
        QTest::mouseClick(Find(name), Qt::LeftButton);
        Settle();
    }
    /// Clicks a control and answers the message boxes that follow, in order; what they said comes back.
    QStringList Click(const QString& name, std::initializer_list<QMessageBox::StandardButton> answers)
    {
        for (const auto answer : answers)
            modals.WillPress(answer);
        Click(name);
        return modals.TakeTexts();
    }
    /// Clicks into a text field, replaces its text by typing, and leaves it alone.
    void Type(const QString& name, const QString& text)
    {
        auto* edit = Find<QLineEdit>(name);
        QTest::mouseClick(edit, Qt::LeftButton);
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, text);
    }
    /// Types the texts into the fields through which the Enter key leads, and presses it in the last one too.
    void TypeInTurn(const QString& firstField, const QStringList& texts)
    {
        Type(firstField, {});
        for (const QString& text : texts) {
            QTest::keyClicks(QApplication::focusWidget(), text);
            PressFocused(Qt::Key_Return);
        }
    }
    /// Chooses an item of a list as a player does, also when it is chosen already.
    void Choose(const QString& list, int item);
    /// Chooses a group of the menu and one of its sub-options.
    void OpenPage(int group, int suboption)
    {
        Click(QString("Button%1").arg(group));
        Click(QString("Suboption%1").arg(suboption));
    }
    void Press(const QString& name, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(Find(name), key, modifiers);
        Settle();
    }
    void PressFocused(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        Settle();
    }
    QString FocusedName() const
    {
        return QApplication::focusWidget() == nullptr ? QString() : QApplication::focusWidget()->objectName();
    }
    QColor ColourOf(const QString& name, QPalette::ColorRole role) const { return Find(name)->palette().color(role); }
    /// The same of a control array's elements, as "#RRGGBB" with blanks between them.
    QString ColoursOf(const QString& array, const QString& elements, QPalette::ColorRole role) const
    {
        QStringList colours;
        for (const QChar element : elements)
            colours.append(ColourOf(array + u'_' + element, role).name().toUpper());
        return colours.join(u' ');
    }

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
