#pragma once

#include <QString>

class QWidget;

/// What a file dialog starts from. Every file of the program has the ending ".tv3".
struct FileQuestion
{
    QString title;
    QString folder;
    QString offeredName;
};

/// Asks where to save a file, with the question whether an existing one may be overwritten. A name typed without an
/// ending gets the program's. Returns the full path, or an empty text when the player cancels.
QString AskFileToSave(const FileQuestion& question, QWidget* parent);

/// Asks for an existing file. Returns the full path, or an empty text when the player cancels.
QString AskFileToOpen(const FileQuestion& question, QWidget* parent);
