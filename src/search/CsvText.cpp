#include "search/CsvText.h"

#include <algorithm>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

bool isSpecial(QChar character)
{
    return character == u',' || character == u'"' || character == u'\r' || character == u'\n';
}

} // namespace

QByteArray csvRecord(const QStringList& fields)
{
    QString record;
    for (qsizetype i = 0; i < fields.size(); ++i) {
        const QString& field = fields.at(i);
        if (i > 0)
            record += u',';
        // A record of one empty field would look like an empty line.
        if (std::ranges::any_of(field, isSpecial) || (field.isEmpty() && fields.size() == 1))
            record += u'"' + QString(field).replace(u'"', u"\"\""_s) + u'"';
        else
            record += field;
    }
    return (record + u"\r\n"_s).toUtf8();
}

bool CsvReader::next()
{
    while (m_at < m_text.size() && atLineEnd())
        skipLineEnd();
    m_fields.clear();
    m_broken = false;
    if (m_at >= m_text.size())
        return false;
    m_recordLine = m_line;
    readField();
    while (m_at < m_text.size() && m_text[m_at] == u',') {
        ++m_at;
        readField();
    }
    return true;
}

bool CsvReader::atLineEnd() const
{
    return m_text[m_at] == u'\r' || m_text[m_at] == u'\n';
}

void CsvReader::skipLineEnd()
{
    if (m_text[m_at] == u'\r' && m_at + 1 < m_text.size() && m_text[m_at + 1] == u'\n')
        ++m_at;
    ++m_at;
    ++m_line;
}

void CsvReader::readField()
{
    QString field;
    if (m_at < m_text.size() && m_text[m_at] == u'"')
        readQuoted(field);
    const qsizetype start = m_at;
    while (m_at < m_text.size() && m_text[m_at] != u',' && !atLineEnd())
        ++m_at;
    if (m_at > start) {
        m_broken = m_broken || !field.isNull();
        field += m_text.mid(start, m_at - start);
    }
    m_fields.append(field);
}

void CsvReader::readQuoted(QString& field)
{
    field = u""_s; // not null: a quoted field, even an empty one
    ++m_at;
    while (m_at < m_text.size()) {
        const QChar character = m_text[m_at];
        if (character == u'"') {
            if (m_at + 1 == m_text.size() || m_text[m_at + 1] != u'"') {
                ++m_at;
                return;
            }
            ++m_at;
        }
        if (atLineEnd()) {
            const qsizetype start = m_at;
            skipLineEnd();
            field += m_text.mid(start, m_at - start);
        } else {
            field += character;
            ++m_at;
        }
    }
    m_broken = true;
}

} // namespace varnhold
