#include "platform/richtext/RichTextClipboard.h"

#include "platform/richtext/RichTextDocument.h"
#include "platform/richtext/RtfReader.h"
#include "platform/richtext/RtfWriter.h"

#include <QMimeData>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>

#include <algorithm>
#include <array>
#include <iterator>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

const std::array rtfTypes = {u"text/rtf"_s, u"application/rtf"_s, u"text/richtext"_s};

class RichTextOffer : public QMimeData
{
public:
    RichTextOffer(const QTextDocumentFragment& fragment, std::vector<QByteArray> header)
        : m_fragment(fragment), m_header(std::move(header))
    {
    }

    [[nodiscard]] bool hasFormat(const QString& type) const override { return formats().contains(type); }
    [[nodiscard]] QStringList formats() const override
    {
        return {rtfTypes[0], rtfTypes[1], u"text/html"_s, u"text/plain"_s};
    }

protected:
    QVariant retrieveData(const QString& type, QMetaType) const override
    {
        if (type == "text/plain"_L1)
            return plainTextOf(m_fragment.toRawText());
        if (type == "text/html"_L1)
            return m_fragment.toHtml().remove(QChar::ObjectReplacementCharacter);
        if (type == rtfTypes[0] || type == rtfTypes[1])
            return writeRtf(contents());
        return {};
    }

private:
    [[nodiscard]] RichText contents() const
    {
        QTextDocument document;
        document.setUndoRedoEnabled(false);
        QTextCursor(&document).insertFragment(m_fragment);
        RichText text = richTextOf(document);
        text.header = m_header;
        return text;
    }

    QTextDocumentFragment m_fragment;
    std::vector<QByteArray> m_header;
};

/// Tables that the contents refer to by numbers.
bool isReferredTo(const QByteArray& group)
{
    static constexpr std::array tables = {"{\\*\\listtable", "{\\*\\listoverridetable", "{\\fonttbl",
                                          "{\\colortbl", "{\\ansicpg"};
    return std::any_of(tables.begin(), tables.end(),
                       [&group](const char* table) { return group.startsWith(table); });
}

std::vector<QByteArray> listTables(const std::vector<QByteArray>& header)
{
    std::vector<QByteArray> tables;
    std::copy_if(header.begin(), header.end(), std::back_inserter(tables),
                 [](const QByteArray& group) { return group.startsWith("{\\*\\list"); });
    return tables;
}

} // namespace

std::unique_ptr<QMimeData> offerRichText(const QTextDocumentFragment& fragment,
                                         const std::vector<QByteArray>& header)
{
    std::vector<QByteArray> tables;
    std::copy_if(header.begin(), header.end(), std::back_inserter(tables), isReferredTo);
    return std::make_unique<RichTextOffer>(fragment, std::move(tables));
}

std::optional<RichText> takeRichText(const QMimeData& offer)
{
    for (const QString& type : rtfTypes) {
        const QByteArray stream = offer.data(type);
        if (!stream.isEmpty())
            return readRtf(stream);
    }
    QTextDocument document;
    document.setUndoRedoEnabled(false);
    if (offer.hasHtml())
        document.setHtml(offer.html());
    else if (offer.hasText())
        document.setPlainText(offer.text());
    else
        return {};
    return richTextOf(document);
}

void fitLists(RichText& text, const std::vector<QByteArray>& header)
{
    if (listTables(text.header) == listTables(header))
        return;
    for (RichText::Paragraph& paragraph : text.paragraphs) {
        paragraph.format.list = paragraph.format.listLevel = 0;
        for (RichText::Run& run : paragraph.runs)
            run.isNumber = run.isNumber && !paragraph.format.oldList.isEmpty();
    }
}

bool holdsRichText(const QMimeData& offer)
{
    return offer.hasText() || offer.hasHtml() ||
           std::any_of(rtfTypes.begin(), rtfTypes.end(),
                       [&offer](const QString& type) { return offer.hasFormat(type); });
}

} // namespace varnhold
