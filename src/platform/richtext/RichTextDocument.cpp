#include "platform/richtext/RichTextDocument.h"

#include "platform/Twips.h"
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
constexpr char16_t frameStart = 0xFDD0;
constexpr char16_t frameEnd = 0xFDD1;

struct CharacterFormatHash
{
    std::size_t operator()(const RichText::CharacterFormat& format) const
    {
        const int flags = (format.bold ? 1 : 0) | (format.italic ? 2 : 0) | (format.underline ? 4 : 0) |
                          (format.strikethrough ? 8 : 0) | (format.color ? 16 : 0) |
                          (static_cast<int>(format.script) << 5);
        return qHashMulti(0, flags, format.font, format.halfPoints, format.color.value_or(0));
    }
};

void keepHeader(QTextFrame& root, const std::vector<QByteArray>& header)
{
    QTextFrameFormat format = root.frameFormat();
    format.setProperty(headerProperty, QVariant::fromValue(QByteArrayList(header.begin(), header.end())));
    root.setFrameFormat(format);
}

/// A document holds few formats many times over.
class Fill
{
public:
    /// Empties the document. Done inside the edit, the whole counts as new to the layout, which then lays out
    /// what is seen and leaves the rest for idle moments.
    Fill(QTextDocument& document, const RichText& text)
        : m_cursor(&document), m_viewWidth(viewWidthOf(document))
    {
        QAbstractTextDocumentLayout& layout = *document.documentLayout();
        if (layout.handlerForObject(verbatimObject) == nullptr)
            layout.registerHandler(verbatimObject, new EmptyObject(&layout));
        m_cursor.beginEditBlock();
        if (document.isUndoRedoEnabled()) {
            m_cursor.select(QTextCursor::Document);
            m_cursor.removeSelectedText();
            m_cursor.setBlockCharFormat({});
        } else {
            document.clear();
        }
        if (text.header != richTextHeader(document))
            keepHeader(*document.rootFrame(), text.header);
        for (const RichText::Paragraph& each : text.paragraphs)
            paragraph(each);
    }
    ~Fill() { m_cursor.endEditBlock(); }
    Q_DISABLE_COPY_MOVE(Fill)

private:
    void paragraph(const RichText::Paragraph& paragraph)
    {
        if (!m_block || *m_blockValue != paragraph.format) {
            m_block = toBlockFormat(paragraph.format, m_viewWidth);
            m_blockValue = &paragraph.format;
        }
        if (std::exchange(m_isFirst, false))
            m_cursor.setBlockFormat(*m_block);
        else
            m_cursor.insertBlock(*m_block, QTextCharFormat());
        beginWord();
        for (const RichText::Run& each : paragraph.runs)
            run(each);
    }

    void run(const RichText::Run& run)
    {
        if (!run.verbatim.isEmpty()) {
            m_cursor.insertText(QString(QChar::ObjectReplacementCharacter),
                                toVerbatimFormat(run.format, run.verbatim));
            beginWord();
        } else if (run.isNumber) {
            QTextCharFormat marked = format(run.format);
            const QString number = fit(run.text);
            setNumber(marked, number);
            insert(number, marked);
        } else if (!run.text.isEmpty()) {
            insert(fit(run.text), format(run.format));
        }
    }

    void beginWord() { m_wordLength = m_wordRuns = 0; }

