#include "support/test_window.h"

#include "look/button.h"
#include "walk.h"

#include <QClipboard>
#include <QTextEdit>

#include <ctime>

using namespace Qt::StringLiterals;

namespace {

/// What a player, or a clipboard, may put into a field.
const QStringList Texts{
    "1e308",
    "NaN",
    QString::fromUtf8("٣"),
    QString(10000, u'9'),
    "\t1 7\n2",
    "<b>8</b><img src=x onerror=y>",
    "'\"; DROP TABLE users; --",
    QString::fromUtf8("\u202e12\u202c"),
    QString::fromUtf8("5\u0301\u0301 A\u030a"),
    QString::fromUtf8("\U0001F3B1 \u0007\u001b[31m"),
    "%1 %n & && \\n {}",
    QString(32767, u'W'),
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

} // namespace

class HostileTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryFieldOfEveryPageTakesItAndNamesAreShownAsTyped()
    {
        TestWindow window;
        StoreRows();
        window.modals.WillAlwaysDo([](QDialog& dialog) { dialog.close(); });
        int fed = 0;
        for (const Stop& stop : Stops())
            for (const QString& text : Texts) {
                GoTo(window.Window(), stop);
                QApplication::clipboard()->setText(text);
                const int before = fed;
                for (auto* field : window.Window().findChildren<QLineEdit*>())
                    if (field->isVisible() && !field->isReadOnly() && field->isEnabled()) {
                        field->setFocus();
                        field->selectAll();
                        field->paste();
                        QTest::keyClick(field, Qt::Key_Return);
                        ++fed;
                    }
                if (fed == before)
                    break;
                for (auto* button : window.Window().findChildren<Button*>())
                    if (button->isVisible() && button->property(AccentProperty).toBool())
                        window.Click(button->objectName());
            }
        qInfo("%d fields fed", fed);
        QVERIFY(fed > 500);
        QStringList names;
        for (const UserRow& user : ReadAllUsers(users)) {
            names.append(user.name);
            AddEntry(entries, {entries.NextNumber(), user.number, 1, {1, 2, 3, 4, 5, 6}, {0, 0, 0, 0, 0, 1}});
        }
        window.OpenPage(3, 4);
        window.Click("F12check");
        const QString report = window.Find<QTextEdit>("F12text")->toPlainText();
        for (const QString& text : Texts)
            QVERIFY2(names.contains(text) && report.contains(text), qPrintable(text.left(80)));
        // Every label shows its words as they are.
        for (const QLabel* label : window.Window().findChildren<QLabel*>())
            QVERIFY2(label->textFormat() == Qt::PlainText || !label->pixmap().isNull(),
                     qPrintable(label->objectName()));
        QCOMPARE(TestFolder::StoredRows("ukmain"), QStringList{"1,2000-01-01,Sat,1,2,3,4,5,6,7,ARTHUR,1"});
    }

    void LongestTextOfAFileTakesNoTimeAndNoRoom()
    {
        const TestFolder files(TestFolder::Content::Empty);
        OpenDatabaseFiles();
        StoreRows();
        links.AddNew();
        links.Update();
        // Dates, days, machines and sets of balls; names; numbers and days of entries; all of a link.
        for (const auto& [table, fields] : {std::pair(&ukmain, std::vector{1, 2, 10, 11}),
                                            {&ukthunder, {1, 2}},
                                            {&users, {1}},
                                            {&entries, {3, 9}},
                                            {&links, {0, 1, 2, 3, 4}}}) {
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
