#pragma once

#include <QByteArray>
#include <QString>

#include <ostream>

/// Lets a failed comparison of texts show them readably. Found by the test framework through the namespace of
/// the types, which is the global one.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << (text.isNull() ? "(null) " : "") << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray& bytes, std::ostream* out)
{
    *out << '"' << bytes.toPercentEncoding(" !\"#$&'()*+,/:;<=>?@[]^`{|}\\").toStdString() << '"';
}