    /// To wrap a word that is longer than a line takes the layout time with the square of its length and of
    /// its runs: minutes for one of a megabyte. Objects that take no room, and that are no part of the
    /// contents, break it up.
    void insert(const QString& text, const QTextCharFormat& format)
    {
        constexpr qsizetype longestWord = 4000;
        constexpr qsizetype mostRuns = 200;
        qsizetype start = 0;
        ++m_wordRuns;
        for (qsizetype i = 0; i < text.size(); ++i) {
            if (text[i].isSpace()) {
                beginWord();
                continue;
            }
            if ((m_wordLength >= longestWord || m_wordRuns > mostRuns) && !text[i].isLowSurrogate()) {
                if (i > start)
                    m_cursor.insertText(text.mid(start, i - start), format);
                m_cursor.insertText(QString(QChar::ObjectReplacementCharacter), toVerbatimFormat({}, {}));
                start = i;
                beginWord();
            }
            ++m_wordLength;
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
    int m_viewWidth;
    qsizetype m_wordLength = 0; ///< of the word that the text ends with
    qsizetype m_wordRuns = 0;
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
        m_maybeNumber = paragraph.format.list > 0 || !paragraph.format.oldList.isEmpty();
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
        QString number;
    };

    void fragment(const QTextFragment& fragment, std::vector<RichText::Run>& runs)
    {
        const Known& format = known(fragment);
        if (!format.verbatim.isEmpty())
            runs.insert(runs.end(), fragment.length(), {format.value, {}, format.verbatim});
        else if (format.isObject)
            return; // a picture of the toolkit's, which cannot be written
        else
            text(fragment.text(), format, runs);
    }

    /// A number stands in front of all else, as it came.
    void text(const QString& text, const Known& format, std::vector<RichText::Run>& runs)
    {
        const bool isNumber = m_maybeNumber && !format.number.isEmpty() && text.startsWith(format.number);
        const qsizetype length = isNumber ? format.number.size() : 0;
        if (isNumber)
            append({format.value, format.number, {}, true}, runs);
        if (length == text.size())
            return;
        m_maybeNumber = false;
        append({format.value, text.sliced(length), {}, false}, runs);
    }

    static void append(RichText::Run run, std::vector<RichText::Run>& runs)
    {
        if (!runs.empty() && runs.back().verbatim.isEmpty() && runs.back().format == run.format &&
            runs.back().isNumber == run.isNumber)
            runs.back().text += run.text;
        else
            runs.push_back(std::move(run));
    }

    const Known& known(const QTextFragment& fragment)
    {
        const auto [place, isNew] = m_formats.try_emplace(fragment.charFormatIndex());
        if (isNew) {
            const QTextCharFormat format = fragment.charFormat();
            place->second = {toCharacterFormat(format), verbatimGroup(format),
                             format.objectType() != QTextFormat::NoObject, numberOf(format)};
        }
        return place->second;
    }

    std::unordered_map<int, Known> m_formats;
    bool m_maybeNumber = false; ///< no text has come yet but the paragraph's number
};

} // namespace

void setRichText(QTextDocument& document, const RichText& text)
{
    const bool undo = document.isUndoRedoEnabled();
    document.setUndoRedoEnabled(false);
    Fill(document, text);
    document.setUndoRedoEnabled(undo);
    document.setModified(false);
}

void replaceRichText(QTextDocument& document, const RichText& text)
{
    Fill(document, text);
}

int viewWidthOf(const QTextDocument& document)
{
    const double width = document.textWidth() - 2 * document.documentMargin();
    return width > 0 ? qRound(width * twipsPerPixel) : 0;
}

void fitIndents(QTextDocument& document)
{
    if (document.isRedoAvailable())
        return;
    const int viewWidth = viewWidthOf(document);
    const bool isModified = document.isModified();
    const bool undo = document.isUndoRedoEnabled();
    const bool isPartOfEdit = document.isUndoAvailable();
    QTextCursor cursor(&document);
    if (!isPartOfEdit)
        document.setUndoRedoEnabled(false);
    else
        cursor.joinPreviousEditBlock();
    std::unordered_map<int, std::optional<QTextBlockFormat>> fitting; // by the format's index
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const auto [place, isNew] = fitting.try_emplace(block.blockFormatIndex());
        if (isNew)
            place->second = fitFormat(block.blockFormat(), viewWidth);
        if (place->second) {
            cursor.setPosition(block.position());
            cursor.setBlockFormat(*place->second);
        }
    }
    if (isPartOfEdit)
        cursor.endEditBlock();
    document.setUndoRedoEnabled(undo);
    document.setModified(isModified);
}

QString plainTextOf(QString rawText)
{
    rawText.remove(QChar::ObjectReplacementCharacter);
    const auto isLineEnd = [](QChar each) {
        return each == QChar::ParagraphSeparator || each == QChar::LineSeparator || each == frameStart ||
               each == frameEnd;
    };
    std::replace_if(rawText.begin(), rawText.end(), isLineEnd, u'\n');
    return rawText;
}

std::vector<QByteArray> richTextHeader(const QTextDocument& document)
{
    const auto header = document.rootFrame()->frameFormat().property(headerProperty).value<QByteArrayList>();
    return {header.begin(), header.end()};
}

RichText richTextOf(const QTextDocument& document)
{
    RichText text;
    text.header = richTextHeader(document);
    text.paragraphs.reserve(static_cast<std::size_t>(document.blockCount()));
    Collect collect;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        text.paragraphs.push_back(collect.paragraph(block));
    return text;
}

} // namespace varnhold
