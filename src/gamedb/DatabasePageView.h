#pragma once

#include <QString>

namespace varnhold {

/// What the maintenance of the database shows and asks of the settings window's Database page. The page may
/// have been hidden meanwhile; then it shows the same when it comes back.
class DatabasePageView
{
public:
    enum class Outcome { None, Good, Bad };

    virtual ~DatabasePageView() = default;

    virtual void showBusy(bool busy) = 0; ///< the mouse pointer: 11, 0
    virtual void clearTables() = 0;       ///< lstTables.Clear
    virtual void addTable(const QString& name) = 0;
    virtual void refreshTables() = 0;                       ///< painted at once
    [[nodiscard]] virtual QString newTableName() const = 0; ///< txt_Table
    virtual void clearNewTableName() = 0;
    virtual void focusNewTableName() = 0;
    virtual void showOutcome(Outcome outcome) = 0; ///< imgWarning
    /// lblFSize shows what the settings hold for it, in the highlight colour once that is asked for; painted
    /// at once.
    virtual void refreshFileSize(bool highlighted) = 0;
    virtual void setStatus(const QString& text) = 0; ///< lblStatus of the main window
};

} // namespace varnhold
