#include "search/ListText.h"

#include "search/CsvText.h"
#include "support/PrintText.h"

#include <gtest/gtest.h>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

QStringList cut(const QString& text, const ListFormat& format)
{
    TextRows rows;
    ListCutter cutter(format);
    forEachLine(text, [&](QStringView line) { cutter.cut(line, rows); });
    QStringList all;
    for (int row = 0; row < rows.count(); ++row)
        all << rows.id(row).toString() + u'|' + rows.name(row).toString();
    return all;
}

} // namespace

TEST(ListText, CutsLines)
{
    const QString words = u"Chr(13),vbCrLf,Chr(10),"_s;
    const struct
    {
        QString text;
        ListFormat format;
        QStringList rows;
    } cases[] = {
        {u""_s, {}, {}},
        {u"ABCD12345 Name\r\n"_s, {}, {u"ABCD12345|Name"_s}},
        {u"ABCD12345 Name"_s, {}, {u"ABCD12345|Name"_s}},
        {u"A\rB\n\nC\r\n\r\n"_s, {}, {u"A|"_s, u"B|"_s, u"|"_s, u"C|"_s, u"|"_s}},
        {u"ABCDEF"_s, {4, 2, {}}, {u"ABCD|BCDEF"_s}}, // margins that cross
        {u"ABCDEF"_s, {0, 0, {}}, {u"|ABCDEF"_s}},
        {u"ABCD12345 avbCrLfbChr(1vbCrLf3)"_s, {9, 11, words}, {u"ABCD12345|abChr(13)"_s}}, // in their order
        {u"ABCD12345 avbcrlf, b"_s, {9, 11, u",, b"_s}, {u"ABCD12345|avbcrlf,"_s}},
        {u"ABCD12345 vbCrLf"_s, {9, 11, words}, {u"ABCD12345|"_s}},
    };
    for (const auto& row : cases)
        EXPECT_EQ(cut(row.text, row.format), row.rows) << qPrintable(row.text);
}

TEST(ListText, ReadsWhatItWrites)
{
    const struct
    {
        QString name;
        QByteArray bytes;
    } cases[] = {
        {u"plain"_s, "ABCD12345 plain\r\n"},
        {u"caf\u00e9"_s, "ABCD12345 caf\xe9\r\n"},
        {u"\u00c3\u00a9"_s, "\xef\xbb\xbf"
                            "ABCD12345 \xc3\x83\xc2\xa9\r\n"}, // would read as one letter
        {u"\u732b"_s, "\xef\xbb\xbf"
                      "ABCD12345 \xe7\x8c\xab\r\n"},
        {u"a\r\nb\rc"_s, "ABCD12345 a b c\r\n"},
    };
    for (const auto& row : cases) {
        TextRows rows;
        rows.append(u"ABCD12345", row.name);
        EXPECT_EQ(listBytes(rows), row.bytes);
        QString name = row.name;
        name.replace(u"\r\n"_s, u" "_s).replace(u'\r', u' ');
        EXPECT_EQ(cut(decodedList(row.bytes), {}), QStringList{u"ABCD12345|"_s + name});
    }
    EXPECT_EQ(decodedList("a\xff"), u"a\u00ff"_s);
}

TEST(CsvText, ReadsWhatItWrites)
{
    const QList<QStringList> records = {{u"A, \"b\""_s, u"c\r\nd"_s}, {u""_s}, {u"\u00e9"_s, u""_s, u"x"_s}};
    QByteArray bytes;
    for (const QStringList& record : records)
        bytes += csvRecord(record);
    const QString text = QString::fromUtf8(bytes);
    CsvReader reader(text);
    for (const QStringList& record : records) {
        ASSERT_TRUE(reader.next());
        EXPECT_EQ(reader.fields(), record);
        EXPECT_FALSE(reader.isBroken());
    }
    EXPECT_FALSE(reader.next());
}

TEST(CsvText, TellsBrokenRecordsAndTheirLines)
{
    CsvReader reader(u"\n\"a\nb\"\n\"c\"d,e\n\"f");
    const struct
    {
        QStringList fields;
        qsizetype line;
        bool broken;
    } records[] = {{{u"a\nb"_s}, 2, false}, {{u"cd"_s, u"e"_s}, 4, true}, {{u"f"_s}, 5, true}};
    for (const auto& record : records) {
        ASSERT_TRUE(reader.next());
        EXPECT_EQ(reader.fields(), record.fields);
        EXPECT_EQ(reader.line(), record.line);
        EXPECT_EQ(reader.isBroken(), record.broken);
    }
    EXPECT_FALSE(reader.next());
}

} // namespace varnhold::test
