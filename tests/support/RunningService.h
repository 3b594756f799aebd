#pragma once

#include "host/SampleService.h"

#include <QThread>

#include <functional>
#include <memory>

namespace varnhold::test {

/// A sample service that runs in a thread of its own, so that it answers whatever the test does meanwhile.
/// Packages are not paced.
class RunningService
{
public:
    RunningService();
    ~RunningService();
    RunningService(const RunningService&) = delete;
    RunningService& operator=(const RunningService&) = delete;

    [[nodiscard]] QString httpAuthority() const { return m_httpAuthority; }   ///< "127.0.0.1:port"
    [[nodiscard]] QString httpsAuthority() const { return m_httpsAuthority; } ///< "127.0.0.1:port"
    [[nodiscard]] quint16 httpPort() const { return m_httpPort; }
    [[nodiscard]] quint16 otherPort() const { return m_otherPort; }
    [[nodiscard]] QString caFile() const { return m_caFile; }
    /// "http://", the authority and the path.
    [[nodiscard]] QString url(const QString& path) const;

    /// Runs the function in the service's thread and waits for it.
    void with(const std::function<void(host::SampleService&)>& action);
    /// Answers to matching paths go wrong: a word such as "early-close:100".
    void misbehave(const QString& pathGlob, const QString& word);
    QList<QByteArray> requests();

private:
    QThread m_thread;
    std::unique_ptr<host::SampleService> m_service; ///< lives in m_thread, and ends there
    QString m_httpAuthority;
    QString m_httpsAuthority;
    quint16 m_httpPort = 0;
    quint16 m_otherPort = 0;
    QString m_caFile;
};

} // namespace varnhold::test
