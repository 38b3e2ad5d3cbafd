#include "utilities/advanced_window.h"

#include "base/failure.h"
#include "controls/card.h"
#include "controls/guard.h"
#include "controls/label.h"
#include "controls/message_box.h"
#include "look/button.h"
#include "look/theme.h"
#include "store/open_databases.h"
#include "utilities/backup.h"
#include "utilities/database_file.h"
#include "utilities/file_dialog.h"
#include "utilities/import.h"
#include "utilities/start_up.h"

#include <QFile>
#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

const QString LabelArray = u"Label"_s;

std::filesystem::path PathOf(const QString& chosen)
{
    return QFile::encodeName(chosen).toStdString();
}

FileQuestion Question(const QString& title, const DatabaseFile& file)
{
    return {title, QFile::decodeName(ProgramDir.c_str()), file.offeredName};
}

/// Runs the steps on the files. Where one fails, both databases are opened again before it is told.
template <typename Steps>
auto ReopeningOnFailure(const QString& outcome, Steps steps)
{
    try {
        return steps();
    } catch (const Failure& failure) {
        OpenDatabases();
        throw failure.During((outcome + u'.' + Crlf).toStdString() + failure.Doing());
    } catch (...) {
        OpenDatabases();
        throw;
    }
}

} // namespace

AdvancedWindow::AdvancedWindow(QWidget* parent)
    : SmallWindow(u"frmadvanced"_s, u"Tavenor 3 --- Advanced Options"_s, parent)
{
    auto* exportdraw = new Button(u"Backup Draw Database"_s, u"exportdraw"_s);
    auto* importdraw = new Button(u"Import Updated Draw Database"_s, u"importdraw"_s);
    auto* exportuser = new Button(u"Backup User Entry Database"_s, u"exportuser"_s);
    auto* importuser = new Button(u"Import User Entry Database"_s, u"importuser"_s);
    auto* back = new Button(u"BACK"_s, u"back"_s);

    QVBoxLayout* layout = Content();
    layout->addWidget(MakeLabel(u"Database Utilities"_s, TextRole::Title, ElementName(LabelArray, 0)));
    auto* groups = new QHBoxLayout;
    groups->setSpacing(Spacing::Cards);
    groups->addWidget(BuildGroup(1, u"Draw Records"_s, exportdraw, importdraw));
    groups->addWidget(BuildGroup(2, u"User Entries"_s, exportuser, importuser));
    layout->addLayout(groups);
    layout->addStretch(1);
    layout->addWidget(back, 0, Qt::AlignRight);

    ConnectGuarded(exportdraw, &QPushButton::clicked, this, [this] { Export_Click(DrawDatabaseFile()); });
    ConnectGuarded(importdraw, &QPushButton::clicked, this, [this] { Import_Click(DrawDatabaseFile()); });
    ConnectGuarded(exportuser, &QPushButton::clicked, this, [this] { Export_Click(UserDatabaseFile()); });
    ConnectGuarded(importuser, &QPushButton::clicked, this, [this] { Import_Click(UserDatabaseFile()); });
    back->MakeQuietDefault();
    connect(back, &QPushButton::clicked, this, &QDialog::reject);
}

QWidget* AdvancedWindow::BuildGroup(int index, const QString& heading, Button* backup, Button* import)
{
    auto* card = new Card;
    card->Content()->addWidget(MakeLabel(heading, TextRole::Heading, ElementName(LabelArray, index)));
    card->Content()->addWidget(backup);
    card->Content()->addWidget(import);
    return card;
}

void AdvancedWindow::Export_Click(const DatabaseFile& file)
{
    const QString notStored = file.name + u" has not been stored"_s;
    const QString chosen = AskFileToSave(Question(u"Backup"_s, file), this);
    if (chosen.isEmpty())
        return;
    if (IsLivePath(chosen)) {
        ShowMessage(u"You can't overwrite the current database files,"_s + Crlf + notStored + u'.');
        return;
    }
    ReopeningOnFailure(notStored, [&] {
        CloseDatabaseFiles();
        BackUp(file, PathOf(chosen));
    });
    OpenDatabases();
    ShowMessage(file.backupDone);
}

void AdvancedWindow::Import_Click(const DatabaseFile& file)
{
    const QString notAltered = file.name + u" has not been altered"_s;
    const QString chosen = AskFileToOpen(Question(u"Import"_s, file), this);
    if (chosen.isEmpty())
        return;
    if (IsLivePath(chosen)) {
        ShowMessage(u"You can't use the current database files,"_s + Crlf + notAltered + u'.');
        return;
    }
    const bool replaced = ReopeningOnFailure(notAltered, [&] {
        CloseDatabaseFiles();
        Import import(file, PathOf(chosen));
        if (!OpenOrEnd([&] { import.Prove(); }))
            return false;
        import.Complete();
        return true;
    });
    if (!replaced)
        return;
    OpenDatabases();
    ShowMessage(file.importDone);
}
