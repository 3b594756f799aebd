#include "platform/richtext/RtfCharsets.h"

#include "platform/CodePage.h"

#include <QByteArrayList>

#include <algorithm>
#include <array>
#include <numeric>

namespace varnhold {

namespace {

struct CharsetPage
{
    int charset;
    int page;
};

constexpr CharsetPage charsetPages[] = {
    {0, 1252},   {77, 10000}, {78, 932},   {79, 949},   {80, 936},   {81, 950},   {83, 10005}, {84, 10004},
    {85, 10006}, {86, 10081}, {87, 874},   {88, 10029}, {89, 10007}, {128, 932},  {129, 949},  {130, 1361},
    {134, 936},  {136, 950},  {161, 1253}, {162, 1254}, {163, 1258}, {177, 1255}, {178, 1256}, {186, 1257},
    {204, 1251}, {222, 874},  {238, 1250}, {254, 437},  {255, 850},
};

constexpr std::array multiBytePages = {932, 936, 949, 950, 1361, 10001, 10002, 10003, 10008, 54936, 65001};

constexpr std::array singleBytePages = {437,   708,   720,   737,   775,   850,   852,   855,   857,   858,
                                        860,   861,   862,   863,   864,   865,   866,   869,   874,   1250,
                                        1251,  1252,  1253,  1254,  1255,  1256,  1257,  1258,  10000, 10004,
                                        10005, 10006, 10007, 10029, 10081, 20866, 21866, 28591, 28592, 28593,
                                        28594, 28595, 28596, 28597, 28598, 28599, 28603, 28605};

template <typename Pages> bool isOneOf(const Pages& pages, int page)
{
    return std::find(pages.begin(), pages.end(), page) != pages.end();
}

/// As the converters below call it; the first that one of them knows counts.
QStringDecoder decoderOf(int page)
{
    const QByteArray number = QByteArray::number(page);
    QByteArrayList names;
    switch (page) {
    case 10000:
        names = {"macintosh"};
        break;
    case 10001:
        names = {"windows-932"};
        break;
    case 10002:
        names = {"windows-950"};
        break;
    case 10003:
        names = {"windows-949"};
        break;
    case 10004:
        names = {"x-mac-arabic", "windows-1256"};
        break;
    case 10005:
        names = {"x-mac-hebrew", "windows-1255"};
        break;
    case 10006:
        names = {"x-mac-greek"};
        break;
    case 10007:
        names = {"x-mac-cyrillic"};
        break;
    case 10008:
        names = {"windows-936"};
        break;
    case 10029:
        names = {"x-mac-centraleurroman"};
        break;
    case 10081:
        names = {"x-mac-turkish"};
        break;
    case 20866:
        names = {"KOI8-R"};
        break;
    case 21866:
        names = {"KOI8-U"};
        break;
    case 54936:
        names = {"gb18030"};
        break;
    case 65001:
        names = {"UTF-8"};
        break;
    default:
        if (page > 28590 && page < 28606)
            names = {"ISO-8859-" + QByteArray::number(page - 28590)};
        else
            names = {"windows-" + number, "ibm-" + number};
    }
    for (const QByteArray& name : names)
        if (QStringDecoder decoder(name.constData()); decoder.isValid())
            return decoder;
    return {};
}

} // namespace

int rtfCodePage(int charset)
{
    const auto* found = std::find_if(std::begin(charsetPages), std::end(charsetPages),
                                     [charset](const CharsetPage& pair) { return pair.charset == charset; });
    return found == std::end(charsetPages) ? 0 : found->page;
}

RtfCodePage::RtfCodePage(int number) : m_number(number), m_multiByte(isOneOf(multiBytePages, number))
{
    if (number != 1252)
        m_decoder = decoderOf(number);
    std::array<char, 256> bytes{};
    std::iota(bytes.begin(), bytes.end(), static_cast<char>(0));
    QString decoded;
    if (!m_multiByte && m_decoder.isValid())
        decoded = text(bytes);
    if (decoded.size() != static_cast<qsizetype>(bytes.size()))
        decoded = fromCodePage(bytes);
    std::transform(decoded.begin(), decoded.end(), m_single.begin(), [](QChar c) { return c.unicode(); });
}

bool RtfCodePage::isLead(unsigned char byte) const
{
    const bool shiftJis = m_number == 932 || m_number == 10001;
    const bool katakana = shiftJis && byte >= 0xA0 && byte <= 0xDF;
    return m_multiByte && m_number != 65001 && byte > 0x80 && byte < 0xFF && !katakana;
}

bool RtfCodePage::pairsWithSigns() const
{
    return m_multiByte && m_number != 949 && m_number != 10003 && m_number != 65001;
}

bool RtfCodePage::endsInside(QByteArrayView bytes) const
{
    bool inside = false;
    for (const char byte : bytes)
        inside = !inside && isLead(static_cast<unsigned char>(byte));
    return inside;
}

QString RtfCodePage::text(QByteArrayView bytes)
{
    if (!m_decoder.isValid()) {
        if (!m_multiByte)
            return fromCodePage(bytes);
        QString replaced;
        bool inside = false;
        for (const char byte : bytes) {
            const bool plain = !inside && static_cast<unsigned char>(byte) < 0x80;
            inside = !inside && isLead(static_cast<unsigned char>(byte));
            if (!inside)
                replaced += plain ? QChar::fromLatin1(byte) : QChar(QChar::ReplacementCharacter);
        }
        return replaced;
    }
    QString decoded = m_decoder.decode(bytes);
    if (m_number == 65001 || endsInside(bytes)) // not always: a new converter is made for it
        m_decoder.resetState();
    return decoded;
}

bool RtfCodePages::knows(int number)
{
    return isOneOf(singleBytePages, number) || isOneOf(multiBytePages, number);
}

RtfCodePage& RtfCodePages::page(int number)
{
    if (!knows(number))
        number = 1252; // also bounds how many pages a stream can have made
    const auto found = m_pages.find(number);
    return found == m_pages.end() ? m_pages.try_emplace(number, number).first->second : found->second;
}

} // namespace varnhold
