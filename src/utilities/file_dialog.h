#pragma once

#include <QString>

class QWidget;

enum class FilePurpose
{
    Backup,
    Import
};

/// Asks for a file, starting from the given name. The dialog is the desktop's own where it has one.
/// For a backup it asks where to save, with the question whether an existing file may be overwritten, and opens among
/// the documents or else in the home folder, not in `liveFolder`, where the program's own files lie; a name typed
/// without an ending gets the program's. For an import it asks for an existing file, among the downloads at first.
/// Returns the full path, or an empty text when the player cancels.
QString AskFile(FilePurpose purpose, const QString& offeredName, const QString& liveFolder, QWidget* parent);
