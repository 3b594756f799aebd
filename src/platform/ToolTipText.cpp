#include "platform/ToolTipText.h"

#include <QTextDocument>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestText = 1000;
constexpr qsizetype longestLine = 120; // only rich text is wrapped

} // namespace

QString toolTipText(const QString& text)
{
    const QString shown = text.size() > longestText ? text.left(longestText) + u'\u2026' : text;
    if (shown.size() <= longestLine && !Qt::mightBeRichText(shown))
        return shown;
    return u"<qt>"_s + shown.toHtmlEscaped().replace(u'\n', u"<br>"_s) + u"</qt>"_s;
}

} // namespace varnhold
