#pragma once

#include "app/Common.h"
#include "controls/SystemColors.h"
#include "tools/LinkRows.h"
#include "tools/ReportHost.h"
#include "tools/frmLstTxt.h"

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

namespace varnhold {

class AppearanceOwner;
class DownloadPlanner;
class Lookup;
class SharedDatabase;

/// The window of report and links: made when it is first asked for, gone when it is closed.
class ReportOwner : public QObject, private ReportHost
{
    Q_OBJECT

public:
    ReportOwner(const Common& common, Lookup& lookup, AppearanceOwner& appearance, DownloadPlanner& planner,
                SharedDatabase& database);
    ~ReportOwner() override;

    /// "List to Text" of the update list.
    void mnuLVListText_Click();
    /// Notes of the title that the main window shows, rich text, on the list's ground.
    void showNotes(const QString& rtf, ColorValue fore, ColorValue ground);
    /// Rows of saved links; `heading` names the window.
    void showLinks(std::vector<LinkRow> rows, const QString& heading);
    /// Null while there is none.
    [[nodiscard]] frmLstTxt* window() const { return m_window.get(); }
    /// At the program's end: a window that is open stores its place.
    void unload();

private:
    frmLstTxt& made();
    void bindCommands(DownloadPlanner& planner);
    void mnuLVCopyLink_Click();
    [[nodiscard]] ReportTitle title() const;

    void loadTitle(const QString& gameId, const QString& name) override;
    void deleteLink(const LinkRow& link, const std::function<void()>& removeRow) override;
    void bringMainToFront() override;
    void openReportMenu(const QPoint& globalPosition) override;
    void openLinksMenu(const QPoint& globalPosition) override;
    void markTools(bool shown) override;
    [[nodiscard]] std::array<ColorValue, 2> balloonColors() const override;
    void unloaded() override;

    Common m_common;
    Lookup& m_lookup;
    AppearanceOwner& m_appearance;
    SharedDatabase& m_database;
    std::unique_ptr<frmLstTxt> m_window;
};

} // namespace varnhold
