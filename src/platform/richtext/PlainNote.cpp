#include "platform/richtext/PlainNote.h"

#include "platform/CodePage.h"
#include "platform/richtext/RtfText.h"

#include <QList>
#include <QStringDecoder>

namespace varnhold {

RichText readPlainNote(QByteArrayView note)
{
    QString text;
    const auto isUtf8 = [&] {
        QStringDecoder decoder(QStringConverter::Utf8);
        text = decoder.decode(note);
        text += QString(decoder.decode("\n")); // which tells a character that was cut off at the end
        text.chop(1);
        return !decoder.hasError();
    };
    if (note.startsWith("\xFF\xFE") || note.startsWith("\xFE\xFF")) {
        text = QStringDecoder(QStringConverter::Utf16).decode(note);
    } else {
        while (note.endsWith('\0'))
            note.chop(1);
        if (!isUtf8())
            text = fromCodePage(note);
    }
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(u'\r', u'\n').replace(QChar::ParagraphSeparator, u'\n');
    RichText result;
    for (const QStringView line : QStringView(text).split(u'\n')) {
        RichText::Paragraph& paragraph = result.paragraphs.emplace_back();
        QString shown;
        shown.reserve(line.size());
        for (const QChar c : line)
            if (const char16_t character = rtfTextCharacter(c.unicode()))
                shown += QChar(character);
        if (!shown.isEmpty())
            paragraph.runs.push_back({{}, shown, {}});
    }
    return result;
}

} // namespace varnhold
