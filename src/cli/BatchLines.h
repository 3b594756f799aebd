#pragma once

#include <QList>
#include <QString>

namespace varnhold::cli {

/// A line of a batch that asks for something.
struct BatchLine
{
    enum class Kind { Title, Url, None };

    int number = 0; ///< from 1
    Kind kind = Kind::None;
    QString text;    ///< the id, the url, or the line as it stands
    QString problem; ///< of Kind::None, to go on after the line
};

/// The lines of a list: an id, a line of an id list, whose first nine characters are one, or the address of a
/// package. "#" begins a comment; lines without more are left out. Lines end in LF, CR LF or CR.
QList<BatchLine> readBatchLines(QString text);

} // namespace varnhold::cli
