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
};

struct ChosenFile
{
    QString path;  ///< full path
    QString title; ///< the name without its folder
};

/// The platform's file and folder dialogs. Modal; events are pumped meanwhile.
class FileDialogs
{
public:
    virtual ~FileDialogs() = default;
    /// No value: cancelled. Does not ask about an existing file; callers do.
    virtual std::optional<ChosenFile> chooseSavePath(const FileDialogRequest& request) = 0;
    virtual std::optional<ChosenFile> chooseFile(const FileDialogRequest& request) = 0;
    /// Empty: cancelled.
    virtual QString chooseFolder(const QString& prompt, const QString& startFolder) = 0;
};

} // namespace varnhold
