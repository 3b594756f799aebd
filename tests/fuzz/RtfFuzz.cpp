// Reading damaged rich text.

#include "fuzz/FuzzTarget.h"
#include "platform/richtext/RtfReader.h"
#include "platform/richtext/RtfWriter.h"

#include <algorithm>

namespace varnhold::test {

namespace {

qsizetype sizeOf(const RichText& text)
{
    qsizetype size = 0;
    for (const QByteArray& kept : text.header)
        size += kept.size();
    for (const RichText::Paragraph& paragraph : text.paragraphs)
        for (const RichText::Run& run : paragraph.runs)
            size += run.text.size() + run.verbatim.size();
    return size;
}

} // namespace

void check(const QByteArray& input)
{
    const RichText read = readRtf(input);
    require(!read.paragraphs.empty(), "no paragraph", input);
    require(read.plainText().size() <= input.size(), "more text than bytes", input);
    require(sizeOf(read) <= 16 * input.size() + 64, "too much kept", input);
    const QByteArray written = writeRtf(read);
    require(std::all_of(written.begin(), written.end(), [](char c) { return c > 0; }), "8-bit bytes", input);
    const RichText again = readRtf(written);
    require(again == read, "reads back as something else", input);
    require(writeRtf(again) == written, "writes differently", input);
}

const std::vector<QByteArray>& pieces()
{
    static const std::vector<QByteArray> all =
        piecesOf("{|}|\\|{\\*\\|\\bin5 |\\bin999999999 |\\u-10179?|\\uc0 |\\uc3 |\\'8|\\'83|\\par |"
                 "\\pard |\\plain |{\\field|{\\fldrslt |{\\*\\fldinst |\\cell |\\row |{\\pntext |"
                 "{\\listtext |{\\*\\pn|\\pnlvlblt |{\\upr|{\\*\\ud |\\v |\\deleted |\\f0|\\f1 |\\cf1 |"
                 "\\cf2|{\\pict |\\sect |\\page |\\b |\\tx360 |{\\fonttbl|{\\f9\\fcharset128 a;}|"
                 "{\\colortbl;\\red1;}|\\ansicpg932 |\\deff1 |{\\info |{\\footnote |{\\*\\unheard |\\~|"
                 "\\u8233 ?|\x83|\n|\\\n|-2147483649|99999999999|\\ls1 ",
                 {QByteArray(1, '\0')});
    return all;
}

} // namespace varnhold::test
