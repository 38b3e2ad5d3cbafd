#pragma once

#include <QString>

class QWidget;

/// What a file dialog starts from. Every file of the program has the ending ".tv3".
struct FileQuestion
{
    QString title;
    /// The folder of the program's own files, in which no backup can be stored.
    QString liveFolder;
    QString offeredName;
};

/// Asks where to save a file, with the question whether an existing one may be overwritten. The dialog is the desktop's
/// own where it has one, and opens among the documents or else in the home folder. A name typed without an ending gets
/// the program's. Returns the full path, or an empty text when the player cancels.
QString AskFileToSave(const FileQuestion& question, QWidget* parent);

/// Asks for an existing file, among the downloads at first. Returns the full path, or an empty text when the player
/// cancels.
QString AskFileToOpen(const FileQuestion& question, QWidget* parent);
