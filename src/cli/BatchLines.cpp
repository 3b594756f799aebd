#include "cli/BatchLines.h"

#include "cli/Arguments.h"
#include "cli/PackageFetch.h"

#include <algorithm>

namespace varnhold::cli {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype idLength = 9;

QString idOf(const QString& line)
{
    for (const QString& text : {line, line.first(std::min(line.size(), idLength))}) {
        try {
            return readGameId(text);
        } catch (const UsageError&) { // not this way
        }
    }
    return {};
}

BatchLine readLine(const QString& line)
{
    if (line.contains(u"://"_s)) {
        const QString fault = addressFault(line);
        return {0, fault.isEmpty() ? BatchLine::Kind::Url : BatchLine::Kind::None, line, fault};
    }
    const QString id = idOf(line);
    if (id.isEmpty())
        return {0, BatchLine::Kind::None, line, u"is no id and no address of a package"_s};
    return {0, BatchLine::Kind::Title, id, {}};
}

} // namespace

QList<BatchLine> readBatchLines(QString text)
{
    if (text.startsWith(QChar::ByteOrderMark))
        text.remove(0, 1);
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    QList<BatchLine> read;
    int number = 0;
    for (const QString& whole : text.split(u'\n')) {
        ++number;
        const QString line = whole.section(u'#', 0, 0).trimmed();
        if (line.isEmpty())
            continue;
        read.append(readLine(line));
        read.last().number = number;
    }
    return read;
}

} // namespace varnhold::cli
