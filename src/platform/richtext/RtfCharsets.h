#pragma once

#include <QByteArrayView>
#include <QStringDecoder>

#include <array>
#include <map>
#include <optional>

namespace varnhold {

/// The code page of a font's \fcharset; 0 where it says none (default, symbols).
int rtfCodePage(int charset);

/// Decodes one code page. Pages that the system below does not know go as Windows-1252 where a character is
/// a byte, and as U+FFFD where it may be two.
class RtfCodePage
{
public:
    explicit RtfCodePage(int number);

    /// A character may take more than one byte.
    [[nodiscard]] bool isMultiByte() const { return m_multiByte; }
    /// One byte of a page that is not.
    [[nodiscard]] char16_t character(unsigned char byte) const { return m_single.at(byte); }
    /// Whether the byte begins a character of two, whose second may be a 7-bit one.
    [[nodiscard]] bool isLead(unsigned char byte) const;
    /// Whether a brace or a backslash may be such a second byte.
    [[nodiscard]] bool pairsWithSigns() const;
    QString text(QByteArrayView bytes);

private:
    [[nodiscard]] bool endsInside(QByteArrayView bytes) const;

    int m_number;
    bool m_multiByte;
    std::array<char16_t, 256> m_single{};
    QStringDecoder m_decoder;
};

/// Every page once.
class RtfCodePages
{
public:
    static bool knows(int number);
    /// Windows-1252 for one that is not known.
    RtfCodePage& page(int number);

private:
    std::map<int, RtfCodePage> m_pages;
};

} // namespace varnhold
