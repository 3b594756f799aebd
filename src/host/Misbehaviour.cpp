#include "host/Misbehaviour.h"

#include <array>

namespace varnhold::host {

namespace {

struct Word
{
    QLatin1StringView text;
    Odd kind;
};

constexpr std::array words = {
    Word{QLatin1StringView("early-close"), Odd::EarlyClose},
    Word{QLatin1StringView("reset"), Odd::Reset},
    Word{QLatin1StringView("split-header"), Odd::SplitHeader},
    Word{QLatin1StringView("pieces"), Odd::Pieces},
    Word{QLatin1StringView("wrong-length"), Odd::WrongLength},
    Word{QLatin1StringView("no-length"), Odd::NoLength},
    Word{QLatin1StringView("status"), Odd::Status},
    Word{QLatin1StringView("slow-drip"), Odd::SlowDrip},
    Word{QLatin1StringView("stall"), Odd::Stall},
    Word{QLatin1StringView("endless-redirect"), Odd::EndlessRedirect},
    Word{QLatin1StringView("redirect-self"), Odd::RedirectSelf},
    Word{QLatin1StringView("redirect-empty"), Odd::RedirectEmpty},
    Word{QLatin1StringView("redirect-port"), Odd::RedirectPort},
    Word{QLatin1StringView("endless-headers"), Odd::EndlessHeaders},
    Word{QLatin1StringView("not-xml"), Odd::NotXml},
    Word{QLatin1StringView("many-packages"), Odd::ManyPackages},
    Word{QLatin1StringView("huge-document"), Odd::HugeDocument},
    Word{QLatin1StringView("not-picture"), Odd::NotPicture},
    Word{QLatin1StringView("moved-to-page"), Odd::MovedToPage},
    Word{QLatin1StringView("endless-body"), Odd::EndlessBody},
    Word{QLatin1StringView("many-scans"), Odd::ManyScans},
    Word{QLatin1StringView("told-size"), Odd::ToldSize},
    Word{QLatin1StringView("half-picture"), Odd::HalfPicture},
    Word{QLatin1StringView("http-chunk"), Odd::HttpChunk},
};

/// Amounts that would make no sense, or no end, on the wire.
bool fits(const Misbehaviour& misbehaviour)
{
    if (!misbehaviour.amount)
        return true;
    const qint64 amount = *misbehaviour.amount;
    switch (misbehaviour.kind) {
    case Odd::WrongLength:
        return amount > -1'000'000'000'000 && amount < 1'000'000'000'000;
    case Odd::Status:
        return amount >= 100 && amount <= 999;
    case Odd::Pieces:
    case Odd::SlowDrip:
        return amount >= 1 && amount < 1'000'000'000'000;
    case Odd::ManyPackages:
        return amount >= 0 && amount <= 10'000'000;
    case Odd::ManyScans:
        return amount >= 1 && amount <= 100'000;
    case Odd::HugeDocument:
        return amount >= 0 && amount <= 4096;
    default:
        return amount >= 0 && amount < 1'000'000'000'000;
    }
}

} // namespace

std::optional<Misbehaviour> parseMisbehaviour(QStringView text)
{
    if (text == u"404")
        return Misbehaviour{Odd::Status, 404};
    const qsizetype colon = text.indexOf(u':');
    const QStringView name = colon < 0 ? text : text.first(colon);
    for (const Word& word : words) {
        if (name != word.text)
            continue;
        Misbehaviour found{word.kind, std::nullopt};
        if (colon >= 0) {
            bool isNumber = false;
            found.amount = text.sliced(colon + 1).toLongLong(&isNumber);
            if (!isNumber)
                return std::nullopt;
        }
        return fits(found) ? std::optional(found) : std::nullopt;
    }
    return std::nullopt;
}

QStringList misbehaviourWords()
{
    QStringList list;
    for (const Word& word : words)
        list.append(word.text);
    return list;
}

} // namespace varnhold::host
