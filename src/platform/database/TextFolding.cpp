#include "platform/database/TextFolding.h"

#include <QChar>
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

} // namespace

bool isAscii(QByteArrayView utf8)
{
    unsigned char all = 0;
    for (const char c : utf8)
        all |= static_cast<unsigned char>(c);
    return all < 0x80;
}

void appendFolded(std::string& target, QByteArrayView utf8)
{
    if (isAscii(utf8)) {
        const std::size_t start = target.size();
        target.resize(start + static_cast<std::size_t>(utf8.size()));
        std::transform(utf8.begin(), utf8.end(), target.begin() + static_cast<std::ptrdiff_t>(start),
                       foldedAscii);
        return;
    }
    const QByteArray bytes = foldedCharacters(QString::fromUtf8(utf8)).toUtf8();
    target.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

std::string folded(QByteArrayView utf8)
{
    std::string result;
    appendFolded(result, utf8);
    return result;
}

bool sameFolded(QStringView one, QStringView other)
{
    return foldedCharacters(one) == foldedCharacters(other);
}

FoldedText::FoldedText(QByteArrayView utf8) : m_folded(folded(utf8)), m_ascii(varnhold::isAscii(utf8)) {}

bool FoldedText::matches(QByteArrayView utf8) const
{
    if (m_ascii && static_cast<std::size_t>(utf8.size()) != m_folded.size())
        return false;
    m_other.clear();
    appendFolded(m_other, utf8);
    return m_other == m_folded;
}

} // namespace varnhold
