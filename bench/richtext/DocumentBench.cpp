// Rich text on its way to the screen, in bytes of its stream a second. Stages: Read to a value; Fill a
// document from the value; Show: from the stream to the painted notes box, its links found.
// Run with QT_QPA_PLATFORM=offscreen; arguments are the kilobytes of the stream.

#include "gamedb/NotesBox.h"
#include "platform/richtext/RichTextDocument.h"
#include "platform/richtext/RtfReader.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTextDocument>

namespace {

using namespace varnhold;

/// Notes as people write them: mostly plain sentences, a heading, bold words, colours, bullets, a link.
QByteArray notes(qsizetype size)
{
    const QByteArray piece =
        "\\pard\\sb120\\f1\\fs28\\b\\cf1 Update 1.0\\'34 \\endash  what is new\\b0\\fs20\\f0\\cf0\\par\n"
        "\\pard The patch repairs \\b saving\\b0  on large disks, makes loading of the third chapter shorter "
        "and takes away the stutter that some players saw when many enemies come up at once. It needs the "
        "system software 4.21 or later.\\par\n"
        "\\pard{\\pntext\\'b7\\tab}{\\*\\pn\\pnlvlblt\\pnindent360}\\fi-360\\li720 new: \\cf2 co-operative "
        "mode\\cf0 , \\i four maps\\i0\\par\n"
        "{\\pntext\\'b7\\tab}sign-in no longer fails after midnight\\par\n"
        "\\pard See http://updates.example/BLUS30443?v=104 or write to mailto:help@example.org, "
        "\\u1055?\\u1088?\\u1080?\\u1074?\\u1077?\\u1090?!\\par\n";
    QByteArray stream = "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fswiss DejaVu Sans;}{\\f1\\froman "
                        "DejaVu Serif;}}{\\colortbl;\\red160\\green0\\blue0;\\red0\\green96\\blue0;}\n";
    while (stream.size() + piece.size() < size)
        stream += piece;
    return stream + '}';
}

void setBytes(benchmark::State& state, const QByteArray& stream)
{
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * stream.size());
}

void Read(benchmark::State& state)
{
    const QByteArray stream = notes(state.range(0) * 1024);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(readRtf(stream));
    setBytes(state, stream);
}

void Fill(benchmark::State& state)
{
    const QByteArray stream = notes(state.range(0) * 1024);
    const RichText text = readRtf(stream);
    QTextDocument document;
    for ([[maybe_unused]] auto _ : state)
        setRichText(document, text);
    setBytes(state, stream);
}

void FromDocument(benchmark::State& state)
{
    const QByteArray stream = notes(state.range(0) * 1024);
    QTextDocument document;
    setRichText(document, readRtf(stream));
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(richTextOf(document));
    setBytes(state, stream);
}

void Show(benchmark::State& state)
{
    const QByteArray stream = notes(state.range(0) * 1024);
    const QString rtf = QString::fromLatin1(stream);
    NotesBox box;
    box.resize(290, 120);
    box.show();
    QCoreApplication::processEvents(); // or it has nothing to paint on
    for ([[maybe_unused]] auto _ : state) {
        box.setTextRTF(rtf);
        box.Make_Links();
        box.viewport()->repaint();
    }
    setBytes(state, stream);
}

BENCHMARK(Read)->Arg(2)->Arg(100)->Arg(10 * 1024)->Unit(benchmark::kMillisecond);
BENCHMARK(Fill)->Arg(2)->Arg(100)->Arg(10 * 1024)->Unit(benchmark::kMillisecond);
BENCHMARK(FromDocument)->Arg(2)->Arg(100)->Arg(10 * 1024)->Unit(benchmark::kMillisecond);
BENCHMARK(Show)->Arg(2)->Arg(100)->Arg(10 * 1024)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
