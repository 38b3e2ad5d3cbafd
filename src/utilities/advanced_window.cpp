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
#include "utilities/start_and_end.h"

#include <QFile>
#include <QHBoxLayout>
#include <QScopeGuard>
#include <QVBoxLayout>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

QString AskPath(FilePurpose purpose, const DatabaseFile& file, QWidget* parent)
{
    return AskFile(purpose, file.offeredName, QFile::decodeName(ProgramDir.c_str()), parent);
}

/// Whether the chosen path is refused, after a message, because it is that of a live file.
bool IsRefused(const QString& chosen, const QString& why, const QString& outcome)
{
    if (!IsLivePath(chosen))
        return false;
    ShowMessage(why + Crlf + outcome);
    return true;
}

/// Runs steps on the chosen file with both databases closed. They are open again before a failure is told.
void WorkOn(const QString& chosen, const QString& outcome,
            const std::function<void(const std::filesystem::path&)>& steps)
{
    try {
        const auto reopening = qScopeGuard(OpenDatabases);
        CloseDatabaseFiles();
        steps(QFile::encodeName(chosen).toStdString());
    } catch (const Failure& failure) {
        throw failure.During((outcome + Crlf).toStdString() + failure.Doing());
    }
}

} // namespace

AdvancedWindow::AdvancedWindow(QWidget* parent)
    : SmallWindow(u"frmadvanced"_s, u"Tavenor 3 --- Advanced Options"_s, parent)
{
    QVBoxLayout* layout = Content();
    layout->addWidget(MakeLabel(u"Database Utilities"_s, TextRole::Title, u"Label_0"_s));
    auto* groups = new QHBoxLayout;
    groups->setSpacing(Spacing::Cards);
    groups->addWidget(BuildGroup(MakeLabel(u"Draw Records"_s, TextRole::Heading, u"Label_1"_s),
                                 new Button(u"Backup Draw Database"_s, u"exportdraw"_s),
                                 new Button(u"Import Updated Draw Database"_s, u"importdraw"_s), DrawDatabaseFile),
                      1);
    groups->addWidget(BuildGroup(MakeLabel(u"User Entries"_s, TextRole::Heading, u"Label_2"_s),
                                 new Button(u"Backup User Entry Database"_s, u"exportuser"_s),
                                 new Button(u"Import User Entry Database"_s, u"importuser"_s), UserDatabaseFile),
                      1);
    layout->addLayout(groups);
    layout->addStretch(1);
    auto* back = new Button(u"BACK"_s, u"back"_s);
    back->MakeQuietDefault();
    layout->addWidget(back, 0, Qt::AlignRight);
    connect(back, &QPushButton::clicked, this, &QDialog::reject);
}

QWidget* AdvancedWindow::BuildGroup(QLabel* heading, Button* backup, Button* import, DatabaseFile (*file)())
{
    auto* card = new Card;
    for (QWidget* control : std::initializer_list<QWidget*>{heading, backup, import})
        card->Content()->addWidget(control);
    ConnectGuarded(backup, &QPushButton::clicked, this, [this, file] { Export_Click(file()); });
    ConnectGuarded(import, &QPushButton::clicked, this, [this, file] { Import_Click(file()); });
    return card;
}

void AdvancedWindow::Export_Click(const DatabaseFile& file)
{
    const QString outcome = file.name + u" has not been stored."_s;
    const QString chosen = AskPath(FilePurpose::Backup, file, this);
    if (chosen.isEmpty() || IsRefused(chosen, u"You can't overwrite the current database files,"_s, outcome))
        return;
    WorkOn(chosen, outcome, [&](const auto& path) { BackUp(file, path); });
    ShowMessage(file.backupDone);
}

void AdvancedWindow::Import_Click(const DatabaseFile& file)
{
    const QString outcome = file.name + u" has not been altered."_s;
    const QString chosen = AskPath(FilePurpose::Import, file, this);
    if (chosen.isEmpty() || IsRefused(chosen, u"You can't use the current database files,"_s, outcome))
        return;
    bool replaced = false;
    WorkOn(chosen, outcome, [&](const auto& path) {
        Import import(file, path);
        replaced = OpenOrEnd([&] { import.Prove(); });
        if (replaced)
            import.Complete();
    });
    if (replaced)
        ShowMessage(file.importDone);
}
