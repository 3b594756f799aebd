#pragma once

#include "host/HttpRequest.h"
#include "host/SendPlan.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>

#include <functional>

class QTcpSocket;

namespace varnhold::host {

/// One connection: reads one request, asks for a plan, plays it, ends. Deletes itself when the peer is gone.
class Connection : public QObject
{
    Q_OBJECT

public:
    /// Asked once; may call start() at once or later.
    using Handler = std::function<void(Connection&, const HttpRequest&)>;

    /// Takes the socket over.
    Connection(QTcpSocket* socket, Handler handler, QObject* parent);

    void start(SendPlan plan);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void readMore();
    void send();
    [[nodiscard]] qint64 waitingBytes() const;
    [[nodiscard]] qint64 allowedEnd();
    void finish();
    void reset();

    QTcpSocket* m_socket;
    Handler m_handler;
    QByteArray m_received;
    bool m_asked = false;
    bool m_started = false;

    SendPlan m_plan;
    qint64 m_sent = 0;
    std::size_t m_cutsPassed = 0;
    QByteArray m_buffer;
    QElapsedTimer m_clock;
    QBasicTimer m_paceTimer;
    QBasicTimer m_cutTimer;
};

} // namespace varnhold::host
