#include "host/PackageContent.h"

#include <QtGlobal>

#include <openssl/evp.h>

#include <algorithm>
#include <array>
#include <memory>
#include <vector>

namespace varnhold::host {

namespace {

constexpr qint64 blockSize = 256 * 1024;

quint64 mixed(quint64 value)
{
    value += 0x9e3779b97f4a7c15U;
    value = (value ^ (value >> 30)) * 0xbf58476d1ce4e5b9U;
    value = (value ^ (value >> 27)) * 0x94d049bb133111ebU;
    return value ^ (value >> 31);
}

/// Noise of two blocks; each block of a package is a window into it, so making content is copying.
const std::vector<char>& noise()
{
    static const std::vector<char> bytes = [] {
        std::vector<char> made(2 * blockSize);
        for (std::size_t i = 0; i < made.size(); ++i) {
            const char byte = static_cast<char>(mixed(i) & 0xff);
            made[i] = byte == 'H' ? 'h' : byte;
        }
        return made;
    }();
    return bytes;
}

void readContent(quint32 seed, qint64 offset, std::span<char> out)
{
    while (!out.empty()) {
        const qint64 block = offset / blockSize;
        const qint64 within = offset % blockSize;
        const auto start = static_cast<qint64>(mixed((quint64{seed} << 32) + static_cast<quint64>(block)) %
                                               static_cast<quint64>(blockSize));
        const auto count = static_cast<std::size_t>(std::min<qint64>(blockSize - within, std::ssize(out)));
        std::copy_n(noise().data() + start + within, count, out.data());
        out = out.subspan(count);
        offset += static_cast<qint64>(count);
    }
}

class Sha1
{
public:
    Sha1() : m_context(EVP_MD_CTX_new(), &EVP_MD_CTX_free)
    {
        EVP_DigestInit_ex(m_context.get(), EVP_sha1(), nullptr);
    }

    void add(std::span<const char> bytes) { EVP_DigestUpdate(m_context.get(), bytes.data(), bytes.size()); }

    /// The sum so far; more can be added afterwards.
    [[nodiscard]] QByteArray sum() const
    {
        const Context copy(EVP_MD_CTX_new(), &EVP_MD_CTX_free);
        EVP_MD_CTX_copy_ex(copy.get(), m_context.get());
        std::array<unsigned char, 20> digest{};
        EVP_DigestFinal_ex(copy.get(), digest.data(), nullptr);
        return QByteArray(reinterpret_cast<const char*>(digest.data()), digest.size());
    }

private:
    using Context = std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)>;
    Context m_context;
};

QByteArray tailOf(const QByteArray& sum)
{
    return sum + QByteArray(packageTailSize - sum.size(), '\0');
}

} // namespace

Body packageContent(quint32 seed, qint64 size)
{
    return {size, [seed](qint64 offset, std::span<char> out) { readContent(seed, offset, out); }};
}

PackageSums packageSums(quint32 seed, qint64 size)
{
    Sha1 sha1;
    std::vector<char> buffer(blockSize);
    const qint64 contentSize = size - packageTailSize;
    for (qint64 offset = 0; offset < contentSize; offset += blockSize) {
        const std::span<char> piece(buffer.data(),
                                    static_cast<std::size_t>(std::min(blockSize, contentSize - offset)));
        readContent(seed, offset, piece);
        sha1.add(piece);
    }
    const QByteArray contentSum = sha1.sum();
    const QByteArray tail = tailOf(contentSum);
    sha1.add({tail.constData(), static_cast<std::size_t>(tail.size())});
    return {sha1.sum().toHex(), contentSum.toHex()};
}

Body packageBody(quint32 seed, qint64 size, const PackageSums& sums)
{
    const QByteArray tail = tailOf(QByteArray::fromHex(sums.allButTail));
    const qint64 contentSize = size - packageTailSize;
    return {size, [=](qint64 offset, std::span<char> out) {
                const qint64 fromContent = std::clamp<qint64>(contentSize - offset, 0, std::ssize(out));
                readContent(seed, offset, out.first(static_cast<std::size_t>(fromContent)));
                const auto rest = out.subspan(static_cast<std::size_t>(fromContent));
                if (!rest.empty())
                    std::copy_n(tail.constData() + (offset + fromContent - contentSize), rest.size(),
                                rest.data());
            }};
}

quint32 packageSeed(const QString& path)
{
    quint64 seed = 0;
    for (const QChar character : path)
        seed = mixed(seed ^ character.unicode());
    return static_cast<quint32>(seed);
}

} // namespace varnhold::host
