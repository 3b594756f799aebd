#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QStringView>

namespace varnhold {

/// One record with its line end, in UTF-8. A field is quoted where it has to be.
QByteArray csvRecord(const QStringList& fields);

/// Reads records of fields that are separated by commas. A quoted field may hold commas, line ends and
/// doubled quotes. Lines end in CR LF, CR or LF; an empty line is no record.
class CsvReader
{
public:
    explicit CsvReader(QStringView text) : m_text(text) {}

    /// False at the end.
    bool next();
    [[nodiscard]] const QStringList& fields() const { return m_fields; }
    /// Where the record starts, counted from 1.
    [[nodiscard]] qsizetype line() const { return m_recordLine; }
    /// A quote of the record is not closed, or text stands behind one.
    [[nodiscard]] bool isBroken() const { return m_broken; }

private:
    [[nodiscard]] bool atLineEnd() const;
    void skipLineEnd();
    void readField();
    void readQuoted(QString& field);

    QStringView m_text;
    qsizetype m_at = 0;
    qsizetype m_line = 1;
    qsizetype m_recordLine = 0;
    bool m_broken = false;
    QStringList m_fields;
};

} // namespace varnhold
