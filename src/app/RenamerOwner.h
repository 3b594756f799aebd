#pragma once

#include "app/Common.h"

#include <QObject>

#include <functional>
#include <memory>

namespace varnhold {

class FolderRenamer;
class frmReNamer;

/// The folder renamer: its window, made when it is first asked for, and what it asks of the downloads.
class RenamerOwner : public QObject
{
    Q_OBJECT

public:
    struct Asks
    {
        std::function<QStringList()> filesInUse; ///< by downloads
        std::function<QString()> batchFolder;    ///< of a batch that runs; empty without one
        std::function<void(QWidget&)> dress;     ///< gives its buttons their faces
    };

    RenamerOwner(const Common& common, Asks asks);
    ~RenamerOwner() override;

    void mnuReNameDir_Click();
    /// Slider 0 has moved.
    void followOpacity(int opacity);

private:
    void make();
    [[nodiscard]] bool isInUse(const QString& folder) const;

    Common m_common;
    Asks m_asks;
    std::unique_ptr<FolderRenamer> m_renamer;
    std::unique_ptr<frmReNamer> m_window;
};

} // namespace varnhold
