#include "support/RunningService.h"

#include <gtest/gtest.h>

namespace varnhold::test {

using namespace Qt::StringLiterals;

RunningService::RunningService() : m_service(std::make_unique<host::SampleService>())
{
    m_service->moveToThread(&m_thread);
    m_thread.start();
    with([this](host::SampleService& service) {
        service.setRate(0);
        service.start();
        m_httpAuthority = service.httpAuthority();
        m_httpsAuthority = service.httpsAuthority();
        m_httpPort = service.httpPort();
        m_otherPort = service.otherPort();
        m_caFile = service.caFile();
    });
}

RunningService::~RunningService()
{
    with([this](host::SampleService&) { m_service.reset(); });
    m_thread.quit();
    m_thread.wait();
}

QString RunningService::url(const QString& path) const
{
    return u"http://"_s + m_httpAuthority + path;
}

void RunningService::with(const std::function<void(host::SampleService&)>& action)
{
    // The thread's own object takes the call: the action may delete the service.
    QObject courier;
    courier.moveToThread(&m_thread);
    QMetaObject::invokeMethod(
        &courier, [&] { action(*m_service); }, Qt::BlockingQueuedConnection);
}

void RunningService::misbehave(const QString& pathGlob, const QString& word)
{
    const std::optional<host::Misbehaviour> misbehaviour = host::parseMisbehaviour(word);
    ASSERT_TRUE(misbehaviour) << qPrintable(word);
    with([&](host::SampleService& service) { service.misbehave(pathGlob, *misbehaviour); });
}

QList<QByteArray> RunningService::requests()
{
    QList<QByteArray> requests;
    with([&](const host::SampleService& service) { requests = service.requests(); });
    return requests;
}

} // namespace varnhold::test
