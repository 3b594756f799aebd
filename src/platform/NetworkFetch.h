#pragma once

#include "platform/FileFetch.h"
#include "platform/HttpWalk.h"

#include <QList>

namespace varnhold {

class MessagePump;

/// Fetches over the network, pumping until the end.
class NetworkFetch : public FileFetch
{
public:
    /// `resolve`, where given, may put another url in the place of the one that is asked for.
    NetworkFetch(MessagePump& pump, TlsPolicy policy,
                 std::function<QString(const QString& url)> resolve = {});

    FetchResult fetch(const QString& url, const FetchLimits& limits,
                      const std::function<bool(QByteArrayView)>& sink) override;
    FetchResult head(const QString& url, const FetchLimits& limits) override;
    void cancel() override;

private:
    struct Run;

    FetchResult run(const QString& url, const FetchLimits& limits,
                    const std::function<bool(QByteArrayView)>* sink);

    MessagePump& m_pump;
    TlsPolicy m_policy;
    std::function<QString(const QString&)> m_resolve;
    QList<Run*> m_runs; ///< on the stack, the innermost last: a fetch may be asked for while another pumps
};

} // namespace varnhold
