#include "platform/file_dialog.h"

#include <QFileDialog>
#include <QHeaderView>
#include <QSettings>
#include <QTreeView>

namespace {

// The dialog would write its last folder and layout into a settings file in the home folder. The program keeps nothing
// outside its own folder, so the settings are sent where no file can be.
void ForgetDialogSettings()
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
}

QString Ask(QFileDialog& dialog, const FileQuestion& question)
{
    dialog.setObjectName(QStringLiteral("CommonDialog1"));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setNameFilter(QStringLiteral("Tavenor 3 Files (*.tv3)"));
    dialog.setDefaultSuffix(QStringLiteral("tv3"));
    dialog.selectFile(question.offeredName);
    // Wide enough for sizes and dates to be read whole.
    dialog.resize(800, 500);
    if (const auto* details = dialog.findChild<QTreeView*>(QStringLiteral("treeView")))
        for (int column = 0; column < details->header()->count(); ++column)
            details->header()->setSectionResizeMode(column,
                                                    column == 0 ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace

QString AskFileToSave(const FileQuestion& question, QWidget* parent)
{
    ForgetDialogSettings();
    QFileDialog dialog(parent, question.title, question.folder);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    return Ask(dialog, question);
}

QString AskFileToOpen(const FileQuestion& question, QWidget* parent)
{
    ForgetDialogSettings();
    QFileDialog dialog(parent, question.title, question.folder);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return Ask(dialog, question);
}
