#include "download/DownloadPlanner.h"

#include "download/DownloadClient.h"
#include "download/NumericValue.h"
#include "lookup/MarkRows.h"
#include "lookup/PackageNames.h"
#include "lookup/UpdateList.h"
#include "platform/FileDialogs.h"
#include "platform/MessageBoxes.h"
#include "platform/RunTimeError.h"
#include "state/ApplicationState.h"
#include "state/Settings.h"
#include "state/Sounds.h"

#include <QPointer>

#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

/// Where the routes differ. Every difference is meant.
struct DownloadPlanner::Route
{
    enum class Where { ByOptions, Dialog, Batch };
    enum class Icon { None, BeforeSkin, AfterShow };

    Where where = Where::ByOptions;
    bool selectedRow = false; ///< the address is the selected row's
    bool saysLimit = true;
    Icon icon = Icon::None;
    bool setsSlotIndex = true; ///< without it the window's end frees slot 0
    /// Overwriting a file chosen in the dialog puts the folder into the tag that should hold the path, so
    /// that the download cannot delete its target and ends there.
    bool losesPath = true;
};

struct DownloadPlanner::Request
{
    QString url;
    QString gameId;
    QString name;
    QString fileName;
};

struct DownloadPlanner::Target
{
    QString name;
    QString toolTip;
    QString nameTag;
    QString path;
};

/// A window that was not shown yet: goes without an unload when planning ends before.
class DownloadPlanner::Prepared
{
public:
    explicit Prepared(DownloadHost& host) : m_host(host) {}
    Prepared(const Prepared&) = delete;
    Prepared& operator=(const Prepared&) = delete;
    ~Prepared() { drop(); }

    void make()
    {
        drop();
        m_window = &m_host.makeWindow();
        m_client = &m_window->client();
    }
    /// The host may have ended the window while events were pumped.
    [[nodiscard]] bool isAlive() const { return m_window && m_client; }
    [[nodiscard]] DownloadWindow& window() const { return *m_window; }
    [[nodiscard]] DownloadClient* client() const { return m_client; }
    /// From now on it keeps itself alive.
    void show() { std::exchange(m_window, nullptr)->show(); }

private:
    void drop()
    {
        if (isAlive())
            m_host.drop(*m_window);
        m_window = nullptr;
    }

    DownloadHost& m_host;
    DownloadWindow* m_window = nullptr;
    QPointer<DownloadClient> m_client;
};

DownloadPlanner::DownloadPlanner(Services services) : m_services(std::move(services)) {}

void DownloadPlanner::mnuDLoad_Click()
{
    plan({.selectedRow = true, .icon = Route::Icon::AfterShow}, fromMainWindow({}));
}

void DownloadPlanner::ListView1_DblClick()
{
    plan({.where = Route::Where::Dialog,
          .selectedRow = true,
          .saysLimit = false,
          .icon = Route::Icon::BeforeSkin,
          .setsSlotIndex = false,
          .losesPath = false},
         fromMainWindow({}));
}

void DownloadPlanner::DownloadUrl(const QString& url)
{
    plan({}, fromMainWindow(url));
}

void DownloadPlanner::mnuLstVwDL_Click(const QString& url, const QString& gameId, const QString& name)
{
    plan({}, {url, gameId, name, fileNameOf(url)});
}

void DownloadPlanner::Execute_Multiple(const QString& url, const QString& fileName)
{
    plan({.where = Route::Where::Batch, .saysLimit = false}, {url, {}, {}, fileName});
}

DownloadPlanner::Request DownloadPlanner::fromMainWindow(const QString& url) const
{
    return {url, m_services.host.gameIdText(), m_services.host.info(), fileNameOf(url)};
}

void DownloadPlanner::plan(const Route& route, Request request)
{
    try {
        walk(route, request);
    } catch (const RunTimeError& error) {
        report(error);
    }
}

