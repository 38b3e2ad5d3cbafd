#include "support/test_window.h"

#include "look/button.h"
#include "walk.h"

#include <QClipboard>
#include <QLabel>
#include <QTextEdit>

#include <cfloat>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

/// What a player, or a clipboard, may put into a field, and the number that it stands for.
const QList<std::pair<QString, double>> Texts{
    {"1e308", 1},
    {"NaN", 0},
    {"-inf", 0},
    {"0x10", 0},
    {QString::fromUtf8("٣"), 0},
    {QString(10000, u'9'), DBL_MAX},
    {"\t1 7\n2", 17},
    {"<b>8</b><img src=x onerror=y>", 0},
    {"'\"; DROP TABLE users; --", 0},
    {QString::fromUtf8("\u202e12\u202c"), 0},
    {QString::fromUtf8("5\u0301\u0301 A\u030a"), 5},
    {QString::fromUtf8("\U0001F3B1 \u0007\u001b[31m"), 0},
    {"%1 %n & && \\n {}", 0},
    {QString(32767, u'W'), 0},
};

/// Draws, and a user with entries of both games.
void StoreRows()
{
    StoreDraws(MainGame, {"2000-01-01,1,2,3,4,5,6,7,ARTHUR,1"});
    StoreDraws(ThunderballGame, {"2000-01-01,1,2,3,4,5,6"});
    AddUser(users, "Ann", 900);
    for (int game = 1; game <= 2; ++game)
        AddEntry(entries, {game, 1, game, {1, 2, 3, 4, 5, 6}, {true, true, true, true, true, true, true}});
}

/// The window with these rows; further windows are closed when they come.
class Pages : public TestWindow
{
public:
    Pages()
    {
        StoreRows();
        for (int page = 0; page <= 26; ++page)
            Window().Page(page);
        modals.WillAlwaysDo([](QDialog& dialog) { dialog.close(); });
    }

    /// Goes to a page; of the generator, also to the step in which a text is typed.
    void Open(const Stop& stop)
    {
        GoTo(Window(), stop);
        if (auto* list = Find<QComboBox>("F26combo_0"); list->isVisible())
            for (const char* name : {"F26combo_0", "F26combo_1"}) {
                Find<QComboBox>(name)->setCurrentIndex(0);
                Q_EMIT Find<QComboBox>(name)->activated(0);
            }
    }

    void Paste(QLineEdit* field, const QString& text)
    {
        QApplication::clipboard()->setText(text);
        field->setFocus();
        field->selectAll();
        field->paste();
        Settle();
    }
};

} // namespace

class HostileTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryFieldOfEveryPageTakesIt()
    {
        Pages pages;
        int fed = 0;
        for (const Stop& stop : Stops())
            for (const auto& [text, number] : Texts) {
                pages.Open(stop);
                const int before = fed;
                for (auto* field : pages.Window().findChildren<QLineEdit*>())
                    if (field->isVisible() && !field->isReadOnly() && field->isEnabled()) {
                        pages.Paste(field, text);
                        QTest::keyClick(field, Qt::Key_Return);
                        ++fed;
                    }
                if (fed == before)
                    break;
                for (auto* button : pages.Window().findChildren<Button*>())
                    if (button->isVisible() && button->property(AccentProperty).toBool())
                        pages.Click(button->objectName());
            }
        qInfo("%d fields fed", fed);
        QVERIFY(fed > 500);
        // Every label shows its words as they are.
        for (const QLabel* label : pages.Window().findChildren<QLabel*>())
            QVERIFY2(label->textFormat() == Qt::PlainText || !label->pixmap().isNull(),
                     qPrintable(label->objectName()));
        for (const QString& row : TestFolder::StoredRows("ukmain"))
            QCOMPARE(row, QString("1,2000-01-01,Sat,1,2,3,4,5,6,7,ARTHUR,1"));
        // The generator has added others.
        for (const QString& row : TestFolder::StoredRows("entries").first(2))
            QVERIFY(row.section(u',', 3, 8) == "1,2,3,4,5,6");
        QCOMPARE(TestFolder::StoredRows("ukthunder").size(), 1);
    }

    void NameIsShownAsTypedAndNumberReadByTheOneRule()
    {
        Pages pages;
        QStringList names{"Ann"};
        for (const auto& [text, number] : Texts) {
            pages.Open({"", 3, 1, "F11adduser"});
            pages.Paste(pages.Find<QLineEdit>("F11seluser"), text);
            pages.Paste(pages.Find<QLineEdit>("F11spend"), text);
            names.append(pages.TextOf("F11seluser"));
            pages.Click("F11storenu");
            users.MoveLast();
            const UserRow stored = ReadUser(users);
            QCOMPARE(stored.name, text.left(stored.name.size() == 32767 ? 32767 : -1));
            QCOMPARE(stored.spendLimit, number);
            AddEntry(entries, {entries.NextNumber(), stored.number, 1, {1, 2, 3, 4, 5, 6}, {0, 0, 0, 0, 0, 1}});
        }
        QStringList listed;
        pages.Open({"", 3, 1});
        for (int row = 0; row < pages.Find<QListWidget>("F11list")->count(); ++row)
            listed.append(pages.Find<QListWidget>("F11list")->item(row)->text());
        QCOMPARE(listed, names);
        for (const auto& [stop, list] : {std::pair(Stop{"", 3, 2}, "F18user"),
                                         {{"", 3, 3}, "F13user"},
                                         {{"", 4, 1}, "F26combo_0"},
                                         {{"", 3, 4}, "F12user"}}) {
            pages.Open(stop);
            const int first = list == "F12user"_L1 ? 1 : 0;
            for (int row = 0; row < names.size(); ++row)
                QCOMPARE(pages.Find<QComboBox>(list)->itemText(row + first), names[row]);
        }
        pages.Click("F12check");
        const QString report = pages.Find<QTextEdit>("F12text")->toPlainText();
        for (const QString& name : names)
            QVERIFY2(report.contains(name), qPrintable(name.left(80)));
    }

    void LongestTextOfAFileTakesNoTimeAndNoRoom()
    {
        const TestFolder files(TestFolder::Content::Empty);
        OpenDatabaseFiles();
        StoreRows();
        // Dates, days, machines and sets of balls; names; numbers and days of entries.
        for (const auto& [table, fields] :
             {std::pair(&ukmain, std::vector{1, 2, 10, 11}), {&ukthunder, {1, 2}}, {&users, {1}}, {&entries, {3, 9}}}) {
            // A row has room for no more than a million characters.
            const std::string longest(999'000 / fields.size(), 'W');
            table->MoveFirst();
            table->Edit();
            for (const int field : fields)
                table->SetField(field, std::string_view(longest));
            table->Update();
        }
        ukmainlist.Requery();
        ukthunderlist.Requery();
        MainWindow window;
        window.show();
        std::clock_t before = std::clock();
        const Walk walk(window, [&](const QString& name, QWidget& shown) {
            const double seconds = double(std::clock() - std::exchange(before, std::clock())) / CLOCKS_PER_SEC;
            const int width = qMax(shown.width(), shown.minimumSizeHint().width());
            QVERIFY2(seconds < 2 && width <= 1024,
                     qPrintable(QString("%1: %2 s, %3 wide").arg(name).arg(seconds).arg(width)));
        });
        walk.EverythingElse();
    }
};

TAVENOR_TEST(HostileTextTest)
#include "hostile_text_test.moc"
