#pragma once

#include "search/TextRows.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

namespace varnhold {

/// How a line of a list file is cut.
struct ListFormat
{
    int left = 9;   ///< the id is the first so many characters
    int right = 11; ///< the name starts at this one, counted from 1; they may cross
    QString split;  ///< texts to remove from names, a comma behind each; none of them stands for a line end
};

/// UTF-8 with a mark or valid throughout, else the code page.
QString decodedList(const QByteArray& bytes);

/// One line: an id of its left part, even a short one, and the rest as name.
class ListCutter
{
public:
    explicit ListCutter(const ListFormat& format);

    void cut(QStringView line, TextRows& rows);

private:
    int m_left;
    int m_right;
    QStringList m_removed;
    QString m_name;
};

/// Calls `take` for each line of the text without its end: CR LF, CR or LF. An end at the text's end begins
/// no further line.
template <typename Take> void forEachLine(QStringView text, Take&& take)
{
    qsizetype start = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar character = text[at];
        if (character != u'\n' && character != u'\r')
            continue;
        take(text.mid(start, at - start));
        if (character == u'\r' && at + 1 < text.size() && text[at + 1] == u'\n')
            ++at;
        start = at + 1;
    }
    if (start < text.size())
        take(text.mid(start));
}

/// The rows as lines, id, a blank and name each, with CR LF: in the code page or else as UTF-8 with a mark,
/// so that decodedList reads them. Line ends inside a name become a blank. `walkTo`, which may be empty, is
/// told each row.
QByteArray listBytes(const TextRows& rows, const std::function<void(int)>& walkTo = {});
/// The same into a file, in one step. Throws RunTimeError as FileReplacement does; the file is then what it
/// was.
void exportList(const TextRows& rows, const QString& path, const std::function<void(int)>& walkTo = {});

} // namespace varnhold
