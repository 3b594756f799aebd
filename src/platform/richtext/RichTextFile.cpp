#include "platform/richtext/RichTextFile.h"

#include "platform/CodePage.h"
#include "platform/ReadFile.h"
#include "platform/ReplaceFile.h"
#include "platform/richtext/RtfReader.h"
#include "platform/richtext/RtfWriter.h"

#include <QFileInfo>

namespace varnhold {

namespace {

constexpr std::int64_t largestNotes = std::int64_t{64} * 1024 * 1024;

void save(const QString& path, const QByteArray& bytes)
{
    clearLeftovers(QFileInfo(path).path());
    replaceFile(path, bytes);
}

} // namespace

RichText loadNotes(const QString& path)
{
    return readRtf(readFile(path, largestNotes));
}

void saveRtf(const QString& path, const RichText& text)
{
    save(path, writeRtf(text));
}

void savePlainText(const QString& path, const QString& text)
{
    QString lines = text;
    if (!lines.endsWith(u'\n'))
        lines += u'\n';
    lines.replace(u'\n', QLatin1String("\r\n"));
    const std::optional<QByteArray> bytes = toCodePage(lines);
    save(path, bytes ? *bytes : "\xEF\xBB\xBF" + lines.toUtf8());
}

} // namespace varnhold
