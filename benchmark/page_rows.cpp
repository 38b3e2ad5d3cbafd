#include "rows.h"

#include "bench_data.h"
#include "controls/page_frame.h"
#include "game/game.h"
#include "shell/main_window.h"
#include "store/draw_tables.h"
#include "store/open_databases.h"
#include "store/user_tables.h"
#include "walk.h"

#include <QApplication>
#include <QComboBox>
#include <QPushButton>
#include <QTextBlock>
#include <QTextEdit>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// The finished text of a report with its formats, for a text field of its own.
class FinishedText
{
public:
    explicit FinishedText(const QTextEdit& report)
    {
        copy.setReadOnly(true);
        copy.setTextInteractionFlags(report.textInteractionFlags());
        copy.setUndoRedoEnabled(false);
        copy.setFrameShape(QFrame::NoFrame);
        copy.setFont(report.font());
        copy.resize(report.size());
        copy.show();
        text = report.toPlainText();
        for (QTextBlock block = report.document()->begin(); block.isValid(); block = block.next())
            for (auto part = block.begin(); !part.atEnd(); ++part)
                if (part.fragment().charFormat().fontWeight() == QFont::Bold)
                    emphasised.emplace_back(part.fragment().position(), part.fragment().length());
    }

    double Show()
    {
        copy.clear();
        QApplication::processEvents();
        return Milliseconds([this] {
            QTextCharFormat bold;
            bold.setFontWeight(QFont::Bold);
            copy.setPlainText(text);
            QTextCursor cursor(copy.document());
            cursor.beginEditBlock();
            for (const auto& [start, length] : emphasised) {
                cursor.setPosition(start);
                cursor.setPosition(start + length, QTextCursor::KeepAnchor);
                cursor.setCharFormat(bold);
            }
            cursor.endEditBlock();
            QApplication::processEvents();
        });
    }

private:
    QTextEdit copy;
    QString text;
    std::vector<std::pair<int, int>> emphasised;
};

double ShowReport(MainWindow& window)
{
    window.findChild<QPushButton*>(u"F12clear"_s)->click();
    QApplication::processEvents();
    auto* check = window.findChild<QPushButton*>(u"F12check"_s);
    return Milliseconds([check] {
        check->click();
        QApplication::processEvents();
    });
}

Row CheckRow(MainWindow& window)
{
    window.ShowPage(12);
    ShowReport(window);
    const auto finished = std::make_shared<FinishedText>(*window.findChild<QTextEdit*>(u"F12text"_s));
    return {u"\"Check Now\", report shown"_s,
            {1.3, 1.3},
            [&window] {
                window.ShowPage(12);
                return ShowReport(window);
            },
            [finished] { return finished->Show(); }};
}

enum class Lists
{
    OnFile,
    InMemory
};

/// What a grid shows, and the number by which it finds its draw.
WalkedFields GridFields(const Game& game)
{
    WalkedFields fields{{DrawField::DrawId}, {DrawField::Date, DrawField::Day}};
    for (int slot = 0; slot < game.BallCount(); ++slot)
        fields.numbers.push_back(DrawField::FirstBall + slot);
    return fields;
}

Row GridsRow(MainWindow& window, Lists lists)
{
    const auto prepare = [lists] {
        if (lists == Lists::OnFile)
            OpenDatabaseFiles();
    };
    const bool onFile = lists == Lists::OnFile;
    return {onFile ? u"page 10 filled, lists read from the file"_s : u"page 10 filled again"_s,
            onFile ? Bounds{1.5, 1.5} : Bounds{2.2, 0.8},
            [&window, prepare] {
                PageFrame* page = window.Page(10);
                prepare();
                const double time = Milliseconds([page] { page->Prepare(); });
                QApplication::processEvents();
                return time;
            },
            [prepare] {
                prepare();
                return Milliseconds([] {
                    for (const Game* game : {&MainGame, &ThunderballGame})
                        Walk(DrawListOf(*game), GridFields(*game));
                });
            }};
}

/// Puts the file in which one user has many entries in the place of the other one for as long as it lives.
class FirstUserEntries
{
public:
    FirstUserEntries() { Use(ProgramDir / FirstUserFile); }
    ~FirstUserEntries() { Use(UserDataPath); }
    FirstUserEntries(const FirstUserEntries&) = delete;
    FirstUserEntries& operator=(const FirstUserEntries&) = delete;

private:
    static void Use(const std::filesystem::path& file)
    {
        UserDb.Open(file);
        users.Open(UserDb, UsersTable());
        entries.Open(UserDb, EntriesTable());
    }
};

Row EntriesRow(MainWindow& window)
{
    // Owner, game and numbers: what the list chooses by and shows.
    WalkedFields fields;
    for (int field = EntryField::EntryId; field < EntryField::Monday; ++field)
        fields.numbers.push_back(field);
    return {u"entries list of a user with 10,000 entries"_s,
            {1.4, 0.8},
            [&window] {
                const FirstUserEntries owned;
                window.ShowPage(13);
                auto* user = window.findChild<QComboBox*>(u"F13user"_s);
                const double time = Milliseconds([user] { Q_EMIT user->activated(0); });
                QApplication::processEvents();
                return time;
            },
            [fields] {
                const FirstUserEntries owned;
                entries.MoveFirst();
                return Milliseconds([&] { Walk(entries, fields); });
            }};
}

} // namespace

std::vector<Row> PageRows(MainWindow& window)
{
    return {CheckRow(window), GridsRow(window, Lists::OnFile), GridsRow(window, Lists::InMemory), EntriesRow(window)};
}
