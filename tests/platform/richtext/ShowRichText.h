#pragma once

#include "platform/richtext/RichText.h"

#include <QString>
#include <QStringList>

namespace varnhold::test {

/// A value as one line a paragraph, for comparing and for reading: `(center li720) plain <b 24 Arial
/// #0000FF>bold`. What is at its default is not shown; a run begins with `<...>`, or with `<>` behind one of
/// another format; a verbatim group stands in `[...]`, a list's number in `{...}`; the line break is `|`, the
/// tab `~`. The size that a stream has by itself, 24, is not shown, and the box's own as `own`.
inline QString shown(const RichText& text)
{
    using namespace Qt::StringLiterals;
    constexpr int plainHalfPoints = 24;
    QString all;
    for (const RichText::Paragraph& paragraph : text.paragraphs) {
        const RichText::ParagraphFormat& format = paragraph.format;
        QStringList words;
        const auto length = [&words](const QString& name, int value) {
            if (value)
                words << name + QString::number(value);
        };
        switch (format.alignment) {
        case RichText::Alignment::Left:
            break;
        case RichText::Alignment::Center:
            words << u"center"_s;
            break;
        case RichText::Alignment::Right:
            words << u"right"_s;
            break;
        case RichText::Alignment::Justify:
            words << u"justify"_s;
            break;
        }
        length(u"li"_s, format.leftIndent);
        length(u"ri"_s, format.rightIndent);
        length(u"fi"_s, format.firstIndent);
        if (format.bullet)
            words << u"bullet"_s + QString::number(format.bulletIndent);
        for (const int tab : format.tabs)
            length(u"tx"_s, tab);
        length(u"ls"_s, format.list);
        length(u"ilvl"_s, format.listLevel);
        if (!format.oldList.isEmpty())
            words << QString::fromLatin1(format.oldList);
        if (!words.isEmpty())
            all += u'(' + words.join(u' ') + u')';
        RichText::CharacterFormat last;
        last.halfPoints = plainHalfPoints;
        for (const RichText::Run& run : paragraph.runs) {
            const RichText::CharacterFormat& now = run.format;
            if (now != last || (&run != &paragraph.runs.front() && run.verbatim.isEmpty() &&
                                (&run - 1)->verbatim.isEmpty())) {
                words.clear();
                for (const auto& [on, name] :
                     {std::pair(now.bold, u"b"_s), std::pair(now.italic, u"i"_s),
                      std::pair(now.underline, u"u"_s), std::pair(now.strikethrough, u"s"_s),
                      std::pair(now.script == RichText::Script::Super, u"super"_s),
                      std::pair(now.script == RichText::Script::Sub, u"sub"_s)})
                    if (on)
                        words << name;
                if (!now.font.isEmpty())
                    words << now.font;
                if (now.halfPoints != plainHalfPoints)
                    words << (now.halfPoints ? QString::number(now.halfPoints) : u"own"_s);
                if (now.color)
                    words << u'#' + QString::number(*now.color, 16);
                all += u'<' + words.join(u' ') + u'>';
                last = now;
            }
            all += run.isNumber ? u'{' + run.text + u'}' : run.text;
            if (!run.verbatim.isEmpty())
                all += u'[' + QString::fromLatin1(run.verbatim) + u']';
        }
        all += u'\n';
    }
    all.chop(1);
    return all.replace(QChar::LineSeparator, u'|').replace(u'\t', u'~');
}

} // namespace varnhold::test
