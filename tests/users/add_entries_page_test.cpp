#include "support/test_window.h"

#include "builder/draw_day_window.h"

using namespace Qt::StringLiterals;

namespace {

const QString UpToLimit = u"This user is up to the spend limit.\r\nGo to 'User Details' to change the spend "
                          u"limit, or choose another user."_s;
const QString NotStored =
    u"This user is up to the spend limit, so this entry has NOT been stored.\r\nGo to 'User Details' to "
    u"change the spend limit, or choose another user."_s;
const QString Stored = u"This entry has been stored."_s;
const QString NoDay = u"You must specify at least ONE draw day. Please retry."_s;

/// Stores users with their limits and opens the page.
void Open(TestWindow& window, const QList<std::pair<QString, int>>& newUsers = {})
{
    for (const auto& [name, limit] : newUsers)
        AddUser(users, name, limit);
    window.OpenPage(3, 2);
}

QString Numbers(const TestWindow& window)
{
    return window.TextsOf("F18ent", "123456");
}

void CompareColours(const TestWindow& window, const QString& colours)
{
    QCOMPARE(window.ColoursOf("F18ent", "123456", QPalette::Base), colours);
    QCOMPARE(window.ColoursOf("F18ball", "123456", QPalette::Window), colours);
}

const QString NoNumbers(5, u' ');

} // namespace

class AddEntriesPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EntryIsStoredSorted()
    {
        const QString grey = "#404040 #404040 #404040 #404040 #404040 #404040";
        for (const auto& [type, typed, sorted, colours] :
             {std::tuple(0, "40 3 17 25 9 33", "3 9 17 25 33 40", "#FFFFFF #FFFFFF #80FFFF #FF8080 #80FF80 #FFFF80"),
              {1, "30 2 15 7 21 2", "2 7 15 21 30 2", "#000080 #000080 #000080 #000080 #000080 #FF0000"}}) {
            TestWindow window;
            Open(window, {{"Ann", 10}});
            QCOMPARE(window.TextsOf({"F18userdata_0", "F18userdata_1", "F18userdata_2"}),
                     QString("This user has no entries stored.|Your limit is 10 entries.|"
                             "To alter limit, goto \"User Details\""));
            window.Choose("F18type", type);
            QCOMPARE(window.TextOf("F18blab_6"), type == 0 ? QString("Ball 6") : QString("Thunderball"));
            window.TypeInTurn("F18ent_1", QString(typed).split(u' '));
            QCOMPARE(window.FocusedName(), QString("F18store"));
            QCOMPARE(window.Click("F18store", {QMessageBox::Ok}), QStringList{NoDay});
            QCOMPARE(Numbers(window), QString(sorted));
            CompareColours(window, colours);
            window.Click("F18day_0");
            window.Click("F18day_6");
            QCOMPARE(window.Click("F18store", {QMessageBox::Ok}), QStringList{Stored});
            QCOMPARE(TestFolder::StoredRows("entries"),
                     QStringList{QString("1,1,%1,%2,-1,0,0,0,0,0,-1").arg(type + 1).arg(sorted).replace(u' ', u',')});
            QCOMPARE(Numbers(window), NoNumbers);
            CompareColours(window, grey);
            QVERIFY(!window.Find<QCheckBox>("F18day_6")->isChecked());
            QCOMPARE(window.Find<QComboBox>("F18type")->currentIndex(), type);
            QCOMPARE(window.TextOf("F18userdata_0"), QString("This user has 1 entries stored."));
        }
    }

    void LimitIsKept()
    {
        TestWindow window;
        Open(window, {{"Ann", 1}, {"Bob", 5}});
        window.TypeInTurn("F18ent_1", {"1", "2", "3", "4", "5", "6"});
        window.Click("F18selallday");
        QCOMPARE(window.Click("F18store", {QMessageBox::Ok, QMessageBox::Ok}), (QStringList{Stored, UpToLimit}));
        window.TypeInTurn("F18ent_1", {"1", "2", "3", "4", "5", "7"});
        window.Click("F18selallday");
        QCOMPARE(window.Click("F18store", {QMessageBox::Ok}), QStringList{NotStored});
        QCOMPARE(Numbers(window), QString("1 2 3 4 5 7"));
        window.Choose("F18user", 1);
        QCOMPARE(window.Click("F18store", {QMessageBox::Ok}), QStringList{Stored});
        QCOMPARE(TestFolder::StoredRows("entries"),
                 (QStringList{"1,1,1,1,2,3,4,5,6,-1,-1,-1,-1,-1,-1,-1", "2,2,1,1,2,3,4,5,7,-1,-1,-1,-1,-1,-1,-1"}));
        window.modals.WillPress(QMessageBox::Ok);
        window.Choose("F18user", 0);
        QCOMPARE(window.modals.TakeTexts(), QStringList{UpToLimit});
    }

    /// What another copy does to the users meanwhile never leads an entry to the wrong user, to nobody, or over a
    /// limit.
    void AnotherCopysChangesAreNoticed()
    {
        TestWindow window;
        Open(window, {{"Ann", 10}, {"Bob", 10}});
        window.Choose("F18user", 1);
        window.TypeInTurn("F18ent_1", {"1", "2", "3", "4", "5", "6"});
        window.Click("F18selallday");
        for (const bool deletes : {false, true}) {
            InAnotherCopy(UserDataPath, {}, UsersTable(), [deletes](RecordSet& table) {
                table.MoveLast();
                deletes ? table.Delete() : ChangeUser(table, "Bob", 0);
            });
            const QString told = window.Click("F18store", {QMessageBox::Ok}).value(0);
            QVERIFY(told.startsWith(deletes ? "The entry could not be stored, because another copy"
                                            : "The entry could not be stored, because the user's spend limit"));
        }
        QCOMPARE(TestFolder::StoredRows("entries"), QStringList());
        QCOMPARE(Numbers(window), QString("1 2 3 4 5 6"));
        window.Choose("F18user", 0);
        window.modals.WillPress(QMessageBox::Ok);
        window.Choose("F18user", 1);
        QVERIFY(window.modals.TakeTexts().value(0).startsWith("The user could not be chosen, because another copy"));
        QCOMPARE(window.Find<QComboBox>("F18user")->currentText(), QString("Ann"));
    }

    void OtherGameEmptiesTheBoxes()
    {
        TestWindow window;
        Open(window, {{"Ann", 10}});
        const QString typed = "1 2 3 4 5 6";
        window.TypeInTurn("F18ent_1", typed.split(u' '));
        window.Click("F18selallday");
        window.Find<QComboBox>("F18type")->activated(0);
        QCOMPARE(Numbers(window), typed);
        QVERIFY(window.Find<QCheckBox>("F18day_3")->isChecked());
        Open(window);
        QCOMPARE(Numbers(window), typed);
        QVERIFY(!window.Find<QCheckBox>("F18day_3")->isChecked());
        window.Choose("F18type", 1);
        QCOMPARE(Numbers(window), NoNumbers);
        window.TypeInTurn("F18ent_1", typed.split(u' '));
        window.Click("F18reset");
        QCOMPARE(Numbers(window), NoNumbers);
        QCOMPARE(window.FocusedName(), QString("F18ent_1"));
        window.TypeInTurn("F18ent_1", typed.split(u' '));
        Open(window);
        QCOMPARE(Numbers(window), NoNumbers);
        QCOMPARE(window.TextOf("F18blab_6"), QString("Ball 6"));
    }

    void DrawDayWindowOffersStoreWithADayOnly()
    {
        DaySet days{true, false, false, false, false, false, false};
        DrawDayWindow frmday(days, nullptr);
        frmday.show();
        auto* store = frmday.findChild<QWidget*>("store");
        auto* tuesday = frmday.findChild<QCheckBox*>("check1_1");
        QCOMPARE(frmday.windowTitle(), QString("Tavenor 3 --- Select Draw Day"));
        QVERIFY(!store->isVisible());
        tuesday->click();
        QVERIFY(store->isVisible());
        tuesday->click();
        QVERIFY(!store->isVisible());
        PressIn(frmday, "selall");
        frmday.reject();
        QCOMPARE(days, (DaySet{true, false, false, false, false, false, false}));
        frmday.show();
        PressIn(frmday, "store");
        QCOMPARE(days, (DaySet{true, true, true, true, true, true, true}));
    }
};

TAVENOR_TEST(AddEntriesPageTest)
#include "add_entries_page_test.moc"
