#include "platform/ToolTipText.h"

#include <QTextDocument>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestText = 1000;
constexpr qsizetype longestWord = 40;
constexpr qsizetype longestLine = 120; // only rich text is wrapped

/// A word that is longer than a line may break anywhere, so that the tip keeps within the screen.
QString withBreaks(const QString& text)
{
    constexpr QChar mayBreak = QChar(0x200B);
    QString broken;
    qsizetype inWord = 0;
    for (const QChar each : text) {
        inWord = each.isSpace() ? 0 : inWord + 1;
        if (inWord > longestWord && !each.isLowSurrogate())
            broken += mayBreak;
        broken += each;
    }
    return broken;
}

} // namespace

QString toolTipText(const QString& text)
{
    const QString cut = text.size() > longestText ? text.left(longestText) + u'\u2026' : text;
    if (cut.size() <= longestLine && !Qt::mightBeRichText(cut))
        return cut;
    return u"<qt>"_s + withBreaks(cut).toHtmlEscaped().replace(u'\n', u"<br>"_s) + u"</qt>"_s;
}

} // namespace varnhold
