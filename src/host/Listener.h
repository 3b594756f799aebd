#pragma once

#include <QTcpServer>

#include <functional>

namespace varnhold::host {

/// A listening port that hands over bare connections, so that the owner decides on their kind.
class Listener : public QTcpServer
{
    Q_OBJECT

public:
    Listener(std::function<void(qintptr descriptor)> taken, QObject* parent)
        : QTcpServer(parent), m_taken(std::move(taken))
    {
    }

protected:
    void incomingConnection(qintptr descriptor) override { m_taken(descriptor); }

private:
    std::function<void(qintptr descriptor)> m_taken;
};

} // namespace varnhold::host
