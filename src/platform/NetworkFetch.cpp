#include "platform/NetworkFetch.h"

#include "platform/MessagePump.h"
#include "platform/NavigationCodes.h"

#include <QTimer>

#include <exception>
#include <limits>
#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

struct NetworkFetch::Run
{
    FetchResult result;
    std::exception_ptr thrown; ///< by the sink
    bool isOver = false;

    void end(int error)
    {
        if (!std::exchange(isOver, true))
            result.error = error;
    }
};

namespace {

bool isPacked(const HttpWalk& walk)
{
    const QByteArray coding = walk.header("Content-Encoding").toLower();
    return !coding.isEmpty() && coding != "identity";
}

} // namespace

NetworkFetch::NetworkFetch(MessagePump& pump, TlsPolicy policy,
                           std::function<QString(const QString& url)> resolve)
    : m_pump(pump), m_policy(std::move(policy)), m_resolve(std::move(resolve))
{
}

FetchResult NetworkFetch::fetch(const QString& url, const FetchLimits& limits,
                                const std::function<bool(QByteArrayView)>& sink)
{
    return run(url, limits, &sink);
}

FetchResult NetworkFetch::head(const QString& url, const FetchLimits& limits)
{
    return run(url, limits, nullptr);
}

void NetworkFetch::cancel()
{
    for (Run* run : std::as_const(m_runs))
        run->end(navigation::timedOut);
}

/// Without a sink only the head counts.
FetchResult NetworkFetch::run(const QString& url, const FetchLimits& limits,
                              const std::function<bool(QByteArrayView)>* sink)
{
    constexpr int ok = 200;
    Run run;
    HttpWalk walk(m_policy);
    const auto end = [&](int error) {
        walk.stop();
        run.end(error);
    };
    QObject::connect(&walk, &HttpWalk::headCame, &walk, [&] {
        run.result.status = walk.status();
        run.result.toldLength = walk.bodyLength();
        if (sink == nullptr || walk.status() != ok)
            end(0);
        else if (isPacked(walk))
            end(navigation::downloadFailed);
    });
    QObject::connect(&walk, &HttpWalk::bodyCame, &walk, [&](const QByteArray& piece) {
        try {
            if (!(*sink)(piece))
                end(navigation::downloadFailed);
        } catch (...) { // nothing may leave an event; it goes on from the loop below
            run.thrown = std::current_exception();
            end(navigation::downloadFailed);
        }
    });
    QObject::connect(&walk, &HttpWalk::completed, &walk, [&] { run.end(0); });
    QObject::connect(&walk, &HttpWalk::failed, &walk, [&](int code) { run.end(code); });
    QObject::connect(&walk, &HttpWalk::certificateRefused, &walk,
                     [&] { run.end(navigation::securityProblem); });
    QTimer whole;
    whole.setSingleShot(true);
    QObject::connect(&whole, &QTimer::timeout, &walk, [&] { end(navigation::timedOut); });
    whole.start(limits.whole);

    m_runs.append(&run);
    // A head tells a length that no fetch would take as well.
    const qint64 largestBody = sink == nullptr ? std::numeric_limits<qint64>::max() : limits.bytes;
    walk.start(m_resolve ? m_resolve(url) : url, {limits.silence, largestBody, limits.redirects});
    while (!run.isOver)
        if (!m_pump.pumpNext())
            run.end(navigation::timedOut);
    m_runs.removeOne(&run);
    if (run.thrown)
        std::rethrow_exception(run.thrown);
    return run.result;
}

} // namespace varnhold
