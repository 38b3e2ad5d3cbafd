#include "support/stored_draws.h"
#include "support/test_window.h"

#include "users/user_records.h"
#include "users/user_tables.h"

#include <QListWidget>

namespace {

/// Users with their limits, and entries of the first of them.
void Fill(const QStringList& names, int entryCount)
{
    for (const QString& name : names)
        AddUser(users, name, 10);
    for (int i = 1; i <= entryCount; ++i)
        AddEntry(entries, {i, 1, 1 + i % 2, {1, 2, 3, 4, 5, 6}, {}});
}

void Open(TestWindow& window)
{
    window.Click("Button3");
    window.Click("Suboption1");
}

void Select(TestWindow& window, int line)
{
    auto* list = window.Find<QListWidget>("F11list");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(line)).center());
}

enum class Mode
{
    View,
    Add,
    Edit
};

void CompareMode(const TestWindow& window, Mode mode)
{
    const QMap<Mode, QString> captions{
        {Mode::View, "Currently selected user"}, {Mode::Add, "New users name"}, {Mode::Edit, "Updated users name"}};
    QCOMPARE(window.TextOf("F11label2"), captions[mode]);
    for (const char* box : {"F11seluser", "F11spend"})
        QCOMPARE(window.Find<QLineEdit>(box)->isReadOnly(), mode == Mode::View);
    QVERIFY(window.Find<QLineEdit>("F11entrycount")->isReadOnly());
    QCOMPARE(window.IsShown("F11entrycount"), mode != Mode::Add);
    QCOMPARE(window.IsShown("F11label4"), mode != Mode::Add);
    QCOMPARE(window.IsShown("F11storenu"), mode == Mode::Add);
    QCOMPARE(window.IsShown("F11storech"), mode == Mode::Edit);
}

} // namespace

class UserDetailsPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void OpenPageCountsAndListsTheUsers_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QString>("caption");
        QTest::newRow("none") << QStringList{} << "There are currently no users.";
        QTest::newRow("one") << QStringList{"Ann"} << "There is currently 1 user.";
        QTest::newRow("three") << QStringList{"Cid", "Ann", "<i>Bob</i> & Co"} << "There are currently  3 users.";
    }

    void OpenPageCountsAndListsTheUsers()
    {
        QFETCH(QStringList, names);
        QFETCH(QString, caption);
        TestWindow window;
        Fill(names, 0);
        Open(window);
        QCOMPARE(window.TextOf("F11label1"), caption);
        const auto* list = window.Find<QListWidget>("F11list");
        QStringList shown;
        for (int line = 0; line < list->count(); ++line)
            shown.append(list->item(line)->text());
        QCOMPARE(shown, names);
        CompareMode(window, names.isEmpty() ? Mode::Add : Mode::View);
        QCOMPARE(window.TextOf("F11seluser"), QString());
    }

    void ListClickShowsTheUser()
    {
        TestWindow window;
        Fill({"Ann", "Bob"}, 3);
        Open(window);
        Select(window, 0);
        QCOMPARE(window.TextOf("F11seluser"), QString("Ann"));
        QCOMPARE(window.TextOf("F11spend"), QString("10"));
        QCOMPARE(window.TextOf("F11entrycount"), QString("3"));
        window.Press("F11list", Qt::Key_Down);
        QCOMPARE(window.TextOf("F11seluser"), QString("Bob"));
        QCOMPARE(window.TextOf("F11entrycount"), QString("0"));
        window.Click("F11adduser");
        CompareMode(window, Mode::Add);
        QCOMPARE(window.FocusedName(), QString("F11seluser"));
        window.Type("F11seluser", "half a na");
        Select(window, 1);
        CompareMode(window, Mode::View);
        QCOMPARE(window.TextOf("F11seluser"), QString("Bob"));
    }

    void UsersAreAddedByKeyboard()
    {
        TestWindow window;
        Open(window);
        window.Type("F11seluser", "Ann");
        window.PressFocused(Qt::Key_Return);
        QCOMPARE(window.FocusedName(), QString("F11spend"));
        QTest::keyClicks(QApplication::focusWidget(), "10 lines");
        window.PressFocused(Qt::Key_Return);
        QCOMPARE(window.FocusedName(), QString("F11storenu"));
        window.PressFocused(Qt::Key_Return);
        CompareMode(window, Mode::View);
        QCOMPARE(window.TextOf("F11label1"), QString("There is currently 1 user."));
        window.Click("F11adduser");
        window.Click("F11storenu");
        QCOMPARE(TestFolder::StoredRows("users"), (QStringList{"1,Ann,10", "2,,0"}));
        QVERIFY(window.modals.AllCame());
    }

    void DuplicateNameIsRefusedAndTheTypingStays()
    {
        TestWindow window;
        Fill({"Ann"}, 0);
        Open(window);
        window.Click("F11adduser");
        window.Type("F11seluser", "Ann");
        window.modals.WillPress(QMessageBox::Ok);
        window.Click("F11storenu");
        QCOMPARE(window.modals.TakeTexts(),
                 QStringList{"There is already a user with this name.\r\nTry another name and try again."});
        CompareMode(window, Mode::Add);
        QCOMPARE(window.TextOf("F11seluser"), QString("Ann"));
        window.Type("F11seluser", "ann");
        window.Click("F11storenu");
        QCOMPARE(TestFolder::StoredRows("users").size(), 2);
    }

    void ChangesAreCheckedAndStored_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("limit");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("stored");
        const QString tooLow = "This user already has more entries than you have specified as the maximum.\r\n"
                               "Change the maximum limit or delete some entries, then retry.";
        QTest::newRow("a limit equal to the entry count") << "Ann"
                                                          << "3"
                                                          << ""
                                                          << "1,Ann,3";
        QTest::newRow("a limit one below it") << "Ann"
                                              << "2" << tooLow << "1,Ann,10";
        QTest::newRow("no limit") << "Ann"
                                  << "" << tooLow << "1,Ann,10";
        QTest::newRow("a name in another case") << "ann"
                                                << "10"
                                                << ""
                                                << "1,ann,10";
        QTest::newRow("an empty name") << ""
                                       << "10"
                                       << "Invalid user name, please retry."
                                       << "1,Ann,10";
        QTest::newRow("another user's name") << "Bob"
                                             << "10"
                                             << "This user name has already been used, please retry"
                                             << "1,Ann,10";
        QTest::newRow("a limit with a fraction") << "Ann"
                                                 << "3.5"
                                                 << ""
                                                 << "1,Ann,3.5";
    }

    void ChangesAreCheckedAndStored()
    {
        QFETCH(QString, name);
        QFETCH(QString, limit);
        QFETCH(QString, message);
        QFETCH(QString, stored);
        TestWindow window;
        Fill({"Ann", "Bob"}, 3);
        Open(window);
        Select(window, 0);
        window.Click("F11edituser");
        CompareMode(window, Mode::Edit);
        QCOMPARE(window.FocusedName(), QString("F11seluser"));
        window.Type("F11seluser", name);
        window.PressFocused(Qt::Key_Return);
        window.Type("F11spend", limit);
        window.PressFocused(Qt::Key_Return);
        QCOMPARE(window.FocusedName(), QString("F11storech"));
        if (!message.isEmpty())
            window.modals.WillPress(QMessageBox::Ok);
        window.Click("F11storech");
        QCOMPARE(window.modals.TakeTexts(), message.isEmpty() ? QStringList() : QStringList{message});
        CompareMode(window, message.isEmpty() ? Mode::View : Mode::Edit);
        QCOMPARE(TestFolder::StoredRows("users"), (QStringList{stored, "2,Bob,10"}));
    }

    void NothingSelectedIsTold()
    {
        TestWindow window;
        Fill({"Ann"}, 0);
        Open(window);
        for (const char* button : {"F11edituser", "F11deleteuser"}) {
            window.modals.WillPress(QMessageBox::Ok);
            window.Click(button);
            QCOMPARE(window.modals.TakeTexts(), QStringList{"Select a user first."});
        }
        CompareMode(window, Mode::View);
        window.Press("F11spend", Qt::Key_Return);
        CompareMode(window, Mode::View);
    }

    void DeletionTakesTheUserAndItsEntriesOnly()
    {
        TestWindow window;
        Fill({"Ann", "Bob"}, 3);
        AddEntry(entries, {4, 2, 1, {1, 2, 3, 4, 5, 6}, {}});
        Open(window);
        Select(window, 0);
        window.modals.WillPress(QMessageBox::No);
        window.Click("F11deleteuser");
        QCOMPARE(window.modals.TakeTexts(),
                 QStringList{"Are you sure you want to delete this user\r\nand all entries stored with it?"});
        QCOMPARE(TestFolder::StoredRows("entries").size(), 4);
        // A refused change in between must not lead the deletion to another user.
        window.Click("F11edituser");
        window.Type("F11seluser", "Bob");
        window.modals.WillPress(QMessageBox::Ok);
        window.Click("F11storech");
        window.modals.WillPress(QMessageBox::Yes);
        window.Click("F11deleteuser");
        QCOMPARE(TestFolder::StoredRows("users"), QStringList{"2,Bob,10"});
        QCOMPARE(TestFolder::StoredRows("entries"), QStringList{"4,2,1,1,2,3,4,5,6,0,0,0,0,0,0,0"});
        QCOMPARE(window.TextOf("F11label1"), QString("There is currently 1 user."));
    }

    /// A line of the list whose user is gone stands for nobody, not for the user shown before.
    void UserGoneInAnotherCopyIsNotMistakenForAnother()
    {
        TestWindow window;
        Fill({"Ann", "Bob"}, 3);
        Open(window);
        Select(window, 0);
        InAnotherCopy(UserDataPath, {}, UsersTable(), [](RecordSet& table) {
            table.MoveLast();
            table.Delete();
        });
        window.modals.WillPress(QMessageBox::Ok);
        Select(window, 1);
        QTRY_VERIFY(window.modals.AllCame());
        QVERIFY(window.modals.TakeTexts().value(0).startsWith("The user could not be shown, because another copy"));
        QCOMPARE(window.Find<QListWidget>("F11list")->count(), 1);
        QCOMPARE(window.TextOf("F11seluser"), QString());
        window.modals.WillPress(QMessageBox::Ok);
        window.Click("F11deleteuser");
        QCOMPARE(window.modals.TakeTexts(), QStringList{"Select a user first."});
        QCOMPARE(TestFolder::StoredRows("users"), QStringList{"1,Ann,10"});
    }

    /// Passing the list with the Tab key chooses nobody.
    void FocusAloneChoosesNoUser()
    {
        TestWindow window;
        Fill({"Ann", "Bob"}, 0);
        Open(window);
        window.Click("F11adduser");
        window.Type("F11seluser", "Cid");
        window.Press("F11seluser", Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(window.FocusedName(), QString("F11list"));
        CompareMode(window, Mode::Add);
        QCOMPARE(window.TextOf("F11seluser"), QString("Cid"));
        window.modals.WillPress(QMessageBox::Ok);
        window.Click("F11deleteuser");
        QCOMPARE(window.modals.TakeTexts(), QStringList{"Select a user first."});
    }

    void LastNumberIsGivenAgain()
    {
        TestWindow window;
        Fill({"Ann", "Bob", "Cid"}, 0);
        Open(window);
        Select(window, 2);
        window.modals.WillPress(QMessageBox::Yes);
        window.Click("F11deleteuser");
        window.Click("F11adduser");
        window.Type("F11seluser", "Dora");
        window.Click("F11storenu");
        QCOMPARE(TestFolder::StoredRows("users").last(), QString("3,Dora,0"));
    }
};

TAVENOR_TEST_MAIN(UserDetailsPageTest)
#include "user_details_page_test.moc"
