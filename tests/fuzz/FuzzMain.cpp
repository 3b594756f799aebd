// Drives one target. Linked with libFuzzer where the compiler has it (VARNHOLD_FUZZ); else a program of its
// own:
//   x_fuzz FILE...                      replays the files
//   x_fuzz --mutate COUNT SEED FOLDER   COUNT damaged variants of the folder's files, the same for one seed

#include "fuzz/FuzzTarget.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <random>

namespace varnhold::test {

void require(bool condition, const char* what, const QByteArray& input)
{
    if (condition)
        return;
    QFile file(QStringLiteral(FUZZ_NAME ".failed"));
    if (file.open(QIODevice::WriteOnly))
        file.write(input);
    file.close();
    std::fprintf(stderr, "%s, input of %lld bytes in " FUZZ_NAME ".failed\n", what,
                 static_cast<long long>(input.size()));
    std::abort();
}

#ifndef VARNHOLD_LIBFUZZER

namespace {

using Random = std::mt19937;

qsizetype below(Random& random, qsizetype end)
{
    return end > 0 ? static_cast<qsizetype>(random() % static_cast<unsigned long>(end)) : 0;
}

/// One damage of those that files and editors do.
void damage(QByteArray& input, const QList<QByteArray>& corpus, Random& random)
{
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
        input.insert(at, pieces().at(static_cast<std::size_t>(below(random, std::ssize(pieces())))));
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

} // namespace

#endif

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
