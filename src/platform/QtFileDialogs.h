#pragma once

#include "platform/FileDialogs.h"

namespace varnhold {

/// File and folder dialogs on the desktop, above the window that is active.
class QtFileDialogs : public FileDialogs
{
public:
    std::optional<ChosenFile> chooseSavePath(const FileDialogRequest& request) override;
    std::optional<ChosenFile> chooseFile(const FileDialogRequest& request) override;
    QString chooseFolder(const QString& prompt, const QString& startFolder) override;
};

} // namespace varnhold
