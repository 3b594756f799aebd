#pragma once

#include "platform/FileFetch.h"

#include <QSet>
#include <QString>

namespace varnhold {

class CoverFolder;
class CoverServers;
class MessageBoxes;
class MessagePump;
class Settings;
class Sounds;

/// How one cover was fetched.
struct CoverOutcome
{
    bool isFetched = false;
    int status = 0; ///< of the server's last answer; 0 where none came
    QString why;    ///< of a failure, in the words of the table of navigation errors
};

/// Fetches a picture to the target file, whose old bytes stay until a whole picture is there: 32 MiB at most,
/// 30 seconds of silence, 5 minutes.
CoverOutcome fetchCover(FileFetch& fetch, const QString& url, const QString& target);

/// What the fetch from the menu shows and asks of the main window.
class CoverFetchView
{
public:
    virtual ~CoverFetchView() = default;
    [[nodiscard]] virtual QString selectedGameText() const = 0; ///< MorphListBox1.Text
    virtual void setStatus(const QString& text) = 0;            ///< lblStatus
    virtual void showBusy(bool isBusy) = 0;
    /// In PicPreview, which keeps its picture where this is none.
    virtual void showCover(const QString& path) = 0;
};

/// The entries of mnuCServs.
class CoverFetch
{
public:
    struct Services
    {
        const Settings& settings;
        const CoverFolder& folder;
        const CoverServers& servers;
        FileFetch& fetch;
        MessageBoxes& boxes;
        Sounds& sounds;
        MessagePump& pump;
        CoverFetchView& view;
        QString title; ///< the program's
    };

    explicit CoverFetch(const Services& services) : m_services(services) {}

    /// Fetches the selected game's cover from that server. Pumps; a second call meanwhile does nothing.
    void mnuCServs_Click(int index);
    [[nodiscard]] bool isRunning() const { return m_isRunning; }
    void cancel(); ///< what runs

private:
    void run(const QString& text, const QString& serverUrl);
    void download(const QString& url, const QString& target);
    [[nodiscard]] bool mayWrite(const QString& text) const;
    void tellFailure(const QString& why);

    Services m_services;
    QSet<QString> m_cleared; ///< folders that were rid of what a kill had left
    bool m_isRunning = false;
};

} // namespace varnhold