void DownloadPlanner::walk(const Route& route, Request& request)
{
    const bool isBatch = route.where == Route::Where::Batch;
    if (!isBatch)
        m_services.sounds.play(Sound::Menu);
    if (!limitAllows(route))
        return;
    if (route.selectedRow && !readSelectedRow(route, request))
        return;
    if (!isBatch && request.url.isEmpty())
        return;

    const QString folder = folderFor(route, request);
    if (route.where == Route::Where::Dialog && !limitAllows(route))
        return;
    Prepared window(m_services.host);
    window.make();
    // Taken before any question, and no refusal gives it back; meant.
    m_slots.take(m_services.state.LoopIndex);

    std::optional<Target> target;
    if (isBatch)
        target = batchTarget(route, request, folder);
    else if (route.where == Route::Where::ByOptions && m_services.settings.isChecked(Check::UseDLD))
        target = directTarget(request, folder);
    else
        target = dialogTarget(route, request, folder);
    if (!target || !window.isAlive())
        return;

    ++m_services.state.DLCount;
    m_services.host.showCount(m_services.state.DLCount);
    DownloadClient& client = *window.client();
    client.setName(target->name);
    client.setNameTag(target->nameTag);
    client.setNameToolTip(target->toolTip);
    client.setUrl(request.url);
    client.setPath(target->path);
    start(route, window);
}

bool DownloadPlanner::readSelectedRow(const Route& route, Request& request) const
{
    const int row = selectedRow();
    request.url = m_services.list.subItem(row, UpdateList::Url);
    request.fileName = fileNameOf(request.url);
    return route.where != Route::Where::Dialog || !m_services.list.text(row).isEmpty();
}

int DownloadPlanner::selectedRow() const
{
    const int row = m_services.host.selectedRow();
    if (row == 0)
        throw RunTimeError(errors::objectNotSet);
    return row;
}

/// A full count is set to the limit, which pulls it down after the user has lowered that. It may thus come to
/// lie below the number of open windows; meant.
bool DownloadPlanner::limitAllows(const Route& route)
{
    const double limit = numericValue(m_services.settings.downloadMaxText());
    if (limit > m_services.state.DLCount)
        return true;
    m_services.state.DLCount = static_cast<qint16>(limit);
    if (route.saysLimit)
        m_services.boxes.show({u"Download Limit Reached\r\nPlease Wait"_s, u"Limit Reached"_s,
                               BoxIcon::Exclamation, BoxButtons::Ok});
    return false;
}

QString DownloadPlanner::folderFor(const Route& route, const Request& request)
{
    if (route.where == Route::Where::Batch)
        return m_services.state.DLFolder;
    const QString folder = titleFolder(m_services.settings, request.gameId, request.name);
    if (m_services.settings.isChecked(Check::UseDLD) && m_services.settings.isChecked(Check::CGNFolder)) {
        // As the system has it, but where folders that are there would let it lead elsewhere.
        if (titleFolderName(request.gameId, request.name).contains(u'/'))
            throw RunTimeError(errors::pathNotFound);
        m_services.files.makeFolder(folder);
    }
    return folder;
}

std::optional<DownloadPlanner::Target>
DownloadPlanner::batchTarget(const Route& route, const Request& request, const QString& folder)
{
    const QString path = folder + u'/' + request.fileName;
    // Two rows of one target would write into one temporary file.
    if (m_services.host.filesInUse().contains(folder + u'/' + packageNames(request.fileName).temporary))
        return std::nullopt;
    if (m_services.files.exists(path)) {
        if (!m_services.settings.isChecked(Check::OWrite))
            return std::nullopt;
        m_services.files.remove(path);
    } else if (!limitAllows(route)) {
        return std::nullopt;
    }
    return Target{request.fileName, {}, path, folder};
}

