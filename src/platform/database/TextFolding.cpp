#include "platform/database/TextFolding.h"

#include <QChar>
#include <QList>
#include <QString>

#include <algorithm>

namespace varnhold {

namespace {

char foldedAscii(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

char32_t foldedCharacter(char32_t c)
{
    const char32_t result = QChar::toCaseFolded(c);
    return c >= 0x80 && result < 0x80 ? c : result;
}

/// No other character folds to it either: those that do are letters of the cased kinds, or have mappings.
bool isCaseless(char32_t c)
{
    switch (QChar::category(c)) {
    case QChar::Letter_Uppercase:
    case QChar::Letter_Lowercase:
    case QChar::Letter_Titlecase:
        return false;
    default:
        return QChar::toUpper(c) == c && QChar::toLower(c) == c;
    }
}

QString foldedCharacters(QStringView text)
{
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        char32_t c = text[i].unicode();
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            c = QChar::surrogateToUcs4(text[i], text[i + 1]);
            ++i;
        }
        result += QChar::fromUcs4(foldedCharacter(c));
    }
    return result;
}

/// The short way for Latin, Greek and Cyrillic. False, with something appended, when the text holds other
/// characters or is no UTF-8.
bool appendTwoByteCharacters(std::string& target, QByteArrayView utf8)
{
    for (qsizetype i = 0; i < utf8.size(); ++i) {
        const auto first = static_cast<unsigned char>(utf8[i]);
        if (first < 0x80) {
            target += foldedAscii(utf8[i]);
            continue;
        }
        const auto second = static_cast<unsigned char>(i + 1 < utf8.size() ? utf8[i + 1] : '\0');
        if (first < 0xC2 || first > 0xDF || (second & 0xC0) != 0x80)
            return false;
        const char32_t c = foldedCharacter((first & 0x1Fu) << 6 | (second & 0x3Fu));
        if (c >= 0x800)
            return false;
        target += static_cast<char>(0xC0 | c >> 6);
        target += static_cast<char>(0x80 | (c & 0x3F));
        ++i;
    }
    return true;
}

} // namespace

bool hasAsciiCaseOnly(QByteArrayView utf8)
{
    const auto isAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
    if (std::all_of(utf8.begin(), utf8.end(), isAscii))
        return true;
    const QList<uint> characters = QString::fromUtf8(utf8).toUcs4();
    return std::all_of(characters.begin(), characters.end(),
                       [](uint c) { return c < 0x80 || isCaseless(c); });
}

void appendFolded(std::string& target, QByteArrayView utf8)
{
    const std::size_t start = target.size();
    target.resize(start + static_cast<std::size_t>(utf8.size()));
    char* const out = target.data() + start;
    unsigned char all = 0;
    for (qsizetype i = 0; i < utf8.size(); ++i) {
        out[i] = foldedAscii(utf8[i]);
        all |= static_cast<unsigned char>(utf8[i]);
    }
    if (all < 0x80)
        return;
    target.resize(start);
    if (appendTwoByteCharacters(target, utf8))
        return;
    target.resize(start);
    const QByteArray bytes = foldedCharacters(QString::fromUtf8(utf8)).toUtf8();
    target.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

std::string folded(QByteArrayView utf8)
{
    std::string result;
    appendFolded(result, utf8);
    return result;
}

FoldedText::FoldedText(QByteArrayView utf8)
    : m_folded(folded(utf8)), m_asciiCaseOnly(varnhold::hasAsciiCaseOnly(utf8))
{
}

bool FoldedText::matches(QByteArrayView utf8) const
{
    if (m_asciiCaseOnly && static_cast<std::size_t>(utf8.size()) != m_folded.size())
        return false;
    m_other.clear();
    appendFolded(m_other, utf8);
    return m_other == m_folded;
}

} // namespace varnhold
