// Cutting damaged lists, and reading damaged comma-separated values.

#include "fuzz/FuzzTarget.h"
#include "search/CsvText.h"
#include "search/ListText.h"

#include <algorithm>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

int linesOf(const QString& text)
{
    int lines = 0;
    forEachLine(text, [&](QStringView line) {
        require(!line.contains(u'\n') && !line.contains(u'\r'), "a line of two", {});
        ++lines;
    });
    return lines;
}

void checkList(const QString& text, const ListFormat& format, const QByteArray& input)
{
    TextRows rows;
    ListCutter cutter(format);
    forEachLine(text, [&](QStringView line) {
        cutter.cut(line, rows);
        const int row = rows.count() - 1;
        require(line.startsWith(rows.id(row)) &&
                    rows.id(row).size() == std::min<qsizetype>(line.size(), format.left),
                "an id from elsewhere", input);
        require(rows.name(row).size() <= std::max<qsizetype>(line.size() - format.right + 1, 0),
                "a name too long", input);
    });
    require(linesOf(decodedList(listBytes(rows))) == rows.count(), "rows lost on the way to a file", input);
}

void checkCsv(const QString& text, const QByteArray& input)
{
    CsvReader reader(text);
    qsizetype line = 0;
    while (reader.next()) {
        require(!reader.fields().isEmpty() && reader.line() > line, "a record from nowhere", input);
        line = reader.line();
        if (reader.isBroken())
            continue;
        const QString written = QString::fromUtf8(csvRecord(reader.fields()));
        CsvReader again(written);
        require(again.next() && !again.isBroken() && again.fields() == reader.fields() && !again.next(),
                "not what was written", input);
    }
}

} // namespace

void check(const QByteArray& input)
{
    QString text = decodedList(input);
    text.remove(QChar(QChar::ByteOrderMark)); // at a text's start it is none of it
    checkList(text, {9, 11, u"Chr(13),vbCrLf,,x"_s}, input);
    checkList(text, {2, 1, {}}, input);
    checkCsv(text, input);
}

const std::vector<QByteArray>& pieces()
{
    static const std::vector<QByteArray> all = {
        "\r\n",    "\n",           "\r",       ",",    "\"", "\"\"", "BLUS30443 ",       "vbCrLf",
        "Chr(13)", "\xef\xbb\xbf", "\xc3\xa9", "\xff", " ",  "x",    "\xf0\x9f\x8e\xae", QByteArray(1, '\0')};
    return all;
}

} // namespace varnhold::test
