#include "host/PackageContent.h"
#include "host/Titles.h"

#include <QFile>

#include <algorithm>
#include <array>

namespace varnhold::host {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype idLength = 9;
constexpr qint64 kB = 1000;
constexpr std::array counts = {1, 1, 1, 1, 2, 2, 2, 3, 3, 4, 5, 6, 7, 8};
constexpr std::array<QStringView, 12> systemVersions = {
    u"02.4200", u"02.6000", u"02.7600", u"03.0000", u"03.1500", u"03.4100",
    u"03.5500", u"03.6600", u"03.7200", u"04.0000", u"04.1100", u"04.2500",
};
/// Delivered titles that never had an update.
constexpr std::array<QStringView, 5> withoutUpdates = {
    u"BLAS50579", u"BLES07302", u"BLUS40117", u"HMBR12345", u"NPUB31452",
};

constexpr std::array<QStringView, 3> withoutCovers = {u"QQLA00042", u"XVHD00017", u"ZTST90001"};

/// Small numbers that follow from a text, one after the other.
class Numbers
{
public:
    explicit Numbers(const QString& text) : m_text(text) {}

    int below(qsizetype end)
    {
        const quint32 seed = packageSeed(m_text + QString::number(m_drawn++));
        return static_cast<int>(seed % static_cast<quint32>(end));
    }

private:
    QString m_text;
    int m_drawn = 0;
};

SampleTitle madeFromId(const QString& id, const QString& name)
{
    SampleTitle title{id, name, SumOf::WholeFile, false, {}};
    if (std::ranges::find(withoutUpdates, QStringView(id)) != withoutUpdates.end())
        return title;
    Numbers numbers(id);
    title.sumOf = numbers.below(2) == 0 ? SumOf::WholeFile : SumOf::AllButTail;
    title.moved = numbers.below(16) == 0;
    const int count = counts.at(static_cast<std::size_t>(numbers.below(std::ssize(counts))));
    int system = numbers.below(5);
    for (int i = 1; i <= count; ++i) {
        // From some dozen kilobytes to some dozen megabytes.
        const qint64 size = ((32 * kB) << numbers.below(11)) + numbers.below(30000);
        title.packages.push_back({u"01.%1"_s.arg(i, 2, 10, QChar(u'0')),
                                  systemVersions.at(static_cast<std::size_t>(system)).toString(), size});
        system = std::min<int>(system + numbers.below(3), std::ssize(systemVersions) - 1);
    }
    return title;
}

/// Ids and names of the delivered database, from the list that it is made from: a line that is an id, two
/// blanks and a name.
void addDelivered(std::vector<SampleTitle>& titles)
{
    QFile list(u":/delivered/titles.txt"_s);
    if (!list.open(QIODevice::ReadOnly))
        qFatal("The list of the delivered titles is not built in.");
    const QString text = QString::fromUtf8(list.readAll());
    for (const QStringView line : QStringView(text).split(u'\n')) {
        const bool isTitle = line.size() > idLength + 2 && line.sliced(idLength).startsWith(u"  ") &&
                             std::all_of(line.begin(), line.begin() + idLength,
                                         [](QChar c) { return c.isUpper() || c.isDigit(); });
        if (isTitle)
            titles.push_back(
                madeFromId(line.first(idLength).toString(), line.sliced(idLength).trimmed().toString()));
    }
}

} // namespace

const std::vector<SampleTitle>& oddTitles()
{
    static const std::vector<SampleTitle> titles = [] {
        const auto package = [](const QString& version, PackageAddress address) {
            return SamplePackage{version, u"03.4100"_s, 20 * kB, address};
        };
        const SamplePackage first = package(u"01.01"_s, PackageAddress::Own);
        SampleTitle many{u"BLUS31300"_s, u"Two Dozen Doors"_s, SumOf::WholeFile, false, {}};
        for (int i = 1; i <= 24; ++i)
            many.packages.push_back(package(u"01.%1"_s.arg(i, 2, 10, QChar(u'0')), PackageAddress::Own));
        return std::vector<SampleTitle>{
            many,
            {u"BLUS31301"_s, u"Salt/Silver"_s, SumOf::WholeFile, false, {first}},
            {u"BLUS31302"_s,
             u"Unsigned Letter"_s,
             SumOf::WholeFile,
             false,
             {first, package(u"01.02"_s, PackageAddress::None)}},
            {u"BLUS31303"_s,
             u"Twin Lanterns"_s,
             SumOf::AllButTail,
             false,
             {first, package(u"01.02"_s, PackageAddress::AsFirst)}},
            {u"BLUS31304"_s,
             u"Shouting Gallery"_s,
             SumOf::WholeFile,
             false,
             {package(u"01.01"_s, PackageAddress::Capitals)}},
        };
    }();
    return titles;
}

const std::vector<SampleTitle>& knownTitles()
{
    static const std::vector<SampleTitle> titles = [] {
        std::vector<SampleTitle> all = sampleTitles();
        addDelivered(all);
        all.insert(all.end(), oddTitles().begin(), oddTitles().end());
        return all;
    }();
    return titles;
}

bool hasCover(const QString& id)
{
    return std::ranges::find(withoutCovers, QStringView(id)) == withoutCovers.end();
}

QByteArray madeUpIdList(int count)
{
    static constexpr std::array prefixes = {"BCUS", "BLUS", "BCES", "BLES", "BCJS", "BLJM", "BLJS", "BCAS",
                                            "BLAS", "BCKS", "BLKS", "NPUB", "NPEB", "NPJB", "NPHB", "NPUA"};
    static constexpr std::array first = {"Amber",  "Brass",  "Crooked", "Distant", "Early",   "Fallen",
                                         "Gilded", "Hidden", "Iron",    "Jade",    "Kindled", "Late",
                                         "Marble", "Nimble", "Old",     "Painted", "Quiet",   "Restless"};
    static constexpr std::array second = {"Anchor", "Bellows", "Compass", "Dovecote", "Engine", "Ferry",
                                          "Garden", "Harbour", "Inkwell", "Junction", "Kiln",   "Ladder",
                                          "Mill",   "Needle",  "Orchard", "Parade",   "Quarry"};
    const auto at = [](const auto& words, int index) {
        return words.at(static_cast<std::size_t>(index) % words.size());
    };
    QByteArray list;
    for (int i = 0; i < count; ++i) {
        const int number = i / static_cast<int>(prefixes.size());
        list += at(prefixes, i) + QByteArray::number(number % 100000).rightJustified(5, '0') + ' ' +
                at(first, i) + ' ' + at(second, i) + ' ' + QByteArray::number(i + 1) + "\r\n";
    }
    return list;
}

} // namespace varnhold::host
