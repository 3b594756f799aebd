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

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

const std::array rtfTypes = {u"text/rtf"_s, u"application/rtf"_s, u"text/richtext"_s};

class RichTextOffer : public QMimeData
{
public:
    explicit RichTextOffer(const QTextDocumentFragment& fragment) : m_fragment(fragment) {}

    [[nodiscard]] bool hasFormat(const QString& type) const override { return formats().contains(type); }
    [[nodiscard]] QStringList formats() const override
    {
        return {rtfTypes[0], rtfTypes[1], u"text/html"_s, u"text/plain"_s};
    }

protected:
    QVariant retrieveData(const QString& type, QMetaType) const override
    {
        if (type == "text/plain"_L1)
            return m_fragment.toPlainText();
        if (type == "text/html"_L1)
            return m_fragment.toHtml();
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
        return richTextOf(document);
    }

    QTextDocumentFragment m_fragment;
};

} // namespace

std::unique_ptr<QMimeData> offerRichText(const QTextDocumentFragment& fragment)
{
    return std::make_unique<RichTextOffer>(fragment);
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

bool holdsRichText(const QMimeData& offer)
{
    return offer.hasText() || offer.hasHtml() ||
           std::any_of(rtfTypes.begin(), rtfTypes.end(),
                       [&offer](const QString& type) { return offer.hasFormat(type); });
}

} // namespace varnhold
