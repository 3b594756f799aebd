#include "platform/richtext/RichTextDocument.h"

#include "platform/richtext/EmptyObject.h"
#include "platform/richtext/RichTextFormats.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextList>

#include <algorithm>
#include <optional>
#include <unordered_map>
#include <utility>

namespace varnhold {

namespace {

constexpr int headerProperty = QTextFormat::UserProperty + 1;
constexpr int listStep = 360;

struct CharacterFormatHash
{
    std::size_t operator()(const RichText::CharacterFormat& format) const
    {
        const int flags = (format.bold ? 1 : 0) | (format.italic ? 2 : 0) | (format.underline ? 4 : 0) |
                          (format.strikethrough ? 8 : 0) | (format.color ? 16 : 0);
        return qHashMulti(0, flags, format.font, format.halfPoints, format.color.value_or(0));
    }
};

/// A document holds few formats many times over.
class Fill
{
public:
    /// Empties the document. Done inside the edit, the whole counts as new to the layout, which then lays out
    /// what is seen and leaves the rest for idle moments.
    explicit Fill(QTextDocument& document) : m_cursor(&document)
    {
        m_cursor.beginEditBlock();
        document.clear();
    }
    ~Fill() { m_cursor.endEditBlock(); }
    Q_DISABLE_COPY_MOVE(Fill)

    void paragraph(const RichText::Paragraph& paragraph)
    {
        if (!m_block || *m_blockValue != paragraph.format) {
            m_block = toBlockFormat(paragraph.format);
            m_blockValue = &paragraph.format;
        }
        if (std::exchange(m_isFirst, false))
            m_cursor.setBlockFormat(*m_block);
        else
            m_cursor.insertBlock(*m_block, QTextCharFormat());
        for (const RichText::Run& each : paragraph.runs)
            run(each);
    }

private:
    void run(const RichText::Run& run)
    {
        if (!run.verbatim.isEmpty())
            m_cursor.insertText(QString(QChar::ObjectReplacementCharacter),
                                toVerbatimFormat(run.format, run.verbatim));
        else if (!run.text.isEmpty())
            insert(fit(run.text), format(run.format));
    }

    /// To wrap a word that is longer than a line takes the layout time with the square of its length: minutes
    /// for one of a megabyte. Objects that take no room, and that are no part of the contents, break it up.
    void insert(const QString& text, const QTextCharFormat& format)
    {
        constexpr qsizetype longestWord = 4000;
        qsizetype start = 0;
        qsizetype word = 0;
        for (qsizetype i = 0; i < text.size(); ++i) {
            if (text[i].isSpace()) {
                word = i + 1;
            } else if (i - word >= longestWord && !text[i].isLowSurrogate()) {
                m_cursor.insertText(text.mid(start, i - start), format);
                m_cursor.insertText(QString(QChar::ObjectReplacementCharacter), toVerbatimFormat({}, {}));
                start = word = i;
            }
        }
        m_cursor.insertText(text.mid(start), format);
    }

    const QTextCharFormat& format(const RichText::CharacterFormat& value)
    {
        const auto [place, isNew] = m_formats.try_emplace(value);
        if (isNew)
            place->second = toTextFormat(value);
        return place->second;
    }

    /// Characters that a document takes for its own structure must not come with the text.
    static QString fit(const QString& text)
    {
        constexpr char16_t frameStart = 0xFDD0;
        constexpr char16_t frameEnd = 0xFDD1;
        const auto isLineEnd = [](QChar each) {
            return each == u'\n' || each == u'\r' || each == QChar::ParagraphSeparator;
        };
        const auto isFrame = [](QChar each) { return each == frameStart || each == frameEnd; };
        if (std::none_of(text.cbegin(), text.cend(),
                         [&](QChar each) { return isLineEnd(each) || isFrame(each); }))
            return text;
        QString fitting = text;
        std::replace_if(fitting.begin(), fitting.end(), isLineEnd, QChar(QChar::LineSeparator));
        std::replace_if(fitting.begin(), fitting.end(), isFrame, QChar(QChar::ReplacementCharacter));
        return fitting;
    }

    QTextCursor m_cursor;
    bool m_isFirst = true;
    std::optional<QTextBlockFormat> m_block;
    const RichText::ParagraphFormat* m_blockValue = nullptr;
    std::unordered_map<RichText::CharacterFormat, QTextCharFormat, CharacterFormatHash> m_formats;
};

class Collect
{
public:
    RichText::Paragraph paragraph(const QTextBlock& block)
    {
        RichText::Paragraph paragraph;
        paragraph.format = toParagraphFormat(block.blockFormat());
        if (const QTextList* const list = block.textList(); list && !paragraph.format.bullet) {
            // A list of the toolkit's own, pasted from elsewhere.
            paragraph.format.bullet = true;
            paragraph.format.leftIndent += listStep * std::max(1, list->format().indent());
            paragraph.format.firstIndent = -listStep;
            paragraph.format.bulletIndent = listStep;
        }
        for (auto at = block.begin(); !at.atEnd(); ++at)
            fragment(at.fragment(), paragraph.runs);
        return paragraph;
    }

private:
    struct Known
    {
        RichText::CharacterFormat value;
        QByteArray verbatim;
        bool isObject = false;
    };

    void fragment(const QTextFragment& fragment, std::vector<RichText::Run>& runs)
    {
        const Known& format = known(fragment);
        if (!format.verbatim.isEmpty())
            runs.insert(runs.end(), fragment.length(), {format.value, {}, format.verbatim});
        else if (format.isObject)
            return; // a picture of the toolkit's, which cannot be written
        else if (!runs.empty() && runs.back().verbatim.isEmpty() && runs.back().format == format.value)
            runs.back().text += fragment.text();
        else
            runs.push_back({format.value, fragment.text(), {}});
    }

    const Known& known(const QTextFragment& fragment)
    {
        const auto [place, isNew] = m_formats.try_emplace(fragment.charFormatIndex());
        if (isNew) {
            const QTextCharFormat format = fragment.charFormat();
            place->second = {toCharacterFormat(format), verbatimGroup(format),
                             format.objectType() != QTextFormat::NoObject};
        }
        return place->second;
    }

    std::unordered_map<int, Known> m_formats;
};

void keepHeader(QTextFrame& root, const std::vector<QByteArray>& header)
{
    QTextFrameFormat format = root.frameFormat();
    format.setProperty(headerProperty, QVariant::fromValue(QByteArrayList(header.begin(), header.end())));
    root.setFrameFormat(format);
}

} // namespace

void setRichText(QTextDocument& document, const RichText& text)
{
    QAbstractTextDocumentLayout& layout = *document.documentLayout();
    if (layout.handlerForObject(verbatimObject) == nullptr)
        layout.registerHandler(verbatimObject, new EmptyObject(&layout));
    const bool undo = document.isUndoRedoEnabled();
    document.setUndoRedoEnabled(false);
    {
        Fill fill(document);
        if (!text.header.empty())
            keepHeader(*document.rootFrame(), text.header);
        for (const RichText::Paragraph& paragraph : text.paragraphs)
            fill.paragraph(paragraph);
    }
    document.setUndoRedoEnabled(undo);
    document.setModified(false);
}

RichText richTextOf(const QTextDocument& document)
{
    RichText text;
    const auto header = document.rootFrame()->frameFormat().property(headerProperty).value<QByteArrayList>();
    text.header.assign(header.begin(), header.end());
    text.paragraphs.reserve(static_cast<std::size_t>(document.blockCount()));
    Collect collect;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        text.paragraphs.push_back(collect.paragraph(block));
    return text;
}

} // namespace varnhold
