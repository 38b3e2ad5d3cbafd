#include "support/failure_of.h"
#include "support/raw_file.h"
#include "support/test_window.h"

#include "store/entry_changes.h"
#include "store/user_changes.h"

using namespace Qt::StringLiterals;

namespace {

/// The page with users who have a limit of 10, the first of them with three entries of both games.
class UserPage : public TestWindow
{
public:
    explicit UserPage(const QStringList& names = {"Ann", "Bob"})
    {
        for (const QString& name : names)
            AddUser(users, name, 10);
        for (int number = 1; number <= 3 && !names.isEmpty(); ++number)
            AddEntry(entries, {number, 1, 1 + number % 2, {1, 2, 3, 4, 5, 6}, {}});
        OpenPage(3, 1);
    }

    void Select(int line)
    {
        auto* list = Find<QListWidget>("F11list");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(line)).center());
    }

    /// The mode, by the caption of the name, and what the boxes show.
    QString Shown() const { return TextsOf({"F11label2", "F11seluser", "F11spend", "F11entrycount"}); }
};

} // namespace

class UserDetailsPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// What was begun is dropped where another mode begins.
    void ModesShowTheUserOrWhatIsTyped()
    {
        UserPage page({"<i>Cid</i> & Co", "Ann", "Bob"});
        QCOMPARE(page.TextOf("F11label1"), QString("There are currently  3 users."));
        for (const char* button : {"F11edituser", "F11deleteuser"})
            QCOMPARE(page.Click(button, {QMessageBox::Ok}), {"Select a user first."});
        page.Find("F11list")->setFocus(Qt::TabFocusReason);
        const std::pair<std::function<void()>, QString> steps[] = {
            {[&] { page.Press("F11list", Qt::Key_Down); }, "Currently selected user|<i>Cid</i> & Co|10|3"},
            {[&] { page.Press("F11list", Qt::Key_Down); }, "Currently selected user|Ann|10|0"},
            {[&] { page.Type("F11seluser", "x"); }, "Currently selected user|Ann|10|0"},
            {[&] { page.Click("F11adduser"); }, "New users name|||"},
            {[&] { page.Type("F11seluser", "half a na"); }, "New users name|half a na||"},
            {[&] { page.Click("F11edituser"); }, "Updated users name|Ann|10|0"},
            {[&] { page.Type("F11seluser", "Bo"); }, "Updated users name|Bo|10|0"},
            {[&] { page.Click("F11edituser"); }, "Updated users name|Bo|10|0"},
            {[&] { page.Select(1); }, "Currently selected user|Ann|10|0"}};
        for (const auto& [step, shown] : steps) {
            step();
            QCOMPARE(page.Shown(), shown);
        }
    }

    void UsersAreAddedByKeyboard()
    {
        UserPage page((QStringList()));
        // Pages that need a user lead here.
        for (const auto& [group, suboption] : {std::pair(3, 2), {3, 3}, {3, 4}, {4, 1}}) {
            page.modals.WillPress(QMessageBox::Ok);
            page.OpenPage(group, suboption);
            QVERIFY(page.modals.TakeTexts().value(0).contains("created a user profile"));
            QCOMPARE(page.FocusedName(), QString("F11seluser"));
        }
        page.TypeInTurn("F11seluser", {"Ann", "10 lines"});
        QCOMPARE(page.FocusedName(), QString("F11storenu"));
        page.PressFocused(Qt::Key_Return);
        for (const char* name : {"Ann", "ann", "", "Cid"}) {
            page.Click("F11adduser");
            page.Type("F11seluser", name);
            if (name == "Ann"_L1) {
                QCOMPARE(page.Click("F11storenu", {QMessageBox::Ok}),
                         {"There is already a user with this name.\r\nTry another name and try again."});
                QCOMPARE(page.Shown(), QString("New users name|Ann||"));
            } else {
                page.Click("F11storenu");
            }
        }
        QCOMPARE(page.Shown(), QString("Currently selected user|||"));
        QCOMPARE(TestFolder::StoredRows("users"), (QStringList{"1,Ann,10", "2,ann,0", "3,,0", "4,Cid,0"}));
    }

    /// The limit may be as low as the number of entries, which is 3.
    void ChangesAreCheckedAndStored()
    {
        const QString tooLow = "This user already has more entries than you have specified as the maximum.\r\n"
                               "Change the maximum limit or delete some entries, then retry.";
        const QString taken = "This user name has already been used, please retry";
        for (const auto& [name, limit, stored, message] : {std::tuple("Ann", "3", "1,Ann,3", QString()),
                                                           {"Ann", "2", "1,Ann,10", tooLow},
                                                           {"Ann", "3.5", "1,Ann,3.5", {}},
                                                           {"ann", "10", "1,ann,10", {}},
                                                           {"", "10", "1,Ann,10", "Invalid user name, please retry."},
                                                           {"Bob", "10", "1,Ann,10", taken}}) {
            UserPage page;
            page.Select(0);
            page.Click("F11edituser");
            page.Type("F11spend", {});
            page.TypeInTurn("F11seluser", {name, limit});
            QCOMPARE(page.FocusedName(), QString("F11storech"));
            if (!message.isEmpty())
                page.modals.WillPress(QMessageBox::Ok);
            page.Click("F11storech");
            QCOMPARE(page.modals.TakeTexts().join(u'|'), message);
            QCOMPARE(page.Shown(), message.isEmpty() ? "Currently selected user|||"
                                                     : QString("Updated users name|%1|%2|3").arg(name, limit));
            QCOMPARE(TestFolder::StoredRows("users"), (QStringList{stored, "2,Bob,10"}));
        }
    }

    /// A name may be longer than its box takes; a limit reads back as the number that is stored.
    void WhatIsNotChangedStaysAsItIsStored()
    {
        const QString longName(40000, u'n');
        for (const double limit : {0.00001, 9007199254740992.0, 99999999999999999999.0, 0.1 + 0.2}) {
            UserPage page((QStringList()));
            AddUser(users, longName, limit);
            page.OpenPage(3, 1);
            page.Select(0);
            page.Click("F11edituser");
            page.Click("F11storech");
            users.MoveFirst();
            QVERIFY(ReadUser(users).name == longName && ReadUser(users).spendLimit == limit);
        }
    }

    void UserWhoWasGivenTheNumberOfAnotherOneIsNotTakenForThatOne()
    {
        const TestWindow window;
        StoreNewUser("Carl", 5);
        const UserRow carl = ReadAllUsers(users).at(0);
        DeleteUserWithEntries(carl);
        StoreNewUser("Dora", 5);
        StoreEntriesOfUser("Dora", {EntryRow{}}, {}, RaiseLimit::No);
        DeleteUserWithEntries(carl);
        const QString gone = "another copy of the program has deleted the user meanwhile";
        QCOMPARE(FailureOf([&] { StoreUserChanges(carl.mark, "Eve", 5); }).reason, gone);
        QCOMPARE(FailureOf([&] { StoreEntry(carl, {}); }).reason, gone);
        QCOMPARE(TestFolder::StoredRows("users"), QStringList{"1,Dora,5"});
        QCOMPARE(TestFolder::StoredNumbers("entries"), QString("1"));
        entries.MoveFirst();
        const Bookmark first = entries.Mark();
        DeleteEntries({first});
        StoreEntriesOfUser("Dora", {EntryRow{}}, {}, RaiseLimit::No);
        DeleteEntries({first});
        QCOMPARE(TestFolder::StoredNumbers("entries"), QString("1"));
    }

    void DeletionTakesTheUserAndItsEntriesOnly()
    {
        UserPage page({"Ann", "<b>Bob</b>"});
        AddEntry(entries, {9, 2, 1, {1, 2, 3, 4, 5, 6}, {}});
        page.Select(0);
        QCOMPARE(page.Click("F11deleteuser", {QMessageBox::No}),
                 {"Are you sure you want to delete this user\r\nand all entries stored with it?"});
        QCOMPARE(TestFolder::StoredNumbers("users"), QString("1 2"));
        page.Click("F11deleteuser", {QMessageBox::Yes});
        QCOMPARE(TestFolder::StoredNumbers("users") + u'|' + TestFolder::StoredNumbers("entries"), QString("2|9"));
        QCOMPARE(page.TextOf("F11label1"), QString("There is currently 1 user."));
        // A line of the list whose user is gone in another copy stands for nobody.
        RunSql(UserDataPath, {}, "DELETE FROM users");
        page.modals.WillPress(QMessageBox::Ok);
        page.Select(0);
        QTRY_VERIFY(page.modals.AllCame());
        const SeenBox box = page.modals.TakeSeen().value(0);
        QVERIFY(box.text.startsWith("The user could not be shown, because another copy"));
        QVERIFY(box.text.contains("<b>Bob</b>") && box.format == Qt::PlainText);
        QCOMPARE(page.TextOf("F11label1") + page.Shown(), QString("There are currently no users.New users name|||"));
    }
};

TAVENOR_TEST(UserDetailsPageTest)
#include "user_details_page_test.moc"
