#include "platform/IniFile.h"

#include "platform/CodePage.h"

#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QSaveFile>

#include <optional>

namespace varnhold {

namespace {

constexpr QByteArrayView byteOrderMark = "\xEF\xBB\xBF";
constexpr qint64 largestFile = 4 * 1024 * 1024; // a larger one is no settings file: neither read nor written

/// The file as lines of bytes, each with its own line end, so that what is not touched is written back as it
/// was, whatever it is.
struct Document
{
    QList<QByteArray> lines;
    bool utf8 = false;

    [[nodiscard]] QString text(const QByteArray& line) const
    {
        return utf8 ? QString::fromUtf8(line) : fromCodePage(line);
    }

    [[nodiscard]] QByteArray lineEnd() const
    {
        if (lines.isEmpty() || !lines.first().endsWith('\n') || lines.first().endsWith("\r\n"))
            return "\r\n";
        return "\n";
    }

    /// Replaces `count` lines at `index` by text lines of ours.
    void replace(qsizetype index, qsizetype count, const QStringList& texts);
    [[nodiscard]] QByteArray bytes() const;

private:
    void becomeUtf8();
};

void Document::replace(qsizetype index, qsizetype count, const QStringList& texts)
{
    const QByteArray end = lineEnd();
    lines.remove(index, count);
    if (!texts.isEmpty() && index > 0 && !lines.at(index - 1).endsWith('\n'))
        lines[index - 1].append(end);
    for (const QString& text : texts) {
        std::optional<QByteArray> line = utf8 ? text.toUtf8() : toCodePage(text);
        if (!line) {
            becomeUtf8();
            line = text.toUtf8();
        }
        lines.insert(index++, *line + end);
    }
}

void Document::becomeUtf8()
{
    for (QByteArray& line : lines)
        line = fromCodePage(line).toUtf8();
    utf8 = true;
}

QByteArray Document::bytes() const
{
    QByteArray all = utf8 ? byteOrderMark.toByteArray() : QByteArray();
    for (const QByteArray& line : lines)
        all.append(line);
    return all;
}

/// No value when there is a file that cannot be read whole; a missing one is an empty document.
std::optional<Document> readDocument(const QString& path)
{
    QFile file(path);
    if (!file.exists())
        return Document();
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray bytes = file.read(largestFile + 1);
    if (bytes.size() > largestFile || file.error() != QFileDevice::NoError)
        return std::nullopt;
    Document document;
    if (bytes.startsWith(byteOrderMark)) {
        document.utf8 = true;
        bytes.remove(0, byteOrderMark.size());
    }
    for (qsizetype start = 0; start < bytes.size();) {
        const qsizetype newline = bytes.indexOf('\n', start);
        const qsizetype end = newline < 0 ? bytes.size() : newline + 1;
        document.lines.append(bytes.mid(start, end - start));
        start = end;
    }
    return document;
}

void writeDocument(const QString& path, const Document& document)
{
    const QFileInfo info(path);
    // The mode is asked as well, since access rights alone would let root overrule the file's owner.
    if (info.exists() && (!info.isFile() || !info.permission(QFileDevice::WriteOwner) || !info.isWritable()))
        return;
    QString target = path;
    if (info.isSymLink())
        target = info.exists() ? info.canonicalFilePath() : info.symLinkTarget();
    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly))
        return;
    file.write(document.bytes());
    file.commit();
}

/// Cuts blanks, tabs and line ends off both ends; unlike Qt's own, no other kind of space.
QStringView stripped(QStringView text)
{
    while (!text.isEmpty() && text.front() <= u' ')
        text = text.mid(1);
    while (!text.isEmpty() && text.back() <= u' ')
        text.chop(1);
    return text;
}

bool same(QStringView left, QStringView right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

/// The name in a section's line; no value for any other line.
std::optional<QString> sectionOf(const QString& line)
{
    const QStringView text = stripped(line);
    if (!text.startsWith(u'['))
        return std::nullopt;
    const qsizetype end = text.indexOf(u']');
    return stripped(text.mid(1, end < 0 ? -1 : end - 1)).toString();
}

/// The lines after a section's head, up to the next head. A missing section is an empty span with head -1.
struct Span
{
    qsizetype head = -1;
    qsizetype end = 0;
};

Span findSection(const Document& document, const QString& section)
{
    Span span;
    for (qsizetype i = 0; i < document.lines.size(); ++i) {
        const std::optional<QString> name = sectionOf(document.text(document.lines.at(i)));
        if (!name)
            continue;
        if (span.head >= 0)
            return {span.head, i};
        if (same(*name, stripped(section)))
            span.head = i;
    }
    span.end = document.lines.size();
    return span;
}

struct Entry
{
    qsizetype line = -1;
    QString key;   ///< as the file spells it
    QString value; ///< blanks round it dropped, quotes kept
};

std::optional<Entry> findKey(const Document& document, const Span& span, const QString& key)
{
    if (span.head < 0)
        return std::nullopt;
    for (qsizetype i = span.head + 1; i < span.end; ++i) {
        const QString line = document.text(document.lines.at(i));
        const QStringView text = stripped(line);
        const qsizetype equals = text.indexOf(u'=');
        if (equals < 1 || text.startsWith(u';') || !same(stripped(text.first(equals)), stripped(key)))
            continue;
        return Entry{i, stripped(text.first(equals)).toString(), stripped(text.mid(equals + 1)).toString()};
    }
    return std::nullopt;
}

QString withoutQuotes(const QString& value)
{
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == u'"' || value.front() == u'\'');
    return quoted ? value.mid(1, value.size() - 2) : value;
}

} // namespace

IniFile::IniFile(QString path) : m_path(std::move(path)) {}

QString IniFile::read(const QString& section, const QString& key, const QString& fallback,
                      int bufferSize) const
{
    const std::optional<Document> document = readDocument(m_path);
    const std::optional<Entry> entry =
        document ? findKey(*document, findSection(*document, section), key) : std::nullopt;
    QString value = (entry ? withoutQuotes(entry->value) : fallback).left(bufferSize - 1);
    if (!value.isEmpty() && value.back().isHighSurrogate())
        value.chop(1); // half a character
    return value;
}

void IniFile::write(const QString& section, const QString& key, const QString& value)
{
    std::optional<Document> document = readDocument(m_path);
    if (!document)
        return;
    const QByteArray before = document->bytes();
    const Span span = findSection(*document, section);
    if (const std::optional<Entry> entry = findKey(*document, span, key)) {
        document->replace(entry->line, 1, {entry->key + u'=' + value});
    } else if (span.head >= 0) {
        // After the section's last line that holds something, so that the blank lines before the next
        // section stay there.
        qsizetype at = span.end;
        while (document->lines.at(at - 1).trimmed().isEmpty())
            --at;
        document->replace(at, 0, {key + u'=' + value});
    } else {
        document->replace(document->lines.size(), 0, {u'[' + section + u']', key + u'=' + value});
    }
    if (document->bytes() != before)
        writeDocument(m_path, *document);
}

void IniFile::deleteSection(const QString& section)
{
    std::optional<Document> document = readDocument(m_path);
    if (!document)
        return;
    const Span span = findSection(*document, section);
    if (span.head < 0)
        return;
    document->replace(span.head, span.end - span.head, {});
    writeDocument(m_path, *document);
}

} // namespace varnhold
