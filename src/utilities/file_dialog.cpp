#include "utilities/file_dialog.h"

#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QScreen>
#include <QSettings>
#include <QStandardPaths>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

// The dialog would write its last folder and layout into a settings file in the home folder. The program keeps nothing
// outside its own folder, so the settings are sent where no file can be.
void ForgetDialogSettings()
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, u"/dev/null"_s);
}

/// A folder of the player's into which files are put, beside the program's own.
QString PlayersFolder(const QString& liveFolder)
{
    const QFileInfo documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    const bool usable = documents.isDir() && documents.isWritable() && documents != QFileInfo(liveFolder);
    return usable ? documents.filePath() : QDir::homePath();
}

QString FirstFolder(FilePurpose purpose, const QString& liveFolder)
{
    const QFileInfo downloads(QStandardPaths::writableLocation(QStandardPaths::DownloadLocation));
    return purpose == FilePurpose::Import && downloads.isDir() ? downloads.filePath() : PlayersFolder(liveFolder);
}

} // namespace

QString AskFile(FilePurpose purpose, const QString& offeredName, const QString& liveFolder, QWidget* parent)
{
    ForgetDialogSettings();
    const bool saving = purpose == FilePurpose::Backup;
    QFileDialog dialog(parent, saving ? u"Backup"_s : u"Import"_s, FirstFolder(purpose, liveFolder));
    dialog.setObjectName(u"CommonDialog1"_s);
    dialog.setAcceptMode(saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(saving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setNameFilter(u"Tavenor 3 Files (*.tv3)"_s);
    if (saving)
        dialog.setDefaultSuffix(u"tv3"_s);
    dialog.selectFile(offeredName);
    // Wide enough for sizes and dates to be read whole.
    dialog.resize(QSize(800, 500).boundedTo(dialog.screen()->availableSize() - QSize(12, 48)));
    if (const auto* details = dialog.findChild<QTreeView*>(u"treeView"_s))
        for (int column = 0; column < details->header()->count(); ++column)
            details->header()->setSectionResizeMode(column,
                                                    column == 0 ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}
