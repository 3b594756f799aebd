#pragma once

#include "download/DownloadFile.h"
#include "download/DownloadLabels.h"

#include <QByteArrayView>
#include <QObject>
#include <QString>

#include <memory>

namespace varnhold {

class Clock;
class MessageBoxes;
class MessagePump;
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

    void Download1();
    void cmdCancel_Click(); ///< the click sound is the window's
    void btnExit_Click();
    /// Click on lblName: the information box.
    void lblName_Click();

    [[nodiscard]] QString workPath() const { return m_workPath; }
    /// Where the finished file lies or would lie.
    [[nodiscard]] QString finalPath() const;
    [[nodiscard]] qint32 fileSize() const { return m_fileSize; }
    [[nodiscard]] qint32 bytesReceived() const { return m_bytesReceived; }

Q_SIGNALS:
    void labelsChanged();
    /// The window is to close now, whatever else stands on the stack.
    void unloadRequested();

private:
    // Left to the implementation: socket events, ProcessHeader, ProcessContent, ProcessStatus, FinishStatus.
    struct Private;
    std::unique_ptr<Private> d;
    DownloadLabels m_labels;
    QString m_workPath;
    qint32 m_fileSize = 0;
    qint32 m_bytesReceived = 0;
};

} // namespace varnhold