std::optional<DownloadPlanner::Target> DownloadPlanner::directTarget(const Request& request,
                                                                     const QString& folder)
{
    const QString path = folder + u'/' + request.fileName;
    if (m_services.files.exists(path)) {
        const BoxAnswer answer = m_services.boxes.show(
            {request.fileName + u"\r\nThis file Exist's, Are you sure you want to over write?"_s,
             u"Over Write?"_s, BoxIcon::Question, BoxButtons::YesNo});
        if (answer != BoxAnswer::Yes)
            return std::nullopt;
    }
    return Target{request.fileName, request.fileName, path, folder};
}

std::optional<DownloadPlanner::Target>
DownloadPlanner::dialogTarget(const Route& route, const Request& request, const QString& folder)
{
    const auto chosen = m_services.dialogs.chooseSavePath({u"Choose a location to Save:"_s, folder,
                                                           u"Packages (*.pkg)|*.pkg|All Files (*.*)|*.*"_s,
                                                           u"*.pkg"_s, request.fileName});
    if (!chosen)
        throw RunTimeError(errors::dialogCancelled);

    const bool exists = m_services.files.exists(chosen->path);
    if (exists) {
        const BoxAnswer answer =
            m_services.boxes.show({u"Over write this file?\r\n\r\n"_s + chosen->title, u"Over Write?"_s,
                                   BoxIcon::Question, BoxButtons::YesNo});
        if (answer != BoxAnswer::Yes)
            return std::nullopt;
    }
    if (chosen->path.isEmpty())
        return std::nullopt;
    const QString cut = chosen->path.first(chosen->path.lastIndexOf(u'/') + 1);
    if (exists && route.losesPath)
        return Target{chosen->title, chosen->title, cut, {}};
    return Target{chosen->title, chosen->title, chosen->path, cut};
}

void DownloadPlanner::start(const Route& route, Prepared& window)
{
    const QPointer<DownloadClient> client = window.client();
    // The shared index is read now, after everything that pumped; meant.
    window.window().place(m_slots.left(m_services.state.LoopIndex) + m_services.host.mainLeft(),
                          m_slots.top(m_services.state.LoopIndex) + m_services.host.mainTop());
    if (route.icon == Route::Icon::BeforeSkin)
        setRowIcon();
    window.window().loadSkin();
    window.show();
    if (route.icon == Route::Icon::AfterShow)
        setRowIcon();
    if (client)
        client->Download1();
    if (client && route.setsSlotIndex)
        client->SlotIndex = m_services.state.LoopIndex;
}

void DownloadPlanner::setRowIcon()
{
    m_services.list.setIcon(selectedRow(), u"pkg-dl"_s);
}

/// The dialog's cancel and a list without a selected row pass without a word.
void DownloadPlanner::report(const RunTimeError& error)
{
    switch (error.number()) {
    case errors::dialogCancelledOld:
    case errors::objectNotSet:
    case errors::dialogCancelled:
    case errors::invalidCall:
    case errors::none:
        return;
    default:
        m_services.boxes.show({QString::number(error.number()) + u' ' + error.description(),
                               m_services.applicationTitle, BoxIcon::Critical, BoxButtons::Ok});
    }
}

void DownloadPlanner::windowUnloaded(const DownloadClient& client)
{
    const DownloadLabels& labels = client.labels();
    if (const int row = m_services.list.findUrl(labels.url); row != 0) {
        m_services.list.setChecked(row, false);
        QString icon = u"pkg"_s;
        // Compares what the labels say, so that a small file, which never showed a size, is red; meant.
        if (m_services.files.exists(client.finalPath()))
            icon = labels.loaded == labels.fileSize ? u"pkg-plus"_s : u"pkg-red"_s;
        else if (m_services.files.exists(client.workPath()))
            icon = u"pkg-red"_s;
        m_services.list.setIcon(row, icon);
    }
    --m_services.state.DLCount;
    m_services.host.showCount(m_services.state.DLCount);
    m_slots.free(client.SlotIndex);
}

} // namespace varnhold
