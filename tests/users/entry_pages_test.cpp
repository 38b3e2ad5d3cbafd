#include "support/grid_driver.h"
#include "support/raw_file.h"

namespace {

const QString UpToLimit = u"This user is up to the spend limit%1\r\n"
                          u"Go to 'User Details' to change the spend limit, or choose another user."_s;

/// A page of entries with Ann, who has two entries of each game, the second with zeros, and Bob, who has a Main entry.
class EntryPages : public TestWindow
{
public:
    explicit EntryPages(int suboption, double limit = 10)
    {
        AddUser(users, "Ann", limit);
        AddUser(users, "Bob", 10);
        int number = 0;
        for (const auto& [user, game, numbers] : {std::tuple(1, 1, EntryNumbers{3, 15, 22, 38, 41, 49}),
                                                  {1, 1, {0, 15, 22, 38, 41, 49}},
                                                  {1, 2, {3, 15, 22, 30, 34, 14}},
                                                  {1, 2, {0, 15, 22, 30, 34, 0}},
                                                  {2, 1, {1, 2, 3, 4, 5, 6}}})
            AddEntry(entries, {++number, user, game, numbers, {true, false, false, false, false, false, true}});
        OpenPage(3, suboption);
    }

    GridDriver Grid() { return {*this, "F13grid"}; }

    void TypeEntry(const QString& numbers)
    {
        TypeInTurn("F18ent_1", numbers.split(u' '));
        Click("F18selallday");
    }

    /// The numbers on the page that adds, and whether Thursday is ticked.
    QString Added() const
    {
        return TextsOf("F18ent", "123456") + (Find<QCheckBox>("F18day_3")->isChecked() ? " Thursday" : "");
    }
};

} // namespace

class EntryPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ListsTheEntriesOfOneUserAndGame()
    {
        EntryPages window(3);
        const GridDriver grid = window.Grid();
        for (const auto& [key, option, lastHeading, rows] :
             {std::tuple(Qt::Key_Up, "main", "Ball 6", "1,1,3,15,22,38,41,49 2,2,0,15,22,38,41,49"),
              {Qt::Key_Up, "thunder", "Thunder", "3,1,3,15,22,30,34,14 4,2,0,15,22,30,34,0"},
              {Qt::Key_Down, "thunder", "Thunder", ""},
              {Qt::Key_Down, "main", "Ball 6", "5,1,1,2,3,4,5,6"}}) {
            window.Press("F13user", key);
            window.Click(QString("F13type") + option);
            QStringList listed;
            for (int row = 0; row < grid.Rows(); ++row)
                listed.append(grid.Row(row));
            QCOMPARE(listed.join(u' '), QString(rows));
            QCOMPARE(grid.view->model()->headerData(7, Qt::Horizontal).toString(), QString(lastHeading));
            QVERIFY(window.IsShown("F13grid") == !listed.isEmpty());
            QVERIFY(window.IsShown("F13noentries") == listed.isEmpty());
        }
        // The entries of the user chosen before do not stand in for those of one whom another copy has deleted.
        RunSql(UserDataPath, {}, "DELETE FROM users WHERE UserId = 1");
        window.Press("F13user", Qt::Key_Up);
        QVERIFY(!window.IsShown("F13grid") && window.IsShown("F13noentries"));
    }

    /// With Yes the boxes are checked before the changes are stored.
    void BackAsksWhetherToSave()
    {
        const QString range = u"Ball values must be between 1 and 49"_s;
        for (const auto& [typed, answer, told, row] :
             {std::tuple("", QMessageBox::Cancel, QString(), "3,15,22,38,41,49"),
              {"", QMessageBox::No, {}, "3,15,22,38,41,49"},
              {"", QMessageBox::Yes, u"The changes have been stored."_s, "0,3,15,22,38,41"},
              {"-5", QMessageBox::Yes, range, "3,15,22,38,41,49"}}) {
            EntryPages window(3);
            window.Click("F13edit");
            window.Find<QLineEdit>("F20num_6")->setText(typed);
            window.modals.WillPress(answer);
            if (!told.isEmpty())
                window.modals.WillPress(QMessageBox::Ok);
            window.Click("F20back");
            QCOMPARE(window.modals.TakeTexts().mid(1).join(u'|'), told);
            QCOMPARE(window.IsShown("Frame_20"), told == range || answer == QMessageBox::Cancel);
            QCOMPARE(TestFolder::StoredRows("entries").value(0).section(u',', 3, 8), QString(row));
        }
    }

    void StoredZeroHasItsColourAndIsLeftWithoutAWord()
    {
        EntryPages window(3);
        window.Grid().Click(1);
        window.Click("F13edit");
        window.PressFocused(Qt::Key_Tab);
        QCOMPARE(window.FocusedName(), QString("F20num_2"));
        QCOMPARE(window.ColoursOf("F20ball", "1", QPalette::Window), QString("#FFFFFF"));
    }

    void LimitIsKept()
    {
        EntryPages window(2, 5);
        window.TypeEntry("1 2 3 4 5 6");
        QCOMPARE(window.Click("F18store", {QMessageBox::Ok, QMessageBox::Ok}),
                 (QStringList{"This entry has been stored.", UpToLimit.arg(".")}));
        window.TypeEntry("1 2 3 4 5 7");
        QCOMPARE(window.Click("F18store", {QMessageBox::Ok}), {UpToLimit.arg(", so this entry has NOT been stored.")});
        window.Choose("F18user", 1);
        window.Click("F18store", {QMessageBox::Ok});
        QCOMPARE(TestFolder::StoredRows("entries").mid(5),
                 (QStringList{"6,1,1,1,2,3,4,5,6,-1,-1,-1,-1,-1,-1,-1", "7,2,1,1,2,3,4,5,7,-1,-1,-1,-1,-1,-1,-1"}));
        // What another copy does to the users never leads an entry to the wrong user, to nobody, or over a limit.
        window.TypeEntry("1 2 3 4 5 8");
        for (const auto& [change, told] :
             {std::pair("UPDATE users SET SpendLimit = 2 WHERE UserId = 2", "the user's spend limit"),
              {"DELETE FROM users WHERE UserId = 2", "another copy"}}) {
            RunSql(UserDataPath, {}, change);
            QVERIFY(window.Click("F18store", {QMessageBox::Ok})
                        .value(0)
                        .startsWith(QString("The entry could not be stored, because ") + told));
        }
        QCOMPARE(TestFolder::StoredNumbers("entries"), QString("1 2 3 4 5 6 7"));
        QCOMPARE(window.Added(), QString("1 2 3 4 5 8 Thursday"));
        window.modals.WillPress(QMessageBox::Ok);
        window.modals.WillPress(QMessageBox::Ok);
        window.Choose("F18user", 1);
        QVERIFY(window.modals.TakeTexts().value(1).startsWith("The user could not be chosen, because another copy"));
        QCOMPARE(window.Find<QComboBox>("F18user")->currentText(), QString("Ann"));
    }

    void OtherGameEmptiesTheBoxes()
    {
        EntryPages window(2);
        const QString typed = "1 2 3 4 5 6";
        const QString empty(5, u' ');
        const std::pair<std::function<void()>, QString> steps[] = {
            {[&] { window.TypeEntry(typed); }, typed + " Thursday|Ball 6"},
            {[&] { window.OpenPage(3, 2); }, typed + "|Ball 6"},
            {[&] { window.Click("F18day_3"); }, typed + " Thursday|Ball 6"},
            {[&] { window.Choose("F18type", 1); }, empty + "|Thunderball"},
            {[&] { window.TypeEntry(typed); }, typed + " Thursday|Thunderball"},
            {[&] { window.Click("F18clearday"); }, typed + "|Thunderball"},
            {[&] { window.Click("F18reset"); }, empty + "|Thunderball"}};
        for (const auto& [step, shown] : steps) {
            step();
            QCOMPARE(window.Added() + u'|' + window.TextOf("F18blab_6"), shown);
        }
        QCOMPARE(window.FocusedName(), QString("F18ent_1"));
    }
};

TAVENOR_TEST(EntryPagesTest)
#include "entry_pages_test.moc"
