#pragma once

#include <QByteArrayView>
#include <QString>

#include <chrono>
#include <cstdint>
#include <functional>

namespace varnhold {

/// What a fetch is bounded by.
struct FetchLimits
{
    std::int64_t bytes = 1 << 20; ///< of a body
    int redirects = 20;
    std::chrono::milliseconds silence{30'000}; ///< without a byte
    std::chrono::milliseconds whole{300'000};  ///< from the call to the last byte
};

/// How a fetch ended.
struct FetchResult
{
    /// 0: an answer came, whole, with `status`. Else a code of the table of navigation errors: refused,
    /// unknown host, timed out, TLS failure, too many redirects, broken or too large.
    int error = 0;
    int status = 0;               ///< of the last answer; 0 where none came
    std::int64_t toldLength = -1; ///< Content-Length of the last answer; -1 where it told none
    [[nodiscard]] bool isOk() const { return error == 0 && status == 200; }
};

/// Fetches one url, http or https, with its redirects. Certificates that do not verify are refused without a
/// question. Pumps events until the end, so the caller must expect that windows are gone afterwards.
class FileFetch
{
public:
    virtual ~FileFetch() = default;
    /// Hands on each piece of the body of an answer 200 as it arrives; false from the sink ends the fetch as
    /// too large, and what the sink throws ends it and comes out of here. Bodies of other answers are not
    /// waited for. An answer that packs its body, which was not asked for, counts as broken.
    virtual FetchResult fetch(const QString& url, const FetchLimits& limits,
                              const std::function<bool(QByteArrayView)>& sink) = 0;
    /// Head only: asks plainly, reads the answer's head and drops the connection.
    virtual FetchResult head(const QString& url, const FetchLimits& limits) = 0;
    /// Ends all that is under way, as a time-out; nothing otherwise. The program's end does the same.
    virtual void cancel() = 0;
};

} // namespace varnhold
