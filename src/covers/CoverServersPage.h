#pragma once

#include "covers/CoverServers.h"

#include <QList>
#include <QString>

#include <functional>

namespace varnhold {

class MessageBoxes;

/// The controls of the Covers page that show the servers. Rows count from 0.
class CoverServersView
{
public:
    virtual ~CoverServersView() = default;
    [[nodiscard]] virtual int currentRow() const = 0; ///< -1: none
    [[nodiscard]] virtual QList<int> selectedRows() const = 0;
    virtual void showRows(const QList<CoverServer>& rows, int current) = 0; ///< -1: none is current
    [[nodiscard]] virtual CoverServer entry() const = 0;                    ///< txt_Fav(0) and (1)
    virtual void setEntry(const CoverServer& entry) = 0;
    /// Shows txt_Fav; cmd_Fav(0) is then "CNL" with the tool tip "Cancel", else "New".
    virtual void openEntry(bool isOpen) = 0;
    [[nodiscard]] virtual bool isEntryOpen() const = 0;
};

/// What the buttons of that page do. Nothing reaches the file or the menu before cmd_Fav(5).
class CoverServersPage
{
public:
    /// `saved`: runs after a save, for the menu to be filled anew. `title`: the program's.
    CoverServersPage(CoverServers& servers, MessageBoxes& boxes, CoverServersView& view, QString title,
                     std::function<void()> saved);

    void shown(); ///< each time the page comes up
    void cmd_Fav_Click(int index);
    void btn_fav_Change_Click(int index); ///< 0 up, 1 down; nothing at an end
    void ListView1_DblClick(int row);
    void btn_Cover_Help_Click();

private:
    void toggleEntry();
    void addRow();
    void changeRow();
    void deleteCurrent();
    void deleteSelected();
    [[nodiscard]] bool fits(const CoverServer& row);
    [[nodiscard]] bool isYes(const QString& text);

    CoverServers& m_servers;
    MessageBoxes& m_boxes;
    CoverServersView& m_view;
    QString m_title;
    std::function<void()> m_saved;
};

} // namespace varnhold
