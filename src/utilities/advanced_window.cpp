#include "utilities/advanced_window.h"

#include "platform/card.h"
#include "platform/failure.h"
#include "platform/file_dialog.h"
#include "platform/guard.h"
#include "platform/message_box.h"
#include "platform/page_frame.h"
#include "shell/open_databases.h"
#include "shell/start_up.h"
#include "utilities/backup.h"
#include "utilities/database_file.h"
#include "utilities/import.h"

#include <QFile>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <memory>

namespace {

const QString LabelArray = QStringLiteral("Label");

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

AdvancedWindow::AdvancedWindow(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmadvanced"));
    setWindowTitle(QStringLiteral("Tavenor 3 --- Advanced Options"));
    auto* exportdraw = new Button(QStringLiteral("Backup Draw Database"), QStringLiteral("exportdraw"));
    auto* importdraw = new Button(QStringLiteral("Import Updated Draw Database"), QStringLiteral("importdraw"));
    auto* exportuser = new Button(QStringLiteral("Backup User Entry Database"), QStringLiteral("exportuser"));
    auto* importuser = new Button(QStringLiteral("Import User Entry Database"), QStringLiteral("importuser"));
    auto* back = new Button(QStringLiteral("BACK"), QStringLiteral("back"));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Spacing::Page, Spacing::Page, Spacing::Page, Spacing::Page);
    layout->setSpacing(Spacing::Cards);
    layout->addWidget(MakeLabel(QStringLiteral("Database Utilities"), TextRole::Title, ElementName(LabelArray, 0)));
    auto* groups = new QHBoxLayout;
    groups->setSpacing(Spacing::Cards);
    groups->addWidget(BuildGroup(1, QStringLiteral("Draw Records"), exportdraw, importdraw));
    groups->addWidget(BuildGroup(2, QStringLiteral("User Entries"), exportuser, importuser));
    layout->addLayout(groups);
    layout->addStretch(1);
    layout->addWidget(back, 0, Qt::AlignRight);

    ConnectGuarded(exportdraw, &QPushButton::clicked, this, [this] { Export_Click(DrawDatabaseFile()); });
    ConnectGuarded(importdraw, &QPushButton::clicked, this, [this] { Import_Click(DrawDatabaseFile()); });
    ConnectGuarded(exportuser, &QPushButton::clicked, this, [this] { Export_Click(UserDatabaseFile()); });
    ConnectGuarded(importuser, &QPushButton::clicked, this, [this] { Import_Click(UserDatabaseFile()); });
    back->setDefault(true);
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
    const QString notStored = file.name + QStringLiteral(" has not been stored");
    const QString chosen = AskFileToSave(Question(QStringLiteral("Backup"), file), this);
    if (chosen.isEmpty())
        return;
    if (IsLivePath(chosen)) {
        ShowMessage(QStringLiteral("You can't overwrite the current database files,") + Crlf + notStored + u'.');
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
    const QString notAltered = file.name + QStringLiteral(" has not been altered");
    const QString chosen = AskFileToOpen(Question(QStringLiteral("Import"), file), this);
    if (chosen.isEmpty())
        return;
    if (IsLivePath(chosen)) {
        ShowMessage(QStringLiteral("You can't use the current database files,") + Crlf + notAltered + u'.');
        return;
    }
    const auto import = ReopeningOnFailure(notAltered, [&] {
        CloseDatabaseFiles();
        return std::make_unique<Import>(file, PathOf(chosen));
    });
    if (OpenImportedDatabases(*import))
        ShowMessage(file.importDone);
}
