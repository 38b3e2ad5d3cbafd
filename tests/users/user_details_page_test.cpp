#include "support/test_window.h"

using namespace Qt::StringLiterals;

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
    void PagesThatNeedAUserLeadHere()
    {
        const QString missing = " until you have created a user profile.";
        const QString missingForCheck = " until you have\r\ncreated a user profile and created entries.";
        for (const auto& [group, suboption, page, message] : {std::tuple(3, 2, "Frame_18", "store entries" + missing),
                                                              {3, 3, "Frame_13", "view or edit entries" + missing},
                                                              {3, 4, "Frame_12", "check entries" + missingForCheck},
                                                              {4, 1, "Frame_26", "store entries" + missing}}) {
            TestWindow window;
            window.modals.WillPress(QMessageBox::Ok);
            window.OpenPage(group, suboption);
            const SeenBox box = window.modals.TakeSeen().value(0);
            QCOMPARE(box.text, "You cannot " + message);
            QCOMPARE(box.title, QString("Tavenor 3"));
            QCOMPARE(box.icon, QMessageBox::NoIcon);
            QVERIFY(window.IsShown("Frame_11") && !window.IsShown(page));
        }
    }

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
        const QStringList fields{"F11seluser", "F11spend", "F11entrycount"};
        QCOMPARE(window.TextsOf(fields), QString("Ann|10|3"));
        window.Press("F11list", Qt::Key_Down);
        QCOMPARE(window.TextsOf(fields), QString("Bob|10|0"));
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
    }

    void ChangesAreCheckedAndStored()
    {
        const QString tooLow = "This user already has more entries than you have specified as the maximum.\r\n"
                               "Change the maximum limit or delete some entries, then retry.";
        const QString taken = "This user name has already been used, please retry";
        // The limit may be as low as the number of entries, which is 3.
        for (const auto& [name, limit, stored, message] : {std::tuple("Ann", "3", "1,Ann,3", QString()),
                                                           {"Ann", "2", "1,Ann,10", tooLow},
                                                           {"Ann", "", "1,Ann,10", tooLow},
                                                           {"Ann", "3.5", "1,Ann,3.5", {}},
                                                           {"ann", "10", "1,ann,10", {}},
                                                           {"", "10", "1,Ann,10", "Invalid user name, please retry."},
                                                           {"Bob", "10", "1,Ann,10", taken}}) {
            TestWindow window;
            OpenWith(window, {"Ann", "Bob"}, 3);
            Select(window, 0);
            window.Click("F11edituser");
            CompareMode(window, Edit);
            QCOMPARE(window.FocusedName(), QString("F11seluser"));
            window.Type("F11spend", {});
            window.TypeInTurn("F11seluser", {name, limit});
            QCOMPARE(window.FocusedName(), QString("F11storech"));
            if (!message.isEmpty())
                window.modals.WillPress(QMessageBox::Ok);
            window.Click("F11storech");
            QCOMPARE(window.modals.TakeTexts().join(u'|'), message);
            CompareMode(window, message.isEmpty() ? View : Edit);
            QCOMPARE(TestFolder::StoredRows("users"), (QStringList{stored, "2,Bob,10"}));
        }
    }

    /// A name may be longer than its box takes, and a limit finer than its box shows.
    void WhatIsNotChangedStaysAsItIsStored()
    {
        for (const double limit : {0.00001, 9007199254740992.0, 99999999999999999999.0, 0.1 + 0.2}) {
            const QString longName(40000, u'n');
            TestWindow window;
            AddUser(users, longName, limit);
            for (const char* changed : {"F11spend", "F11seluser"}) {
                window.OpenPage(3, 1);
                Select(window, 0);
                window.Click("F11edituser");
                window.Find<QLineEdit>(changed)->setText("7");
                window.Click("F11storech");
                users.MoveFirst();
                const UserRow stored = ReadUser(users);
                if (changed == "F11spend"_L1) {
                    QVERIFY(stored.name == longName && stored.spendLimit == 7);
                    users.Edit();
                    users.SetField(UserField::SpendLimit, limit);
                    users.Update();
                } else {
                    QVERIFY(stored.name == "7"_L1 && stored.spendLimit == limit);
                }
            }
        }
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
        OpenWith(window, {"Ann", "<b>Bob</b>"}, 3);
        Select(window, 0);
        InAnotherCopy(UserDataPath, {}, UsersTable(), [](RecordSet& table) {
            table.MoveLast();
            table.Delete();
        });
        window.modals.WillPress(QMessageBox::Ok);
        Select(window, 1);
        QTRY_VERIFY(window.modals.AllCame());
        const SeenBox box = window.modals.TakeSeen().value(0);
        QVERIFY(box.text.startsWith("The user could not be shown, because another copy"));
        QVERIFY(box.text.contains("<b>Bob</b>") && box.format == Qt::PlainText);
        QCOMPARE(window.Find<QListWidget>("F11list")->count(), 1);
        QCOMPARE(window.TextOf("F11seluser"), QString());
        QCOMPARE(window.Click("F11deleteuser", {QMessageBox::Ok}), QStringList{"Select a user first."});
        QCOMPARE(TestFolder::StoredRows("users"), QStringList{"1,Ann,10"});
    }
};

TAVENOR_TEST(UserDetailsPageTest)
#include "user_details_page_test.moc"
