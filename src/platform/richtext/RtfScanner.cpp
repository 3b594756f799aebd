#include "platform/richtext/RtfScanner.h"

#include "platform/richtext/RtfCharsets.h"

#include <algorithm>
#include <limits>
#include <utility>

#include <experimental/simd>

namespace varnhold {

namespace {

namespace simd = std::experimental;

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

int hexValue(char c)
{
    if (isDigit(c))
        return c - '0';
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

/// First byte that is no plain 7-bit character; `breaks` are the line ends, which end a run of text but not
/// the copying of a group.
template <bool breaks> const char* plainEnd(const char* from, const char* end)
{
    using Block = simd::native_simd<unsigned char>;
    constexpr auto step = static_cast<std::ptrdiff_t>(Block::size());
    const auto special = [](const auto& c) {
        using Byte = unsigned char;
        const auto braces = c == Byte{'\\'} || c == Byte{'{'} || c == Byte{'}'} || c >= Byte{0x80};
        if constexpr (breaks)
            return braces || c < Byte{0x20};
        else
            return braces || c == Byte{0};
    };
    for (; end - from >= step; from += step) {
        const Block block(reinterpret_cast<const unsigned char*>(from), simd::element_aligned);
        const auto hits = special(block);
        if (simd::any_of(hits))
            return from + simd::find_first_set(hits);
    }
    while (from < end && !special(static_cast<unsigned char>(*from)))
        ++from;
    return from;
}

/// Whether what stands behind a raw byte is the second one of its character though it looks like markup.
bool isRawSecond(unsigned char first, const char* at, const char* end, const RtfCodePage& page)
{
    if (at == end || !page.pairsWithSigns() || !page.isLead(first))
        return false;
    const bool isEscape =
        end - at >= 4 && at[0] == '\\' && at[1] == '\'' && hexValue(at[2]) >= 0 && hexValue(at[3]) >= 0;
    return static_cast<unsigned char>(*at) >= 0x80 || *at == '{' || *at == '}' || (*at == '\\' && !isEscape);
}

void appendHex(QByteArray& bytes, unsigned char byte)
{
    constexpr char digits[] = "0123456789abcdef";
    bytes += digits[byte >> 4];
    bytes += digits[byte & 15];
}

} // namespace

RtfScanner::RtfScanner(QByteArrayView stream, qsizetype from)
    : m_begin(stream.data()), m_at(stream.data() + from), m_end(stream.data() + stream.size())
{
}

RtfToken RtfScanner::made(RtfToken::Kind kind, const char* begin, unsigned char byte) const
{
    RtfToken token;
    token.kind = kind;
    token.begin = begin - m_begin;
    token.byte = byte;
    return token;
}

RtfToken RtfScanner::next()
{
    if (std::exchange(m_isRaw, false) && m_page &&
        isRawSecond(static_cast<unsigned char>(m_at[-1]), m_at, m_end, *m_page)) {
        const char* const begin = m_at++;
        return made(RtfToken::Kind::Byte, begin, static_cast<unsigned char>(*begin));
    }
    while (m_at < m_end) {
        const char* begin = m_at;
        const auto byte = static_cast<unsigned char>(*m_at++);
        if (byte == '\\') {
            if (m_at < m_end && *m_at == '\'' &&
                (m_end - m_at < 3 || hexValue(m_at[1]) < 0 || hexValue(m_at[2]) < 0)) {
                ++m_at; // no two digits: what stands there is read as if the symbol were not
                continue;
            }
            return afterBackslash(begin);
        }
        if (byte == '{')
            return made(RtfToken::Kind::Open, begin);
        if (byte == '}')
            return made(RtfToken::Kind::Close, begin);
        m_isRaw = byte >= 0x80;
        if (m_isRaw || byte == '\t')
            return made(RtfToken::Kind::Byte, begin, byte);
        if (byte < 0x20)
            continue;
        m_at = plainEnd<true>(m_at, m_end);
        RtfToken token = made(RtfToken::Kind::Text, begin);
        token.bytes = QByteArrayView(begin, m_at);
        return token;
    }
    return made(RtfToken::Kind::End, m_at);
}

RtfToken RtfScanner::afterBackslash(const char* backslash)
{
    if (m_at == m_end)
        return made(RtfToken::Kind::End, backslash);
    if (isLetter(*m_at))
        return word(backslash);
    const char symbol = *m_at++;
    if (symbol == '\r' || symbol == '\n') {
        RtfToken token = made(RtfToken::Kind::Word, backslash);
        token.bytes = "par";
        return token;
    }
    if (symbol == '\'') {
        const int value = hexValue(m_at[0]) * 16 + hexValue(m_at[1]);
        m_at += 2;
        return made(RtfToken::Kind::Byte, backslash, static_cast<unsigned char>(value));
    }
    return made(RtfToken::Kind::Symbol, backslash, static_cast<unsigned char>(symbol));
}

RtfToken RtfScanner::word(const char* backslash)
{
    RtfToken token = made(RtfToken::Kind::Word, backslash);
    const char* name = m_at;
    while (m_at < m_end && isLetter(*m_at))
        ++m_at;
    token.bytes = QByteArrayView(name, m_at);
    const bool negative = m_end - m_at >= 2 && m_at[0] == '-' && isDigit(m_at[1]);
    if (negative)
        ++m_at;
    token.hasParameter = m_at < m_end && isDigit(*m_at);
    qint64 value = 0;
    for (; m_at < m_end && isDigit(*m_at); ++m_at)
        value = std::min<qint64>(value * 10 + (*m_at - '0'), std::numeric_limits<int>::max());
    token.parameter = static_cast<int>(negative ? -value : value);
    if (m_at < m_end && *m_at == ' ')
        ++m_at;
    if (token.hasParameter && token.bytes == "bin") {
        token.kind = RtfToken::Kind::Binary;
        const char* data = m_at;
        m_at += std::clamp<qsizetype>(token.parameter, 0, m_end - m_at);
        token.bytes = QByteArrayView(data, m_at);
    }
    return token;
}

RtfKeptGroup rtfKeptGroup(QByteArrayView stream, qsizetype from, const RtfCodePage& page)
{
    const char* const end = stream.data() + stream.size();
    const char* at = stream.data() + from;
    QByteArray kept("{");
    qsizetype depth = 1;
    while (depth > 0) {
        const char* plain = plainEnd<false>(at, end);
        kept.append(at, plain - at);
        at = plain;
        if (at == end) {
            kept.append(depth, '}');
            break;
        }
        const char c = *at;
        if (c == '{' || c == '}') {
            depth += c == '{' ? 1 : -1;
            kept += c;
            ++at;
        } else if (c == 0) {
            kept += '\n'; // not dropped: what stands on its two sides must not grow into one word
            ++at;
        } else if (c != '\\') {
            const auto byte = static_cast<unsigned char>(c);
            const char* const behind = at + (isRawSecond(byte, at + 1, end, page) ? 2 : 1);
            for (; at < behind; ++at) {
                kept += "\\'";
                appendHex(kept, static_cast<unsigned char>(*at));
            }
        } else if (end - at < 2 || at[1] == 0 || static_cast<unsigned char>(at[1]) >= 0x80) {
            ++at;
        } else if (end - at >= 5 && QByteArrayView(at, 4) == "\\bin" && !isLetter(at[4])) {
            RtfScanner scanner(stream, at - stream.data());
            const RtfToken token = scanner.next();
            const char* const behind = stream.data() + scanner.offset();
            if (token.kind == RtfToken::Kind::Binary) {
                kept += ' ';
                for (const char byte : token.bytes)
                    appendHex(kept, static_cast<unsigned char>(byte));
            } else {
                kept.append(at, behind - at);
            }
            at = behind;
        } else {
            kept.append(at, 2);
            at += 2;
        }
    }
    return {kept, at - stream.data()};
}

qsizetype rtfExcessBrace(QByteArrayView stream, qsizetype from, const RtfCodePage& page)
{
    RtfScanner scanner(stream, from);
    scanner.setPage(&page);
    qsizetype depth = 0;
    for (RtfToken token = scanner.next(); token.kind != RtfToken::Kind::End; token = scanner.next()) {
        if (token.kind == RtfToken::Kind::Open)
            ++depth;
        else if (token.kind == RtfToken::Kind::Close && --depth < 0)
            return token.begin;
    }
    return -1;
}

} // namespace varnhold
