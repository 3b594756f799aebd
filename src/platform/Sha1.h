#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <memory>

struct evp_md_ctx_st;

namespace varnhold {

/// A SHA-1 sum by the TLS library, which uses the processor's own instructions for it where there are any.
class Sha1
{
public:
    Sha1();

    void add(QByteArrayView bytes);
    /// Of what was added so far, in small hexadecimal digits; more may be added afterwards. Empty when the
    /// library computes no such sums.
    [[nodiscard]] QByteArray result() const;

private:
    struct Free
    {
        void operator()(evp_md_ctx_st* context) const;
    };

    std::unique_ptr<evp_md_ctx_st, Free> m_context; ///< none: the library refuses
};

} // namespace varnhold
