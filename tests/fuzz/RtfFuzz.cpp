// Reading damaged rich text. Linked with libFuzzer where the compiler has it (VARNHOLD_FUZZ); else a program
// of its own:
//   rtf_fuzz FILE...                      replays the files
//   rtf_fuzz --mutate COUNT SEED FOLDER   COUNT damaged variants of the folder's files, the same for one seed
// An outcome that is not allowed ends the program by abort(), after writing the input to rtf_fuzz.failed.

#include "platform/richtext/RtfReader.h"
#include "platform/richtext/RtfWriter.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace varnhold::test {

namespace {

void require(bool condition, const char* what, const QByteArray& input)
{
    if (condition)
        return;
    QFile file(QStringLiteral("rtf_fuzz.failed"));
    if (file.open(QIODevice::WriteOnly))
        file.write(input);
    file.close();
    std::fprintf(stderr, "%s, input of %lld bytes in rtf_fuzz.failed\n", what,
                 static_cast<long long>(input.size()));
    std::abort();
}

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

#ifndef VARNHOLD_LIBFUZZER

using Random = std::mt19937;

qsizetype below(Random& random, qsizetype end)
{
    return end > 0 ? static_cast<qsizetype>(random() % static_cast<unsigned long>(end)) : 0;
}

/// One damage of those that files and editors do.
void damage(QByteArray& input, const QList<QByteArray>& corpus, Random& random)
{
    static const QByteArray pieces[] = {"{",
                                        "}",
                                        "\\",
                                        "{\\*\\",
                                        "\\bin5 ",
                                        "\\bin999999999 ",
                                        "\\u-10179?",
                                        "\\uc0 ",
                                        "\\uc3 ",
                                        "\\'8",
                                        "\\'83",
                                        "\\par ",
                                        "\\pard ",
                                        "\\plain ",
                                        "{\\field",
                                        "{\\fldrslt ",
                                        "{\\*\\fldinst ",
                                        "\\cell ",
                                        "\\row ",
                                        "{\\pntext ",
                                        "{\\listtext ",
                                        "{\\*\\pn",
                                        "\\pnlvlblt ",
                                        "{\\upr",
                                        "{\\*\\ud ",
                                        "\\v ",
                                        "\\deleted ",
                                        "\\f0",
                                        "\\f1 ",
                                        "\\cf1 ",
                                        "\\cf2",
                                        "{\\pict ",
                                        "\\sect ",
                                        "\\page ",
                                        "\\b ",
                                        "\\tx360 ",
                                        "{\\fonttbl",
                                        "{\\f9\\fcharset128 a;}",
                                        "{\\colortbl;\\red1;}",
                                        "\\ansicpg932 ",
                                        "\\deff1 ",
                                        "{\\info ",
                                        "{\\footnote ",
                                        "{\\*\\unheard ",
                                        "\\~",
                                        "\\u8233 ?",
                                        QByteArray(1, '\0'),
                                        "\x83",
                                        "\n",
                                        "\\\n",
                                        "-2147483649",
                                        "99999999999",
                                        "\\ls1 "};
    const qsizetype at = below(random, input.size() + 1);
    const qsizetype length = below(random, std::min<qsizetype>(input.size() - at, 200) + 1);
    switch (random() % 8) {
    case 0:
        if (at < input.size())
            input[at] = static_cast<char>(random());
        break;
    case 1:
        input.truncate(at);
        break;
    case 2:
        input.remove(at, length);
        break;
    case 3:
        input.insert(at, input.sliced(at, length).repeated(1 + below(random, 4)));
        break;
    case 4: {
        const QByteArray& other = corpus.at(below(random, corpus.size()));
        const qsizetype from = below(random, other.size());
        input.insert(at,
                     other.sliced(from, below(random, std::min<qsizetype>(other.size() - from, 200) + 1)));
        break;
    }
    default:
        input.insert(at, pieces[below(random, std::size(pieces))]);
        break;
    }
}

int mutate(int count, unsigned seed, const QString& folder)
{
    QList<QByteArray> corpus;
    const QDir dir(folder);
    for (const QString& name : dir.entryList(QDir::Files, QDir::Name)) {
        QFile file(dir.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        corpus.append(file.readAll());
        check(corpus.constLast());
    }
    if (corpus.isEmpty())
        return 1;
    for (int i = 0; i < count; ++i) {
        Random random(seed + static_cast<unsigned>(i));
        QByteArray input = corpus.at(below(random, corpus.size()));
        for (auto left = 1 + below(random, 12); left > 0; --left)
            damage(input, corpus, random);
        check(input);
    }
    std::printf("%d variants of %lld files\n", count, static_cast<long long>(corpus.size()));
    return 0;
}

#endif

} // namespace

} // namespace varnhold::test

#ifdef VARNHOLD_LIBFUZZER

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size);

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    varnhold::test::check(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    return 0;
}

#else

int main(int argc, char** argv)
{
    using namespace varnhold::test;
    if (argc == 5 && QByteArrayView(argv[1]) == "--mutate")
        return mutate(std::atoi(argv[2]), static_cast<unsigned>(std::atoi(argv[3])),
                      QString::fromLocal8Bit(argv[4]));
    for (int i = 1; i < argc; ++i) {
        QFile file(QString::fromLocal8Bit(argv[i]));
        if (!file.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "cannot read %s\n", argv[i]);
            return 1;
        }
        check(file.readAll());
    }
    return 0;
}

#endif
