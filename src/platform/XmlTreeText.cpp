#include "platform/XmlTreeText.h"

#include "platform/XmlBounds.h"

#include <QStringBuilder>
#include <QStringDecoder>
#include <QXmlStreamReader>

#include <algorithm>
#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

// A document is small, but its tree need not be: indents grow with the depth, and an end tag with its name.
constexpr qsizetype longestTree = qsizetype{80} * 1024 * 1024;
constexpr int deepestIndent = 64;

/// Puts the tree text together from the reader's tokens. An element's line stays open until it is known
/// whether anything but text stands in it.
class TreeWriter
{
public:
    explicit TreeWriter(qsizetype sizeHint) { m_out.reserve(sizeHint); }

    void declaration(const QXmlStreamReader& reader)
    {
        const QStringView version = reader.documentVersion();
        m_out.append(u"  <?xml version=\"")
            .append(version.isEmpty() ? QStringView(u"1.0") : version)
            .append(u'"');
        if (!reader.documentEncoding().isEmpty())
            m_out.append(u" encoding=\"").append(reader.documentEncoding()).append(u'"');
        if (reader.isStandaloneDocument())
            m_out.append(u" standalone=\"yes\"");
        m_out.append(u"?>");
    }

    void startElement(const QXmlStreamReader& reader)
    {
        breakOpenElement();
        newLine();
        m_out.append(u'<').append(reader.qualifiedName());
        const QXmlStreamAttributes attributes = reader.attributes();
        for (const QXmlStreamAttribute& attribute : attributes) {
            m_out.append(u' ').append(attribute.qualifiedName()).append(u"=\"");
            appendText(attribute.value());
            m_out.append(u'"');
        }
        m_openElement = true;
        ++m_depth;
    }

    void endElement(const QXmlStreamReader& reader)
    {
        if (!m_openElement)
            flushText();
        --m_depth;
        if (m_openElement && m_text.isEmpty()) {
            m_out.append(u" />");
        } else {
            if (m_openElement) {
                m_out.append(u'>');
                appendText(m_text);
            } else {
                newLine();
            }
            m_out.append(u"</").append(reader.qualifiedName()).append(u'>');
        }
        m_text.clear();
        m_openElement = false;
    }

    void characters(const QXmlStreamReader& reader)
    {
        if (!m_text.isEmpty() || m_openElement || !reader.isWhitespace())
            m_text.append(reader.text());
    }

    void aside(QStringView opening, QStringView content, QStringView closing)
    {
        breakOpenElement();
        newLine();
        m_out.append(opening);
        appendText(content);
        m_out.append(closing);
    }

    [[nodiscard]] bool tooLong() const { return m_out.size() + m_text.size() > longestTree; }
    [[nodiscard]] QString take()
    {
        m_out.append(u"\r\n");
        return std::move(m_out);
    }

private:
    /// Something other than text comes: the start tag gets its end, and text before it a line of its own.
    void breakOpenElement()
    {
        if (m_openElement)
            m_out.append(u'>');
        m_openElement = false;
        flushText();
    }

    void flushText()
    {
        const QString text = m_text.trimmed();
        m_text.clear();
        if (text.isEmpty())
            return;
        newLine();
        appendText(text);
    }

    void newLine()
    {
        m_out.append(u"\r\n");
        m_out.resize(m_out.size() + 2 * std::min(m_depth, deepestIndent), u' ');
    }

    void appendText(QStringView text)
    {
        for (qsizetype feed = text.indexOf(u'\n'); feed >= 0; feed = text.indexOf(u'\n')) {
            m_out.append(text.first(feed)).append(u"\r\n");
            text = text.sliced(feed + 1);
        }
        m_out.append(text);
    }

    QString m_out;
    QString m_text;
    int m_depth = 0;
    bool m_openElement = false;
};

/// The text that a reader which has just begun with the document will see of it. It began as the first bytes
/// suggest, and began again with the encoding that the declaration names, going on behind the declaration.
QString remainingText(const QXmlStreamReader& reader, const QByteArray& document)
{
    const QByteArray named = reader.documentEncoding().toUtf8();
    QStringDecoder decoder =
        named.isEmpty()
            ? QStringDecoder(
                  QStringConverter::encodingForData(document, u'<').value_or(QStringConverter::Utf8))
            : QStringDecoder(named.constData());
    QString text = decoder.decode(document);
    if (!named.isEmpty())
        text.remove(0, reader.characterOffset());
    return text;
}

} // namespace

std::optional<QString> xmlTreeText(const QByteArray& document)
{
    QXmlStreamReader reader(document);
    // Names are shown as they are written, name space declarations among the attributes.
    reader.setNamespaceProcessing(false);
    if (reader.readNext() != QXmlStreamReader::StartDocument ||
        !withinXmlBounds(remainingText(reader, document)))
        return std::nullopt;
    TreeWriter tree(document.size() + document.size() / 8);
    tree.declaration(reader);
    while (!reader.atEnd() && !tree.tooLong()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            tree.startElement(reader);
            break;
        case QXmlStreamReader::EndElement:
            tree.endElement(reader);
            break;
        case QXmlStreamReader::Characters:
            tree.characters(reader);
            break;
        case QXmlStreamReader::Comment:
            tree.aside(u"<!--", reader.text(), u"-->");
            break;
        case QXmlStreamReader::ProcessingInstruction:
            tree.aside(
                u"<?",
                QString(reader.processingInstructionTarget() % u' ' % reader.processingInstructionData()),
                u"?>");
            break;
        case QXmlStreamReader::DTD:
            tree.aside(u"<!DOCTYPE ", reader.dtdName(), u">");
            break;
        default:
            break;
        }
    }
    if (reader.hasError() || tree.tooLong())
        return std::nullopt;
    return tree.take();
}

} // namespace varnhold
