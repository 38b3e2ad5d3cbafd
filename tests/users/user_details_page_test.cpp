#include "support/test_window.h"

using namespace Qt::StringLiterals;

namespace {

/// The modes of the page, each by its caption of the name.
constexpr const char* View = "Currently selected user";
constexpr const char* Add = "New users name";
constexpr const char* Edit = "Updated users name";

/// The page with users who have a limit of 10, the first of them with some entries of both games.
class UserPage : public TestWindow
{
public:
    explicit UserPage(const QStringList& names = {}, int entryCount = 0)
    {
        for (const QString& name : names)
            AddUser(users, name, 10);
        for (int i = 1; i <= entryCount; ++i)
            AddEntry(entries, {i, 1, 1 + i % 2, {1, 2, 3, 4, 5, 6}, {}});
        OpenPage(3, 1);
    }

    void Select(int line)
    {
        auto* list = Find<QListWidget>("F11list");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(line)).center());
    }

    QString Shown() const { return TextsOf({"F11seluser", "F11spend", "F11entrycount"}); }

    /// Whether the page is in this mode, with the keys where it is typed in.
    void CompareMode(const char* mode)
    {
        QCOMPARE(TextOf("F11label2"), QString(mode));
        QCOMPARE(Find<QLineEdit>("F11seluser")->isReadOnly(), mode == View);
        QCOMPARE(Find<QLineEdit>("F11spend")->isReadOnly(), mode == View);
        if (mode != View)
            QCOMPARE(FocusedName(), QString("F11seluser"));
    }
};

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
            QCOMPARE(window.modals.TakeTexts(), QStringList{"You cannot " + message});
            QVERIFY(window.IsShown("Frame_11") && !window.IsShown(page));
        }
    }

    void ListClickShowsTheUser()
    {
        UserPage page({"<i>Cid</i> & Co", "Ann", "Bob"}, 3);
        QCOMPARE(page.TextOf("F11label1"), QString("There are currently  3 users."));
        QCOMPARE(page.Find<QListWidget>("F11list")->item(0)->text(), QString("<i>Cid</i> & Co"));
        QCOMPARE(page.Shown(), QString("||"));
        page.Select(0);
        QCOMPARE(page.Shown(), QString("<i>Cid</i> & Co|10|3"));
        page.Press("F11list", Qt::Key_Down);
        QCOMPARE(page.Shown(), QString("Ann|10|0"));
        page.Click("F11adduser");
        page.CompareMode(Add);
        page.Type("F11seluser", "half a na");
        page.Click("F11edituser");
        page.CompareMode(Edit);
        QCOMPARE(page.Shown(), QString("Ann|10|0"));
        page.Type("F11seluser", "half a na");
        page.Click("F11edituser");
        QCOMPARE(page.TextOf("F11seluser"), QString("half a na"));
        page.Select(1);
        page.CompareMode(View);
        QCOMPARE(page.Shown(), QString("Ann|10|0"));
    }

    void UsersAreAddedByKeyboard()
    {
        UserPage page;
        page.CompareMode(Add);
        page.TypeInTurn("F11seluser", {"Ann", "10 lines"});
        QCOMPARE(page.FocusedName(), QString("F11storenu"));
        page.PressFocused(Qt::Key_Return);
        page.CompareMode(View);
        page.Click("F11adduser");
        page.Type("F11seluser", "Ann");
        QCOMPARE(page.Click("F11storenu", {QMessageBox::Ok}),
                 QStringList{"There is already a user with this name.\r\nTry another name and try again."});
        QCOMPARE(page.TextsOf({"F11label2", "F11seluser"}), QString(Add) + "|Ann");
        for (const char* name : {"ann", "", "Cid"}) {
            page.Click("F11adduser");
            page.Type("F11seluser", name);
            page.Click("F11storenu");
        }
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
                                                           {"Ann", "", "1,Ann,10", tooLow},
                                                           {"Ann", "3.5", "1,Ann,3.5", {}},
                                                           {"ann", "10", "1,ann,10", {}},
                                                           {"", "10", "1,Ann,10", "Invalid user name, please retry."},
                                                           {"Bob", "10", "1,Ann,10", taken}}) {
            UserPage page({"Ann", "Bob"}, 3);
            page.Select(0);
            page.Click("F11edituser");
            page.Type("F11spend", {});
            page.TypeInTurn("F11seluser", {name, limit});
            QCOMPARE(page.FocusedName(), QString("F11storech"));
            if (!message.isEmpty())
                page.modals.WillPress(QMessageBox::Ok);
            page.Click("F11storech");
            QCOMPARE(page.modals.TakeTexts().join(u'|'), message);
            QCOMPARE(page.TextOf("F11label2"), QString(message.isEmpty() ? View : Edit));
            QCOMPARE(TestFolder::StoredRows("users"), (QStringList{stored, "2,Bob,10"}));
        }
    }

    /// A name may be longer than its box takes; a limit reads back as the number that is stored.
    void WhatIsNotChangedStaysAsItIsStored()
    {
        for (const double limit : {0.00001, 9007199254740992.0, 99999999999999999999.0, 0.1 + 0.2})
            for (const QString changed : {"F11spend", "F11seluser"}) {
                const QString longName(40000, u'n');
                UserPage page({"Ann"});
                users.MoveFirst();
                ChangeUser(users, longName, limit);
                page.OpenPage(3, 1);
                page.Select(0);
                page.Click("F11edituser");
                page.Type(changed, "7");
                page.Click("F11storech");
                users.MoveFirst();
                const UserRow stored = ReadUser(users);
                QVERIFY(stored.name == (changed == "F11spend"_L1 ? longName : "7"));
                QVERIFY(stored.spendLimit == (changed == "F11spend"_L1 ? 7 : limit));
            }
    }

    /// Passing the list with the Tab key chooses nobody.
    void NothingSelectedIsTold()
    {
        UserPage page({"Ann", "Bob"});
        page.Press("F11spend", Qt::Key_Return);
        page.CompareMode(View);
        page.Click("F11adduser");
        page.Type("F11seluser", "Cid");
        page.Press("F11seluser", Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(page.FocusedName(), QString("F11list"));
        QCOMPARE(page.TextsOf({"F11label2", "F11seluser"}), QString(Add) + "|Cid");
        for (const char* button : {"F11edituser", "F11deleteuser"})
            QCOMPARE(page.Click(button, {QMessageBox::Ok}), QStringList{"Select a user first."});
    }

    void DeletionTakesTheUserAndItsEntriesOnly()
    {
        UserPage page({"Ann", "Bob"}, 3);
        AddEntry(entries, {9, 2, 1, {1, 2, 3, 4, 5, 6}, {}});
        page.Select(0);
        QCOMPARE(page.Click("F11deleteuser", {QMessageBox::No}),
                 QStringList{"Are you sure you want to delete this user\r\nand all entries stored with it?"});
        QCOMPARE(TestFolder::StoredNumbers("users"), QString("1 2"));
        // A refused change in between must not lead the deletion to another user.
        page.Click("F11edituser");
        page.Type("F11seluser", "Bob");
        page.Click("F11storech", {QMessageBox::Ok});
        page.Click("F11deleteuser", {QMessageBox::Yes});
        QCOMPARE(TestFolder::StoredRows("users"), QStringList{"2,Bob,10"});
        QCOMPARE(TestFolder::StoredNumbers("entries"), QString("9"));
        QCOMPARE(page.TextOf("F11label1"), QString("There is currently 1 user."));
    }

    /// A line of the list whose user is gone stands for nobody, not for the user shown before.
    void UserGoneInAnotherCopyIsNotMistakenForAnother()
    {
        UserPage page({"Ann", "<b>Bob</b>"}, 3);
        page.Select(0);
        InAnotherCopy(UserDataPath, {}, UsersTable(), [](RecordSet& table) {
            table.MoveLast();
            table.Delete();
        });
        page.modals.WillPress(QMessageBox::Ok);
        page.Select(1);
        QTRY_VERIFY(page.modals.AllCame());
        const SeenBox box = page.modals.TakeSeen().value(0);
        QVERIFY(box.text.startsWith("The user could not be shown, because another copy"));
        QVERIFY(box.text.contains("<b>Bob</b>") && box.format == Qt::PlainText);
        QCOMPARE(page.Find<QListWidget>("F11list")->count(), 1);
        QCOMPARE(page.Shown(), QString("||"));
        QCOMPARE(page.Click("F11deleteuser", {QMessageBox::Ok}), QStringList{"Select a user first."});
        QCOMPARE(TestFolder::StoredRows("users"), QStringList{"1,Ann,10"});
    }
};

TAVENOR_TEST(UserDetailsPageTest)
#include "user_details_page_test.moc"
