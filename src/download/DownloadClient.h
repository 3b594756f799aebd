#pragma once

#include "download/DownloadFile.h"
#include "download/DownloadLabels.h"
#include "download/SplitUrl.h"

#include <QByteArrayView>
#include <QObject>
#include <QString>

#include <memory>

namespace varnhold {

class Clock;
class MessageBoxes;
class MessagePump;
class RunTimeError;
class Socket;
class SocketMaker;

/// Fetches one package over HTTP/1.0: everything that a download window does but the window itself. It is fed
/// socket events, keeps no state variable, and ends by asking for its unload. Its owner must not delete it
/// from inside one of its signals (deleteLater is fine), since it may stand in a wait further down the stack.
class DownloadClient : public QObject
{
    Q_OBJECT

public:
    struct Services
    {
        SocketMaker& sockets;
        DownloadFiles& files;
        Clock& clock;
        MessagePump& pump;
        MessageBoxes& boxes;
        QString applicationTitle = QStringLiteral("Varnhold"); ///< of the box that a failed cancel shows
    };

    explicit DownloadClient(const Services& services, QObject* parent = nullptr);
    ~DownloadClient() override;

    /// Filled by the planner before Download1.
    void setName(const QString& caption);
    void setNameTag(const QString& path);
    void setNameToolTip(const QString& text);
    void setUrl(const QString& url);
    void setPath(const QString& folder);
    [[nodiscard]] const DownloadLabels& labels() const { return m_labels; }

    qint16 SlotIndex = 0; ///< cascade slot, written by the planner after Download1 returns

    /// Pumps events; the client may be gone when it returns.
    void Download1();
    void cmdCancel_Click(); ///< the click sound is the window's
    void btnExit_Click();
    /// Click on lblName: the information box.
    void lblName_Click();

    [[nodiscard]] QString workPath() const { return m_workPath; }
    /// The temporary file while it is open; empty otherwise, also for a window that stranded after its close.
    [[nodiscard]] QString openPath() const;
    /// Where the finished file lies or would lie.
    [[nodiscard]] QString finalPath() const;
    [[nodiscard]] qint32 fileSize() const { return m_fileSize; } ///< -1: the server named none
    [[nodiscard]] qint32 bytesReceived() const { return m_bytesReceived; }

Q_SIGNALS:
    void labelsChanged();
    /// The window is to close now, whatever else stands on the stack. Raised once.
    void unloadRequested();

private:
    void onConnected();
    void onDataArrival(qint64 bytesTotal);
    void onClosed();
    void onError(int number, const QString& description);

    void ProcessHeader(QByteArrayView chunk);
    void processOk(const QString& header, QByteArrayView body);
    void processRedirect(const QString& header);
    void endHeader(const RunTimeError& error);
    void ProcessContent();
    void onAppended(const DownloadFile::Appended& appended);
    void failContent(const RunTimeError& error);
    void ProcessStatus();
    void FinishStatus();

    [[nodiscard]] bool overwrite();
    void connectToHost();
    void closeFile();
    void waitAndUnload();
    void unload();
    void exclaim(const QString& text);

    Services m_services;
    Socket* m_socket;
    std::unique_ptr<DownloadFile> m_file;
    DownloadLabels m_labels;
    QString m_workPath;
    QString m_tempPath;
    QString m_markerPath;
    UrlParts m_address;
    qint32 m_fileSize = 0;
    qint32 m_bytesReceived = 0;
    quint32 m_startTick = 0;
    quint32 m_lastTick = 0;
    qint32 m_elapsedSeconds = 0;
    qint16 m_fileNumber = 0; ///< 0: closed. Set also when the open failed; the first write then fails.
    bool m_unloaded = false;
};

} // namespace varnhold
