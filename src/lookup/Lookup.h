#pragma once

#include "lookup/UpdateDocument.h"

#include <QObject>
#include <QString>

#include <functional>

namespace varnhold {

class BrowserControl;
class MessagePump;
class Sounds;
struct Hosts;

/// What runs when text is dropped on btnFetch with a pkg extension; answered by the download planner.
using DropTarget = std::function<void(const QString& url)>;
/// Loads the notes and picture of the selected game; empty until there is a database.
using EntryLoader = std::function<void()>;

/// A lookup from the key press to the filled list. A lookup has no state of its own: it begins at Navigate
/// and ends with the status text "Done" or with a navigation error; a page that comes late does not hold the
/// newer LookupID and is not parsed.
class Lookup : public QObject
{
    Q_OBJECT

public:
    struct Services
    {
        ApplicationState& state;
        const Settings& settings;
        const Hosts& hosts;
        UpdateList& list;
        LookupView& view;
        BrowserControl& browser;
        Sounds& sounds;
        MessageBoxes& boxes;
        MessagePump& pump;
    };

    explicit Lookup(const Services& services, QObject* parent = nullptr);

    /// Each of the three stays on the stack until the browser is idle again.
    void btnFetch_Click();
    void MorphListBox1_DblClick();
    void ID_Click();

    /// Text dropped on btnFetch: a pkg address goes to the target in its own case, all else gets a box.
    void dropText(const QString& text, const DropTarget& target);

    void setEntryLoader(EntryLoader loader);
    void setLinkSaver(LinkSaver saver);

    /// ListRow: game list row of the last lookup from the list.
    [[nodiscard]] int listRow() const { return m_listRow; }
    /// Title of the last parse; heads the update list's tool tip.
    [[nodiscard]] QString title() const { return m_document.title(); }

private:
    void navigate(const QString& gameId);
    void waitUntilIdle();
    void lookUpSelectedRow();
    void showTitleOfRow(int row);
    void onDone();
    void onStatusText(const QString& text);
    void onProgress(int progress, int maximum);
    void onNavigateError(int code);

    Services m_services;
    UpdateDocument m_document;
    EntryLoader m_loadEntry;
    qint16 m_listRow = 0;
};

} // namespace varnhold
