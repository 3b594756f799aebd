#pragma once

#include <QString>

namespace varnhold {

/// Cuts blanks off both ends, and nothing else: no tab, no line end, no non-breaking blank.
inline QString trimBlanks(const QString& text)
{
    qsizetype first = 0;
    qsizetype end = text.size();
    while (first < end && text.at(first) == u' ')
        ++first;
    while (end > first && text.at(end - 1) == u' ')
        --end;
    return text.mid(first, end - first);
}

} // namespace varnhold
