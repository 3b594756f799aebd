#include "tools/ReportFile.h"

#include "platform/ReplaceFile.h"
#include "platform/RunTimeError.h"
#include "platform/richtext/RtfText.h"
#include "platform/richtext/RtfWriter.h"
#include "state/Paths.h"

#include <QFileInfo>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr int reportHalfPoints = 20;
constexpr quint32 black = 0;

QString lineOf(QStringView text)
{
    QString line;
    line.reserve(text.size());
    for (const QChar each : text) {
        if (const char16_t character = rtfTextCharacter(each.unicode()); character != 0)
            line += QChar(character);
    }
    return line;
}

} // namespace

RichText::CharacterFormat reportLetters()
{
    RichText::CharacterFormat letters;
    letters.font = u"Arial Unicode MS"_s;
    letters.halfPoints = reportHalfPoints;
    letters.color = black;
    return letters;
}

RichText reportContents(const QString& text)
{
    const RichText::CharacterFormat letters = reportLetters();
    RichText contents;
    for (const QStringView each : QStringView(text).split(u"\r\n")) {
        RichText::Paragraph paragraph;
        QString line = lineOf(each);
        if (!line.isEmpty())
            paragraph.runs.push_back({letters, std::move(line), {}, false});
        contents.paragraphs.push_back(std::move(paragraph));
    }
    return contents;
}

QString reportPath(const Paths& paths, const QString& gameId)
{
    if (gameId.contains(u'/') || gameId.contains(QChar::Null))
        throw RunTimeError(errors::pathFileAccess);
    return paths.root + u'/' + gameId + u".rtf"_s;
}

void saveReport(const QString& path, const RichText& contents)
{
    clearLeftovers(QFileInfo(path).path());
    replaceFile(path, writeRtf(contents), FileReplacement::Links::Replace);
}

} // namespace varnhold
