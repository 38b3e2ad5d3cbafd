#include "support/stored_draws.h"
#include "support/test_window.h"

#include "users/user_records.h"
#include "users/user_tables.h"

#include <QListWidget>

namespace {

/// Stores users with a limit of 10, and entries of the first of them, and opens the page.
void OpenWith(TestWindow& window, const QStringList& names, int entryCount)
{
    for (const QString& name : names)
        AddUser(users, name, 10);
    for (int i = 1; i <= entryCount; ++i)
        AddEntry(entries, {i, 1, 1 + i % 2, {1, 2, 3, 4, 5, 6}, {}});
    window.OpenPage(3, 1);
}

void Select(TestWindow& window, int line)
{
    auto* list = window.Find<QListWidget>("F11list");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(line)).center());
}

/// The modes of the page, each by its caption of the name.
constexpr const char* View = "Currently selected user";
constexpr const char* Add = "New users name";
constexpr const char* Edit = "Updated users name";

void CompareMode(const TestWindow& window, const char* mode)
{
    QCOMPARE(window.TextOf("F11label2"), QString(mode));
    for (const char* box : {"F11seluser", "F11spend"})
        QCOMPARE(window.Find<QLineEdit>(box)->isReadOnly(), mode == View);
    QVERIFY(window.Find<QLineEdit>("F11entrycount")->isReadOnly());
    QCOMPARE(window.IsShown("F11entrycount"), mode != Add);
    QCOMPARE(window.IsShown("F11label4"), mode != Add);
    QCOMPARE(window.IsShown("F11storenu"), mode == Add);
    QCOMPARE(window.IsShown("F11storech"), mode == Edit);
}

} // namespace

class UserDetailsPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void OpenPageCountsAndListsTheUsers()
    {
        TestWindow window;
        const QStringList names{"Cid", "Ann", "<i>Bob</i> & Co"};
        const QStringList captions{"There are currently no users.", "There is currently 1 user.",
                                   "There are currently  2 users.", "There are currently  3 users."};
        for (int count = 0; count <= names.size(); ++count) {
            OpenWith(window, count == 0 ? QStringList() : names.mid(count - 1, 1), 0);
            QCOMPARE(window.TextOf("F11label1"), captions[count]);
            const auto* list = window.Find<QListWidget>("F11list");
            QCOMPARE(list->count(), count);
            for (int line = 0; line < count; ++line)
                QCOMPARE(list->item(line)->text(), names[line]);
            CompareMode(window, count == 0 ? Add : View);
            QCOMPARE(window.TextOf("F11seluser"), QString());
        }
    }

    void ListClickShowsTheUser()
    {
        TestWindow window;
        OpenWith(window, {"Ann", "Bob"}, 3);
        Select(window, 0);
        QCOMPARE(window.TextOf("F11seluser"), QString("Ann"));
        QCOMPARE(window.TextOf("F11spend"), QString("10"));
        QCOMPARE(window.TextOf("F11entrycount"), QString("3"));
        window.Press("F11list", Qt::Key_Down);
        QCOMPARE(window.TextOf("F11seluser"), QString("Bob"));
        QCOMPARE(window.TextOf("F11entrycount"), QString("0"));
        window.Click("F11adduser");
        CompareMode(window, Add);
        QCOMPARE(window.FocusedName(), QString("F11seluser"));
        window.Type("F11seluser", "half a na");
        window.Click("F11edituser");
        CompareMode(window, Edit);
        QCOMPARE(window.TextOf("F11seluser"), QString("Bob"));
        window.Type("F11seluser", "half a na");
        Select(window, 1);
        CompareMode(window, View);
        QCOMPARE(window.TextOf("F11seluser"), QString("Bob"));
    }

    void UsersAreAddedByKeyboard()
    {
        TestWindow window;
        OpenWith(window, {}, 0);
        window.TypeInTurn("F11seluser", {"Ann", "10 lines"});
        QCOMPARE(window.FocusedName(), QString("F11storenu"));
        window.PressFocused(Qt::Key_Return);
        CompareMode(window, View);
        QCOMPARE(window.TextOf("F11label1"), QString("There is currently 1 user."));
        window.Click("F11adduser");
        window.Type("F11seluser", "Ann");
        QCOMPARE(window.Click("F11storenu", {QMessageBox::Ok}),
                 QStringList{"There is already a user with this name.\r\nTry another name and try again."});
        CompareMode(window, Add);
        QCOMPARE(window.TextOf("F11seluser"), QString("Ann"));
        for (const QString& name : {QString("ann"), QString(), QString("Cid")}) {
            window.Click("F11adduser");
            window.Type("F11seluser", name);
            window.Click("F11storenu");
        }
        QCOMPARE(TestFolder::StoredRows("users"), (QStringList{"1,Ann,10", "2,ann,0", "3,,0", "4,Cid,0"}));
        QVERIFY(window.modals.AllCame());
    }

    void ChangesAreCheckedAndStored_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("limit");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("stored");
        const auto row = [](const char* given, const QString& name, const QString& limit, const QString& message,
                            const QString& stored) { QTest::newRow(given) << name << limit << message << stored; };
        const QString tooLow = "This user already has more entries than you have specified as the maximum.\r\n"
                               "Change the maximum limit or delete some entries, then retry.";
        row("a limit equal to the entry count", "Ann", "3", {}, "1,Ann,3");
        row("a limit one below it", "Ann", "2", tooLow, "1,Ann,10");
        row("no limit", "Ann", {}, tooLow, "1,Ann,10");
        row("a limit with a fraction", "Ann", "3.5", {}, "1,Ann,3.5");
        row("a name in another case", "ann", "10", {}, "1,ann,10");
        row("an empty name", {}, "10", "Invalid user name, please retry.", "1,Ann,10");
        row("another user's name", "Bob", "10", "This user name has already been used, please retry", "1,Ann,10");
    }

    void ChangesAreCheckedAndStored()
    {
        QFETCH(QString, name);
        QFETCH(QString, limit);
        QFETCH(QString, message);
        QFETCH(QString, stored);
        TestWindow window;
        OpenWith(window, {"Ann", "Bob"}, 3);
        Select(window, 0);
        window.Click("F11edituser");
        CompareMode(window, Edit);
        QCOMPARE(window.FocusedName(), QString("F11seluser"));
        window.Type("F11spend", {});
        window.TypeInTurn("F11seluser", {name, limit});
        QCOMPARE(window.FocusedName(), QString("F11storech"));
        if (message.isEmpty())
            window.Click("F11storech");
        else
            QCOMPARE(window.Click("F11storech", {QMessageBox::Ok}), QStringList{message});
        CompareMode(window, message.isEmpty() ? View : Edit);
        QCOMPARE(TestFolder::StoredRows("users"), (QStringList{stored, "2,Bob,10"}));
    }

    /// Passing the list with the Tab key chooses nobody.
    void NothingSelectedIsTold()
    {
        TestWindow window;
        OpenWith(window, {"Ann", "Bob"}, 0);
        for (const char* button : {"F11edituser", "F11deleteuser"})
            QCOMPARE(window.Click(button, {QMessageBox::Ok}), QStringList{"Select a user first."});
        window.Press("F11spend", Qt::Key_Return);
        CompareMode(window, View);
        window.Click("F11adduser");
        window.Type("F11seluser", "Cid");
        window.Press("F11seluser", Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(window.FocusedName(), QString("F11list"));
        CompareMode(window, Add);
        QCOMPARE(window.TextOf("F11seluser"), QString("Cid"));
        QCOMPARE(window.Click("F11deleteuser", {QMessageBox::Ok}), QStringList{"Select a user first."});
    }

    void DeletionTakesTheUserAndItsEntriesOnly()
    {
        TestWindow window;
        AddEntry(entries, {9, 2, 1, {1, 2, 3, 4, 5, 6}, {}});
        OpenWith(window, {"Ann", "Bob"}, 3);
        Select(window, 0);
        QCOMPARE(window.Click("F11deleteuser", {QMessageBox::No}),
                 QStringList{"Are you sure you want to delete this user\r\nand all entries stored with it?"});
        QCOMPARE(TestFolder::StoredRows("entries").size(), 4);
        // A refused change in between must not lead the deletion to another user.
        window.Click("F11edituser");
        window.Type("F11seluser", "Bob");
        window.Click("F11storech", {QMessageBox::Ok});
        window.Click("F11deleteuser", {QMessageBox::Yes});
        QCOMPARE(TestFolder::StoredRows("users"), QStringList{"2,Bob,10"});
        QCOMPARE(TestFolder::StoredRows("entries"), QStringList{"9,2,1,1,2,3,4,5,6,0,0,0,0,0,0,0"});
        QCOMPARE(window.TextOf("F11label1"), QString("There is currently 1 user."));
    }

    /// A line of the list whose user is gone stands for nobody, not for the user shown before.
    void UserGoneInAnotherCopyIsNotMistakenForAnother()
    {
        TestWindow window;
        OpenWith(window, {"Ann", "Bob"}, 3);
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
        QCOMPARE(window.Click("F11deleteuser", {QMessageBox::Ok}), QStringList{"Select a user first."});
        QCOMPARE(TestFolder::StoredRows("users"), QStringList{"1,Ann,10"});
    }
};

TAVENOR_TEST_MAIN(UserDetailsPageTest)
#include "user_details_page_test.moc"
