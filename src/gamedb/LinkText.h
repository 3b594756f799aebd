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
/// and "?" do not belong to it.
std::vector<TextRange> findLinks(QStringView text);

/// The link that the character at `position` (from 0) belongs to; empty when the word there is none, and
/// always at the first and behind the last character.
QString linkAround(QStringView text, qsizetype position);

} // namespace varnhold
