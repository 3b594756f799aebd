#pragma once

#include <QString>
#include <QStringView>

#include <vector>

namespace varnhold {

struct TextRange
{
    qsizetype start = 0; ///< from 0
    qsizetype length = 0;
    bool operator==(const TextRange&) const = default;
};

/// The links of a text in the order in which they are found: one pass for each of "mailto:", "ftp://",
/// "http://" and "www.". A link ends before a blank, a line feed or a carriage return; trailing ".", ",", "!"
/// and "?" do not belong to it. Capitals do not matter. A range may come twice, or lie within another one.
std::vector<TextRange> findLinks(QStringView text);

/// The link that the character at `position` (from 0) belongs to: a word that begins as above, without its
/// trailing marks and at least 4 characters long. Empty at a blank or a line's end, and always at the first
/// and behind the last character.
QString linkAround(QStringView text, qsizetype position);

} // namespace varnhold
