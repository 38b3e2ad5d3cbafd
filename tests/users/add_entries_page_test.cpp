#include "support/test_window.h"

#include "builder/draw_day_window.h"

using namespace Qt::StringLiterals;

namespace {

const QString GoToUserDetails = u"\r\nGo to 'User Details' to change the spend limit, or choose another user."_s;
const QString UpToLimit = u"This user is up to the spend limit."_s + GoToUserDetails;
const QString NotStored = u"This user is up to the spend limit, so this entry has NOT been stored."_s + GoToUserDetails;
const QString Stored = u"This entry has been stored."_s;
const QString NoNumbers(5, u' ');

/// The page with two users, Ann with a limit and Bob with 10.
class AddPage : public TestWindow
{
public:
    explicit AddPage(int limit = 10)
    {
        AddUser(users, "Ann", limit);
        AddUser(users, "Bob", 10);
        OpenPage(3, 2);
    }

    void TypeEntry(const QString& numbers)
    {
        TypeInTurn("F18ent_1", numbers.split(u' '));
        Click("F18selallday");
    }

    QString Numbers() const { return TextsOf("F18ent", "123456"); }
};

} // namespace

class AddEntriesPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EntryIsStoredSorted()
    {
        for (const auto& [type, typed, sorted, colours] :
             {std::tuple(0, "40 3 17 25 9 33", "3 9 17 25 33 40", "#FFFFFF #FFFFFF #80FFFF #FF8080 #80FF80 #FFFF80"),
              {1, "30 2 15 7 21 2", "2 7 15 21 30 2", "#000080 #000080 #000080 #000080 #000080 #FF0000"}}) {
            AddPage page;
            QCOMPARE(page.TextsOf({"F18userdata_0", "F18userdata_1"}),
                     QString("This user has no entries stored.|Your limit is 10 entries."));
            page.Choose("F18type", type);
            page.TypeInTurn("F18ent_1", QString(typed).split(u' '));
            QCOMPARE(page.Click("F18store", {QMessageBox::Ok}),
                     QStringList{"You must specify at least ONE draw day. Please retry."});
            QCOMPARE(page.Numbers(), QString(sorted));
            QCOMPARE(page.ColoursOf("F18ball", "123456", QPalette::Window), QString(colours));
            page.Click("F18day_0");
            page.Click("F18day_6");
            QCOMPARE(page.Click("F18store", {QMessageBox::Ok}), QStringList{Stored});
            QCOMPARE(TestFolder::StoredRows("entries"),
                     QStringList{QString("1,1,%1,%2,-1,0,0,0,0,0,-1").arg(type + 1).arg(sorted).replace(u' ', u',')});
            QCOMPARE(page.Numbers(), NoNumbers);
            QCOMPARE(page.ColoursOf("F18ball", "16", QPalette::Window), QString("#404040 #404040"));
            QVERIFY(!page.Find<QCheckBox>("F18day_6")->isChecked());
            QCOMPARE(page.Find<QComboBox>("F18type")->currentIndex(), type);
            QCOMPARE(page.TextOf("F18userdata_0"), QString("This user has 1 entries stored."));
            QCOMPARE(page.FocusedName(), QString("F18ent_1"));
        }
    }

    void LimitIsKept()
    {
        AddPage page(1);
        page.TypeEntry("1 2 3 4 5 6");
        QCOMPARE(page.Click("F18store", {QMessageBox::Ok, QMessageBox::Ok}), (QStringList{Stored, UpToLimit}));
        page.TypeEntry("1 2 3 4 5 7");
        QCOMPARE(page.Click("F18store", {QMessageBox::Ok}), QStringList{NotStored});
        QCOMPARE(page.Numbers(), QString("1 2 3 4 5 7"));
        page.Choose("F18user", 1);
        QCOMPARE(page.Click("F18store", {QMessageBox::Ok}), QStringList{Stored});
        QCOMPARE(TestFolder::StoredRows("entries"),
                 (QStringList{"1,1,1,1,2,3,4,5,6,-1,-1,-1,-1,-1,-1,-1", "2,2,1,1,2,3,4,5,7,-1,-1,-1,-1,-1,-1,-1"}));
        page.modals.WillPress(QMessageBox::Ok);
        page.Choose("F18user", 0);
        QCOMPARE(page.modals.TakeTexts(), QStringList{UpToLimit});
    }

    /// What another copy does to the users meanwhile never leads an entry to the wrong user, to nobody, or over a
    /// limit.
    void AnotherCopysChangesAreNoticed()
    {
        AddPage page;
        page.Choose("F18user", 1);
        page.TypeEntry("1 2 3 4 5 6");
        for (const bool deletes : {false, true}) {
            InAnotherCopy(UserDataPath, {}, UsersTable(), [deletes](RecordSet& table) {
                table.MoveLast();
                deletes ? table.Delete() : ChangeUser(table, "Bob", 0);
            });
            const QString told = page.Click("F18store", {QMessageBox::Ok}).value(0);
            QVERIFY(told.startsWith(deletes ? "The entry could not be stored, because another copy"
                                            : "The entry could not be stored, because the user's spend limit"));
        }
        QCOMPARE(TestFolder::StoredRows("entries"), QStringList());
        QCOMPARE(page.Numbers(), QString("1 2 3 4 5 6"));
        page.Choose("F18user", 0);
        page.modals.WillPress(QMessageBox::Ok);
        page.Choose("F18user", 1);
        QVERIFY(page.modals.TakeTexts().value(0).startsWith("The user could not be chosen, because another copy"));
        QCOMPARE(page.Find<QComboBox>("F18user")->currentText(), QString("Ann"));
    }

    void OtherGameEmptiesTheBoxes()
    {
        AddPage page;
        const QString typed = "1 2 3 4 5 6";
        page.TypeEntry(typed);
        page.Choose("F18type", 0);
        QCOMPARE(page.Numbers(), typed);
        QVERIFY(page.Find<QCheckBox>("F18day_3")->isChecked());
        page.OpenPage(3, 2);
        QCOMPARE(page.Numbers(), typed);
        QVERIFY(!page.Find<QCheckBox>("F18day_3")->isChecked());
        page.Click("F18day_3");
        page.Choose("F18type", 1);
        QCOMPARE(page.Numbers(), NoNumbers);
        QVERIFY(!page.Find<QCheckBox>("F18day_3")->isChecked());
        QCOMPARE(page.TextOf("F18blab_6"), QString("Thunderball"));
        page.TypeEntry(typed);
        page.Click("F18reset");
        QCOMPARE(page.Numbers(), NoNumbers);
        QCOMPARE(page.FocusedName(), QString("F18ent_1"));
        page.TypeEntry(typed);
        page.OpenPage(3, 2);
        QCOMPARE(page.Numbers(), NoNumbers);
        QCOMPARE(page.TextOf("F18blab_6"), QString("Ball 6"));
    }

    void DrawDayWindowOffersStoreWithADayOnly()
    {
        const DaySet monday{true};
        DaySet days = monday;
        DrawDayWindow frmday(days, nullptr);
        frmday.show();
        auto* store = frmday.findChild<QWidget*>("store");
        for (const bool ticked : {true, false}) {
            frmday.findChild<QCheckBox*>("check1_1")->click();
            QCOMPARE(store->isVisible(), ticked);
        }
        PressIn(frmday, "selall");
        frmday.reject();
        QCOMPARE(days, monday);
        frmday.show();
        PressIn(frmday, "store");
        QCOMPARE(days, (DaySet{true, true, true, true, true, true, true}));
    }
};

TAVENOR_TEST(AddEntriesPageTest)
#include "add_entries_page_test.moc"
