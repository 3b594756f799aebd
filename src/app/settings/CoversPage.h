#pragma once

#include "app/settings/SettingsPage.h"
#include "covers/CoverServersPage.h"

class QTreeWidget;

namespace varnhold {

/// The cover folder, and the servers that covers are fetched from.
class CoversPage : public SettingsPage, private CoverServersView
{
    Q_OBJECT

public:
    /// `saved`: after the rows were written.
    CoversPage(Settings& settings, CoverServers& servers, MessageBoxes& boxes, std::function<void()> saved);

Q_SIGNALS:
    void coverPathWanted();  ///< cmdCovers: left button or key
    void coverPathCleared(); ///< right button

protected:
    void showEvent(QShowEvent* event) override;

private:
    void buildFolder();
    void buildList();
    void buildEntry();
    void buildButtons();
    ButtonEx* addCaptioned(const QString& name, const QString& caption, const QString& toolTip,
                           const QRect& place);

    [[nodiscard]] int currentRow() const override;
    [[nodiscard]] QList<int> selectedRows() const override;
    void showRows(const QList<CoverServer>& rows, int current) override;
    [[nodiscard]] CoverServer entry() const override;
    void setEntry(const CoverServer& entry) override;
    void openEntry(bool isOpen) override;
    [[nodiscard]] bool isEntryOpen() const override;

    CoverServersPage m_page;
    QTreeWidget* m_list = nullptr;
    QLineEdit* m_name = nullptr;
    QLineEdit* m_url = nullptr;
    ButtonEx* m_new = nullptr;
};

} // namespace varnhold
