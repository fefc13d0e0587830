#pragma once

#include <QString>
#include <QStringList>

namespace platform {

struct FileRequest
{
    QString title;           // the dialog's title
    QString prompt;          // a line of explanation, where the platform shows one
    QString actionCaption;   // the accept button's caption; empty for the platform's own
    QString initialDir;      // where the dialog starts; empty for the user's documents
    QString suggestedName;   // for save dialogs
    QStringList nameFilters; // "Pictures (*.png *.jpg)" style filters; empty for all files
};

// Folder and file selection, and showing a file in the file browser.
// Every call returns an absolute path, or empty text when the user cancels.
class FileDialogService
{
public:
    virtual ~FileDialogService() = default;
    virtual QString selectFolder(const FileRequest &request) = 0;
    virtual QString openFile(const FileRequest &request) = 0;
    virtual QString saveFile(const FileRequest &request) = 0;
    virtual void revealInFileBrowser(const QString &path) = 0;
};

} // namespace platform
