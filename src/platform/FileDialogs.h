#pragma once

#include <QString>

#include <optional>

namespace varnhold {

struct FileDialogRequest
{
    QString title;
    QString startFolder;      ///< empty: the platform's own choice
    QString filter;           ///< pairs of text and pattern, all separated by "|": "Packages (*.pkg)|*.pkg"
    QString defaultExtension; ///< "*.pkg"
    QString fileName;
    bool asksBeforeOverwriting = false; ///< of a save dialog: by the platform's own question
};

struct ChosenFile
{
    QString path;   ///< full path
    QString title;  ///< the name without its folder
    int filter = 1; ///< which pair of the request's filters was chosen, from 1
};

/// The platform's file and folder dialogs. Modal; events are pumped meanwhile.
class FileDialogs
{
public:
    virtual ~FileDialogs() = default;
    /// No value: cancelled. Asks about an existing file only where the request says so; else callers do.
    virtual std::optional<ChosenFile> chooseSavePath(const FileDialogRequest& request) = 0;
    virtual std::optional<ChosenFile> chooseFile(const FileDialogRequest& request) = 0;
    /// Empty: cancelled.
    virtual QString chooseFolder(const QString& prompt, const QString& startFolder) = 0;
};

} // namespace varnhold
