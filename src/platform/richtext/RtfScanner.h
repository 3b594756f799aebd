#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace varnhold {

class RtfCodePage;

/// The next piece of a stream. Line ends and control bytes outside of \bin are passed over.
struct RtfToken
{
    enum class Kind {
        Text,   ///< `bytes`: a run of 7-bit characters
        Byte,   ///< `byte`: \'hh, a raw byte from 0x80, or a raw tab
        Open,   ///< {
        Close,  ///< }
        Word,   ///< `bytes`: its name, `parameter` if `hasParameter`
        Binary, ///< `bytes`: what \bin brings
        Symbol, ///< `byte`: the character behind the backslash
        End
    };
    Kind kind = Kind::End;
    bool hasParameter = false;
    unsigned char byte = 0;
    int parameter = 0;   ///< 0 without one; kept within the range of int
    qsizetype begin = 0; ///< offset in the stream
    QByteArrayView bytes;
};

/// Cuts a stream into tokens. Any bytes will do.
class RtfScanner
{
public:
    explicit RtfScanner(QByteArrayView stream, qsizetype from = 0);

    RtfToken next();
    void seek(qsizetype offset)
    {
        m_at = m_begin + offset;
        m_isRaw = false;
    }
    /// The page of the raw bytes from the one that was read last on: where it is one of two bytes a
    /// character, a brace or a backslash may be the second and is read as a byte, too. Null: none.
    void setPage(const RtfCodePage* page) { m_page = page; }
    [[nodiscard]] qsizetype offset() const { return m_at - m_begin; }

private:
    RtfToken afterBackslash(const char* backslash);
    RtfToken word(const char* backslash);
    RtfToken made(RtfToken::Kind kind, const char* begin, unsigned char byte = 0) const;

    const char* m_begin;
    const char* m_at;
    const char* m_end;
    const RtfCodePage* m_page = nullptr;
    bool m_isRaw = false; ///< the last token was a raw byte, which began a character
};

struct RtfKeptGroup
{
    QByteArray bytes; ///< "{...}"
    qsizetype end;    ///< offset behind the group in the stream
};

/// The rest of a group from `from` on, as a whole group that any text can stand round: 7-bit, every brace
/// closed. What \bin brought stands there in hexadecimal, which a picture or object takes just as well. The
/// page is that of its raw bytes.
RtfKeptGroup rtfKeptGroup(QByteArrayView stream, qsizetype from, const RtfCodePage& page);

/// Offset of the first closing brace from `from` on that no opening one stands for; -1 if there is none.
qsizetype rtfExcessBrace(QByteArrayView stream, qsizetype from, const RtfCodePage& page);

} // namespace varnhold
