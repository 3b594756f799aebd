#pragma once

#include "platform/ShapedWindow.h"

#include <utility>
#include <vector>

class QListWidget;

namespace varnhold {

class ElidedLabel;
class Screen;
class Settings;
class SettingsPage;
class Sounds;
struct ApplicationState;

/// The settings window: its frame, the list of pages, and which one is open. Whoever has something to set
/// adds a page of its own. Closing only hides the window.
class frmSettings : public ShapedWindow
{
    Q_OBJECT

public:
    struct Services
    {
        ApplicationState& state;
        Settings& settings;
        Sounds& sounds;
        const Screen& screen;
    };

    explicit frmSettings(const Services& services);

    /// Makes a page and takes it in, at its place among the others.
    template <typename Page, typename... Parts> Page& add(Parts&&... parts)
    {
        auto* const page = new Page(std::forward<Parts>(parts)...);
        addPage(*page);
        return *page;
    }

    /// Shows it at this place in pixels; a window that is open only comes to the front.
    void open(const QPoint& place);
    /// With that page at the owner's corner and above it from now on; one that is open moves there too. An
    /// owner that is not shown yet comes first: window managers look for a window's owner when the window
    /// comes up.
    void showPageOver(QWidget& owner, const SettingsPage& page);
    /// lbl_Caption, until another page is opened.
    void showCaption(const QString& text);
    /// Comes up if it was asked to before its owner was on the screen; false when it was not.
    bool followOwner();
    /// Fills all controls from the settings; nothing is written.
    void refresh();

Q_SIGNALS:
    void pageShown(const varnhold::SettingsPage* page);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildCaption();
    void buildList();
    void addPage(SettingsPage& page);
    void showPage(int row);

    Services m_services;
    std::vector<SettingsPage*> m_pages; ///< as the rows of the list
    bool m_awaitsOwner = false;
    ElidedLabel* m_caption = nullptr;
    QListWidget* m_list = nullptr;
};

} // namespace varnhold
