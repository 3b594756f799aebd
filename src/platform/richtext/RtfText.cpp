#include "platform/richtext/RtfText.h"

#include "platform/CodePage.h"

namespace varnhold {

namespace {

void appendEscaped(QByteArray& stream, char16_t character, bool codePage)
{
    switch (character) {
    case u'\\':
    case u'{':
    case u'}':
        stream += '\\';
        stream += static_cast<char>(character);
        return;
    case u'\t':
        stream += "\\tab ";
        return;
    case 0x2028:
        stream += "\\line ";
        return;
    case 0x00A0:
        stream += "\\~";
        return;
    case 0x00AD:
        stream += "\\-";
        return;
    case 0x2011:
        stream += "\\_";
        return;
    default:
        break;
    }
    if (codePage && character >= 0x80) {
        const QChar one(character);
        if (const auto byte = toCodePage(QStringView(&one, 1))) {
            stream += "\\'";
            stream += byte->toHex();
            return;
        }
    }
    stream += "\\u";
    stream += QByteArray::number(static_cast<qint16>(character));
    stream += '?';
}

} // namespace

void appendRtfText(QByteArray& stream, QStringView text, bool codePage)
{
    for (const QChar c : text) {
        const char16_t character = rtfTextCharacter(c.unicode());
        if (character >= 0x20 && character < 0x80 && character != u'\\' && character != u'{' &&
            character != u'}')
            stream += static_cast<char>(character);
        else if (character != 0)
            appendEscaped(stream, character, codePage);
    }
}

} // namespace varnhold
