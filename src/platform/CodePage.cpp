#include "platform/CodePage.h"

#include <algorithm>
#include <array>

namespace varnhold {

namespace {

constexpr int firstOwn = 0x80; // below and from 0xA0 on, byte and character have the same number
constexpr std::array<char16_t, 32> own = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                          0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                          0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                          0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr int endOwn = firstOwn + static_cast<int>(own.size());

} // namespace

QString fromCodePage(QByteArrayView bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        const bool isOwn = byte >= firstOwn && byte < endOwn;
        return QChar(isOwn ? own.at(byte - firstOwn) : char16_t{byte});
    });
    return text;
}

std::optional<QByteArray> toCodePage(QStringView text)
{
    QByteArray bytes;
    bytes.reserve(text.size());
    for (const QChar c : text) {
        const char16_t unit = c.unicode();
        if (unit < firstOwn || (unit >= endOwn && unit <= 0xFF)) {
            bytes.append(static_cast<char>(unit));
            continue;
        }
        const auto* found = std::find(own.begin(), own.end(), unit);
        if (found == own.end())
            return std::nullopt;
        bytes.append(static_cast<char>(firstOwn + (found - own.begin())));
    }
    return bytes;
}

} // namespace varnhold
