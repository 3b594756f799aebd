#include "platform/IniDocument.h"

#include "platform/CodePage.h"

#include <QStringDecoder>
#include <QStringList>

#include <algorithm>

namespace varnhold {

namespace {

constexpr QByteArrayView byteOrderMark = "\xEF\xBB\xBF";

/// Cuts blanks, tabs and line ends off both ends; unlike the toolkit's own, no other kind of space. The same
/// in both encodings, as are the marks that lines are cut at.
QByteArrayView stripped(QByteArrayView text)
{
    const auto isBlank = [](char c) { return static_cast<unsigned char>(c) <= ' '; };
    while (!text.isEmpty() && isBlank(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isBlank(text.back()))
        text.chop(1);
    return text;
}

QStringView stripped(QStringView text)
{
    while (!text.isEmpty() && text.front() <= u' ')
        text = text.sliced(1);
    while (!text.isEmpty() && text.back() <= u' ')
        text.chop(1);
    return text;
}

bool isHead(QByteArrayView strippedLine)
{
    return strippedLine.startsWith('[');
}

QByteArrayView nameOf(QByteArrayView head)
{
    const qsizetype end = head.indexOf(']');
    return stripped(end < 0 ? head.sliced(1) : head.sliced(1, end - 1));
}

struct Parts
{
    QByteArrayView key;
    QByteArrayView value;
};

/// No value for a line that holds no entry.
std::optional<Parts> partsOf(QByteArrayView strippedLine)
{
    const qsizetype equals = strippedLine.indexOf('=');
    if (equals < 1 || strippedLine.startsWith(';'))
        return std::nullopt;
    return Parts{stripped(strippedLine.first(equals)), stripped(strippedLine.sliced(equals + 1))};
}

/// Names that a comparison without regard to case finds equal become the same.
QString folded(QStringView name)
{
    QString text;
    text.reserve(name.size());
    for (qsizetype i = 0; i < name.size(); ++i) {
        const QChar unit = name.at(i);
        if (unit.isHighSurrogate() && i + 1 < name.size() && name.at(i + 1).isLowSurrogate())
            text.append(QChar::fromUcs4(QChar::toCaseFolded(QChar::surrogateToUcs4(unit, name.at(++i)))));
        else
            text.append(unit.toCaseFolded());
    }
    return text;
}

QString foldedName(const QString& given)
{
    return folded(stripped(given));
}

QStringView withoutQuotes(QStringView value)
{
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == u'"' || value.front() == u'\'');
    return quoted ? value.sliced(1, value.size() - 2) : value;
}

QString oneLine(const QString& text)
{
    const auto end = std::ranges::find_if(text, [](QChar c) { return c == u'\n' || c == u'\r'; });
    return text.first(end - text.begin());
}

} // namespace

IniDocument::IniDocument(QByteArray bytes) : m_body(std::move(bytes))
{
    m_utf8 = m_body.startsWith(byteOrderMark);
    if (m_utf8)
        m_body.remove(0, byteOrderMark.size());
}

QByteArray IniDocument::bytes() const
{
    return m_utf8 ? byteOrderMark.toByteArray() + m_body : m_body;
}

IniDocument::Line IniDocument::lineAt(qsizetype start) const
{
    const qsizetype newline = m_body.indexOf('\n', start);
    return {start, newline < 0 ? m_body.size() : newline + 1};
}

/// Without the blanks at both ends.
QByteArrayView IniDocument::text(const Line& line) const
{
    return stripped(QByteArrayView(m_body).sliced(line.start, line.end - line.start));
}

QString IniDocument::decoded(QByteArrayView bytes) const
{
    if (!m_utf8)
        return fromCodePage(bytes);
    QStringDecoder decoder(QStringDecoder::Utf8, QStringConverter::Flag::ConvertInitialBom);
    return decoder(bytes);
}

QByteArray IniDocument::lineEnd() const
{
    const qsizetype newline = m_body.indexOf('\n');
    const bool isBare = newline == 0 || (newline > 0 && m_body.at(newline - 1) != '\r');
    return isBare ? "\n" : "\r\n";
}

const IniDocument::Span* IniDocument::find(const QString& section) const
{
    if (!m_isIndexed) {
        Span* last = nullptr;
        for (Line line = lineAt(0); line.start < m_body.size(); line = lineAt(line.end)) {
            const QByteArrayView head = text(line);
            if (!isHead(head))
                continue;
            if (last)
                last->end = line.start;
            last = nullptr;
            const QString name = folded(decoded(nameOf(head)));
            if (m_sections.contains(name)) // the first of two is meant
                continue;
            last = &*m_sections.insert(name, {line.start, line.end, m_body.size()});
        }
        m_isIndexed = true;
    }
    const auto found = m_sections.constFind(foldedName(section));
    return found == m_sections.constEnd() ? nullptr : &*found;
}

const IniDocument::Keys& IniDocument::keysOf(const QString& section) const
{
    const QString name = foldedName(section);
    const auto known = m_keys.constFind(name);
    if (known != m_keys.constEnd())
        return *known;
    Keys keys;
    if (const Span* span = find(section)) {
        for (Line line = lineAt(span->body); line.start < span->end; line = lineAt(line.end)) {
            const std::optional<Parts> parts = partsOf(text(line));
            if (!parts)
                continue;
            qsizetype& start = keys[folded(decoded(parts->key))];
            if (start == 0) // never the position of an entry: its section's head stands before it
                start = line.start;
        }
    }
    return *m_keys.insert(name, keys);
}

std::optional<QString> IniDocument::value(const QString& section, const QString& key) const
{
    const qsizetype start = keysOf(section).value(foldedName(key), -1);
    if (start < 0)
        return std::nullopt;
    const std::optional<Parts> parts = partsOf(text(lineAt(start)));
    return withoutQuotes(decoded(parts->value)).toString();
}

std::optional<QList<IniEntry>> IniDocument::entries(const QString& section) const
{
    const Span* span = find(section);
    if (!span)
        return std::nullopt;
    QList<qsizetype> starts = keysOf(section).values();
    std::ranges::sort(starts);
    QList<IniEntry> list;
    list.reserve(starts.size());
    for (const qsizetype start : starts) {
        const std::optional<Parts> parts = partsOf(text(lineAt(start)));
        list.append({decoded(parts->key), withoutQuotes(decoded(parts->value)).toString()});
    }
    return list;
}

void IniDocument::setValue(const QString& section, const QString& key, const QString& value)
{
    const QString tail = u'=' + oneLine(value);
    const qsizetype known = keysOf(oneLine(section)).value(foldedName(oneLine(key)), -1);
    if (known >= 0) {
        const Line line = lineAt(known);
        splice(line.start, line.end, {decoded(partsOf(text(line))->key) + tail}); // as the file spells it
    } else if (const Span* span = find(oneLine(section))) {
        const qsizetype at = endOfContent(*span);
        splice(at, at, {oneLine(key) + tail});
    } else {
        splice(m_body.size(), m_body.size(), {u'[' + oneLine(section) + u']', oneLine(key) + tail});
    }
}

void IniDocument::replaceSection(const IniSection& section)
{
    const QString name = oneLine(section.name);
    QStringList lines;
    for (const IniEntry& entry : section.entries)
        lines.append(oneLine(entry.key) + u'=' + oneLine(entry.value));
    const Span* span = find(name);
    if (!span) {
        if (!lines.isEmpty())
            splice(m_body.size(), m_body.size(), QStringList(u'[' + name + u']') + lines);
        return;
    }
    // The entries stand in one piece where the first was; what stood between them follows.
    QByteArray others;
    qsizetype first = -1;
    for (Line line = lineAt(span->body); line.start < span->end; line = lineAt(line.end)) {
        if (partsOf(text(line)))
            first = first < 0 ? line.start : first;
        else if (first >= 0)
            others.append(m_body.sliced(line.start, line.end - line.start));
    }
    if (first >= 0) {
        m_body.replace(first, span->end - first, others);
        splice(first, first, lines);
    } else {
        const qsizetype at = endOfContent(*span);
        splice(at, at, lines);
    }
}

void IniDocument::removeSection(const QString& section)
{
    if (const Span* span = find(oneLine(section)))
        splice(span->head, span->end, {});
}

/// Behind the section's last line that holds something, so that the blank lines before the next section stay
/// there.
qsizetype IniDocument::endOfContent(const Span& span) const
{
    qsizetype end = span.body;
    for (Line line = lineAt(span.body); line.start < span.end; line = lineAt(line.end)) {
        if (!text(line).isEmpty())
            end = line.end;
    }
    return end;
}

/// Puts lines of ours in the place of whole lines.
void IniDocument::splice(qsizetype start, qsizetype end, const QStringList& lines)
{
    const QByteArray newline = lineEnd();
    const QString joined = lines.join(u'\n');
    std::optional<QByteArray> written = m_utf8 ? joined.toUtf8() : toCodePage(joined);
    if (!written) {
        becomeUtf8(start, end);
        written = joined.toUtf8();
    }
    QByteArray text;
    if (!lines.isEmpty()) {
        if (start > 0 && m_body.at(start - 1) != '\n')
            text.append(newline);
        text.append(written->replace("\n", newline)).append(newline);
    }
    m_body.replace(start, end - start, text);
    m_isIndexed = false;
    m_sections.clear();
    m_keys.clear();
}

void IniDocument::becomeUtf8(qsizetype& start, qsizetype& end)
{
    const QByteArray before = fromCodePage(m_body.first(start)).toUtf8();
    const QByteArray replaced = fromCodePage(m_body.sliced(start, end - start)).toUtf8();
    const QByteArray after = fromCodePage(m_body.sliced(end)).toUtf8();
    m_body = before + replaced + after;
    m_utf8 = true;
    start = before.size();
    end = start + replaced.size();
}

} // namespace varnhold
