#include "search/ListText.h"

#include "platform/CodePage.h"
#include "platform/ReplaceFile.h"
#include "platform/ReplaceText.h"

#include <QStringDecoder>

#include <algorithm>
#include <optional>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

const QByteArray mark = QByteArrayLiteral("\xef\xbb\xbf");

bool isUtf8(const QByteArray& bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(bytes);
    return !decoder.hasError();
}

bool isAscii(QByteArrayView bytes)
{
    return std::ranges::none_of(bytes, [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
}

void appendLine(QString& line, const TextRows& rows, int row)
{
    line.append(rows.id(row));
    line.append(u' ');
    line.append(rows.name(row));
    // Each end is one blank, so that no row becomes two.
    line.replace(u"\r\n"_s, u" "_s);
    line.replace(u'\n', u' ');
    line.replace(u'\r', u' ');
    line.append(u"\r\n"_s);
}

std::optional<QByteArray> inCodePage(const TextRows& rows, const std::function<void(int)>& walkTo)
{
    QByteArray bytes;
    QString line;
    for (int row = 0; row < rows.count(); ++row) {
        line.resize(0);
        appendLine(line, rows, row);
        const std::optional<QByteArray> encoded = toCodePage(line);
        if (!encoded)
            return {};
        bytes.append(*encoded);
        if (walkTo)
            walkTo(row);
    }
    // It would be read back as what it looks like.
    if (!isAscii(bytes) && (bytes.startsWith(mark) || isUtf8(bytes)))
        return {};
    return bytes;
}

} // namespace

QString decodedList(const QByteArray& bytes)
{
    if (bytes.startsWith(mark))
        return QString::fromUtf8(QByteArrayView(bytes).sliced(mark.size()));
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder(bytes);
    return decoder.hasError() ? fromCodePage(bytes) : text;
}

ListCutter::ListCutter(const ListFormat& format)
    : m_left(std::max(format.left, 0)),
      m_right(std::max(format.right, 1)),
      m_removed(format.split.split(u',', Qt::SkipEmptyParts))
{
}

void ListCutter::cut(QStringView line, TextRows& rows)
{
    const QStringView id = line.left(m_left);
    const QStringView name = m_right > line.size() ? QStringView() : line.mid(m_right - 1);
    const bool clean = std::ranges::none_of(std::as_const(m_removed),
                                            [&](const QString& piece) { return name.contains(piece); });
    if (clean) {
        rows.append(id, name);
        return;
    }
    m_name = name.toString();
    for (const QString& piece : std::as_const(m_removed))
        replaceIn(m_name, piece);
    rows.append(id, m_name);
}

QByteArray listBytes(const TextRows& rows, const std::function<void(int)>& walkTo)
{
    if (std::optional<QByteArray> bytes = inCodePage(rows, walkTo))
        return *std::move(bytes);
    QByteArray bytes = mark;
    QString line;
    for (int row = 0; row < rows.count(); ++row) {
        line.resize(0);
        appendLine(line, rows, row);
        bytes.append(line.toUtf8());
        if (walkTo)
            walkTo(row);
    }
    return bytes;
}

void exportList(const TextRows& rows, const QString& path, const std::function<void(int)>& walkTo)
{
    const qsizetype cut = path.lastIndexOf(u'/');
    clearLeftovers(cut < 0 ? u"."_s : path.left(cut + 1));
    replaceFile(path, listBytes(rows, walkTo));
}

} // namespace varnhold
