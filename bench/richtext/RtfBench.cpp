// Rich text: reading and writing notes of several kinds, in megabytes of stream a second, and reading against
// the bare scan of the same bytes for backslashes and braces, which no reader can do without.

#include "platform/richtext/RtfReader.h"
#include "platform/richtext/RtfWriter.h"
#include "support/PairedRuns.h"

#include <cstdlib>
#include <cstring>

namespace varnhold::bench {

namespace {

constexpr qsizetype megabyte = 1000000;
constexpr double leastMegabytes = 20; // a second

const QByteArray head =
    "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1{\\fonttbl{\\f0\\fnil\\fcharset0 Sans;}"
    "{\\f1\\fnil\\fcharset2 Symbol;}{\\f2\\fnil\\fcharset204 Serif;}{\\f3\\fnil\\fcharset128 Gothic;}}"
    "{\\colortbl ;\\red255\\green0\\blue0;\\red0\\green0\\blue255;}\r\n\\pard\\f0\\fs20 ";

/// The piece again and again, to about that size.
QByteArray documentOf(const QByteArray& piece, qsizetype size)
{
    return head + piece.repeated(size / piece.size() + 1) + '}';
}

struct Kind
{
    const char* name;
    QByteArray piece;
};

const Kind kinds[] = {
    {"long paragraphs",
     "The update mends what was reported since the last one: saves are no longer lost when the room is left "
     "early, the list of friends keeps its order, and the sound goes on when the picture is changed. It "
     "takes "
     "a few minutes to install and needs about as much free space as it is large.\\par\r\n"},
    {"every word formatted", "\\b one\\b0  \\i two\\i0  \\cf1 three\\cf0  {\\fs28\\ul four} five\\par\r\n"
                             "\\pard{\\pntext\\f1\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf1\\pnindent200{\\pntxtb\\'"
                             "B7}}\\fi-200\\li200 six \\f2 seven"
                             "\\f0\\par\\pard\\qc\\tx720 eight\\tab nine\\line ten\\par\r\n"},
    {"as an office suite writes it", "{\\rtlch\\fcs1 \\af31507\\afs22 \\ltrch\\fcs0 "
                                     "\\f0\\fs22\\insrsid1234567 A few words }{\\rtlch\\fcs1 \\ab\\af0 "
                                     "\\ltrch\\fcs0 \\b\\f0\\fs22\\cf1\\lang1033\\langfe1033\\insrsid7654321 "
                                     "then bold}{\\rtlch\\fcs1 \\af0 \\ltrch\\fcs0 "
                                     "\\insrsid1\\charrsid2 \r\n\\par }\\pard\\plain \\ltrpar\\ql "
                                     "\\li0\\ri0\\sa200\\sl276\\slmult1\\widctlpar\\wrapdefault"
                                     "\\aspalpha\\aspnum\\faauto\\adjustright\\rin0\\lin0\\itap0 "},
    {"unicode",
     "\\u1055?\\u1088?\\u1080?\\u1074?\\u1077?\\u1090? \\u20013?\\u25991?\\u-10179?\\u-8704?\\par\r\n"},
    {"code page of one byte", "\\f2\\'cf\\'f0\\'e8\\'e2\\'e5\\'f2\\f0  word \\par\r\n"},
    {"code page of two bytes", "\\f3\\'83\\'65\\'83\\'58\\'83\\'67\\'82\\'cd\\f0  word \\par\r\n"},
    {"pictures", "{\\*\\shppict{\\pict\\pngblip\\picw100\\pich100 " +
                     QByteArray("89504e470d0a1a0a00ff11ee22dd33cc\r\n").repeated(500) + "}}text\\par\r\n"},
};

double fastest(const Measurement& measurement)
{
    double best = measurement();
    for (int i = 0; i < 8; ++i)
        best = std::min(best, measurement());
    return best;
}

/// Bytes that a reader must look at: their number keeps the scan from being dropped.
qsizetype bareScan(const QByteArray& stream)
{
    qsizetype found = 0;
    const char* const end = stream.constData() + stream.size();
    for (const char* at = stream.constData();
         (at = std::find_if(at, end, [](char c) { return c == '\\' || c == '{' || c == '}'; })) != end; ++at)
        ++found;
    return found;
}

bool benchKind(const Kind& kind)
{
    const QByteArray stream = documentOf(kind.piece, 8 * megabyte);
    const double size = static_cast<double>(stream.size()) / static_cast<double>(megabyte);
    RichText text;
    QByteArray written;
    qsizetype found = 0;
    const double read = fastest([&] { return cpuSecondsOf([&] { text = readRtf(stream); }); });
    const double write = fastest([&] { return cpuSecondsOf([&] { written = writeRtf(text); }); });
    const double scan = fastest([&] { return cpuSecondsOf([&] { found = bareScan(stream); }); });
    if (found == 0 || text.paragraphs.empty()) {
        std::fprintf(stderr, "nothing was read\n");
        std::exit(1);
    }
    const bool kept = size / read >= leastMegabytes;
    std::printf("%-30s read %7.1f MB/s (at least %.0f: %s), %4.1f times the bare scan; written %7.1f MB/s\n",
                kind.name, size / read, leastMegabytes, kept ? "kept" : "MISSED", read / scan,
                static_cast<double>(written.size()) / static_cast<double>(megabyte) / write);
    return kept;
}

/// Time a megabyte must not grow with the size.
void benchGrowth(const Kind& kind)
{
    std::printf("%-30s", kind.name);
    for (const qsizetype megabytes : {1, 4, 16, 64}) {
        const QByteArray stream = documentOf(kind.piece, megabytes * megabyte);
        RichText text;
        const double seconds = fastest([&] { return cpuSecondsOf([&] { text = readRtf(stream); }); });
        std::printf(" %3d MB: %6.2f ms a MB", static_cast<int>(megabytes),
                    seconds * 1e3 / static_cast<double>(megabytes));
    }
    std::printf("\n");
}

} // namespace

} // namespace varnhold::bench

int main()
{
    using namespace varnhold::bench;
    bool kept = true;
    for (const Kind& kind : kinds)
        kept = benchKind(kind) && kept;
    benchGrowth(kinds[0]);
    benchGrowth(kinds[1]);
    return kept ? 0 : 1;
}
