#include "platform/Sha1.h"

#include <openssl/evp.h>

namespace varnhold {

Sha1::Sha1() : m_context(EVP_MD_CTX_new())
{
    if (m_context && EVP_DigestInit_ex(m_context.get(), EVP_sha1(), nullptr) != 1)
        m_context.reset();
}

void Sha1::Free::operator()(evp_md_ctx_st* context) const
{
    EVP_MD_CTX_free(context);
}

void Sha1::add(QByteArrayView bytes)
{
    if (m_context &&
        EVP_DigestUpdate(m_context.get(), bytes.data(), static_cast<std::size_t>(bytes.size())) != 1)
        m_context.reset();
}

QByteArray Sha1::result() const
{
    const std::unique_ptr<evp_md_ctx_st, Free> copy(EVP_MD_CTX_new());
    QByteArray sum(EVP_MAX_MD_SIZE, Qt::Uninitialized);
    unsigned int length = 0;
    if (!m_context || !copy || EVP_MD_CTX_copy_ex(copy.get(), m_context.get()) != 1 ||
        EVP_DigestFinal_ex(copy.get(), reinterpret_cast<unsigned char*>(sum.data()), &length) != 1)
        return {};
    return sum.first(length).toHex();
}

} // namespace varnhold
