#pragma once

#include <QByteArray>
#include <QStringView>

namespace varnhold {

/// What may stand in a run's text: line ends of all kinds become U+2028, NUL becomes nothing (0).
inline char16_t rtfTextCharacter(char16_t character)
{
    switch (character) {
    case u'\n':
    case u'\v':
    case 0x2029:
        return 0x2028;
    case u'\r':
        return 0;
    default:
        return character;
    }
}

/// The character that a backslash and this byte stand for; 0 for none.
inline char16_t rtfSymbol(unsigned char byte)
{
    switch (byte) {
    case '{':
    case '}':
    case '\\':
    case '\t':
        return byte;
    case '~':
        return 0x00A0;
    case '-':
        return 0x00AD;
    case '_':
        return 0x2011;
    default:
        return 0;
    }
}

/// Appends text as a stream holds it, in 7-bit characters; with `codePage` what Windows-1252 has goes as
/// \'hh, all else as \u.
void appendRtfText(QByteArray& stream, QStringView text, bool codePage);

} // namespace varnhold
