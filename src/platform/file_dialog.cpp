#include "platform/file_dialog.h"

#include <QFileDialog>
#include <QSettings>

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
