#include "platform/richtext/RichTextBox.h"

#include "platform/Twips.h"
#include "platform/richtext/RichTextClipboard.h"
#include "platform/richtext/RichTextDocument.h"
#include "platform/richtext/RichTextFormats.h"
#include "platform/richtext/RtfReader.h"
#include "platform/richtext/RtfWriter.h"

#include <QAbstractTextDocumentLayout>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocumentFragment>

#include <algorithm>
#include <optional>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr double tabDistance = 48; // half an inch
constexpr int leastWidth = 60;     // of a line, in pixels, whatever the right margin

/// The bytes that readRtf wants. Rich text is ASCII; characters beyond it that got into it literally keep
/// their meaning as escapes.
QByteArray toStream(const QString& text)
{
    if (!QStringView(text).trimmed().startsWith("{\\rtf"_L1))
        return text.toUtf8();
    const bool isAscii = std::all_of(text.begin(), text.end(), [](QChar each) { return each < u'\x80'; });
    if (isAscii)
        return text.toLatin1();
    QByteArray stream;
    stream.reserve(text.size() + 64);
    for (const QChar each : text) {
        if (each < u'\x80')
            stream += static_cast<char>(each.unicode());
        else
            stream += "{\\uc0\\u" + QByteArray::number(static_cast<qint16>(each.unicode())) + '}';
    }
    return stream;
}

} // namespace

RichTextBox::RichTextBox(QWidget* parent) : QTextEdit(parent)
{
    setTabStopDistance(tabDistance);
    connect(document(), &QTextDocument::contentsChanged, this, &RichTextBox::refreshColors);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &RichTextBox::refreshColors);
}

QString RichTextBox::TextRTF() const
{
    return QString::fromLatin1(writeRtf(richTextOf(*document())));
}

void RichTextBox::setTextRTF(const QString& rtf)
{
    RichText text = readRtf(toStream(rtf));
    prepare(text);
    document()->clear();
    // To place the caret lays out all text before it, so where none shows it may move along to the end.
    QTextCursor start(document());
    start.setKeepPositionOnInsert(true);
    if (!Locked())
        setTextCursor(start);
    setRichText(*document(), text);
    if (!Locked())
        setTextCursor(QTextCursor(document()));
    verticalScrollBar()->setValue(0);
    horizontalScrollBar()->setValue(0);
}

void RichTextBox::replaceContents(const RichText& text)
{
    RichText shown = text;
    prepare(shown);
    replaceRichText(*document(), shown);
    if (!Locked())
        setTextCursor(QTextCursor(document()));
}

RichText RichTextBox::contents() const
{
    return richTextOf(*document());
}

QString RichTextBox::plainText() const
{
    return plainTextOf(document()->toRawText());
}

bool RichTextBox::isEmpty() const
{
    return document()->isEmpty();
}

void RichTextBox::edit(const std::function<void(QTextCursor&)>& change)
{
    if (Locked())
        return;
    QTextCursor selection = textCursor();
    change(selection);
    setTextCursor(selection);
}

void RichTextBox::setRightMargin(int twips)
{
    m_rightMargin = std::max(twips, 0);
    wrap();
    fitIndents(*document());
    refreshColors();
}

void RichTextBox::wrap()
{
    const int width = viewport()->width() - pixelsFromTwips(m_rightMargin);
    setLineWrapMode(m_rightMargin > 0 ? FixedPixelWidth : WidgetWidth);
    if (m_rightMargin > 0)
        setLineWrapColumnOrWidth(std::max(width, leastWidth));
}

void RichTextBox::prepare(RichText&) const {}

void RichTextBox::setLocked(bool locked)
{
    setTextInteractionFlags(locked ? Qt::TextSelectableByMouse : Qt::TextEditorInteraction);
}

QPoint RichTextBox::scrolled() const
{
    const int right = horizontalScrollBar()->maximum();
    const int left = horizontalScrollBar()->value();
    return {isRightToLeft() ? right - left : left, verticalScrollBar()->value()};
}

int RichTextBox::characterAt(const QPoint& viewportPoint) const
{
    const QPointF point = viewportPoint + scrolled();
    const QTextBlock block = document()->findBlock(cursorForPosition(viewportPoint).position());
    const QRectF outline = document()->documentLayout()->blockBoundingRect(block);
    const QPointF inside = point - outline.topLeft();
    if (block == document()->lastBlock() && inside.y() >= outline.height())
        return document()->characterCount() - 1;
    const QTextLayout& layout = *block.layout();
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        const bool isLast = i + 1 == layout.lineCount();
        if (inside.y() >= line.y() + line.height() && !isLast)
            continue;
        const bool isBehind = inside.x() > line.naturalTextRect().right();
        // Behind a line that goes on below stands its last character, as a rule a blank.
        const int end = line.textStart() + line.textLength() - (isLast ? 0 : 1);
        return block.position() +
               (isBehind ? end : std::min(end, line.xToCursor(inside.x(), QTextLine::CursorOnCharacter)));
    }
    return block.position();
}

RichTextBox::Range RichTextBox::visibleText() const
{
    const QRect view = viewport()->rect();
    const auto at = [this](const QPoint& point) { return cursorForPosition(point).position(); };
    const int last = std::max(at(view.bottomLeft()), at(view.bottomRight()));
    // In the margin above a text that is not laid out to its end yet, the layout finds the end of what is.
    if (scrolled().y() <= document()->documentMargin())
        return {0, last};
    return {std::min(at(view.topLeft()), at(view.topRight())), last};
}

void RichTextBox::refreshColors()
{
    // Later: the text may be in the middle of a change, whose cursors must stay as they are.
    m_colorsAreOld = true;
    viewport()->update();
}

/// Lays the colours that show over the stored ones, for what can be seen.
void RichTextBox::layColors()
{
    m_colorsAreOld = false;
    QList<ExtraSelection> shown;
    const Range visible = visibleText();
    for (QTextBlock block = document()->findBlock(visible.first);
         block.isValid() && block.position() <= visible.last; block = block.next()) {
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            const QTextFragment fragment = at.fragment();
            const QTextCharFormat format = fragment.charFormat();
            const bool isVisible = fragment.position() <= visible.last &&
                                   fragment.position() + fragment.length() > visible.first;
            if (!isVisible || !format.hasProperty(QTextFormat::ForegroundBrush))
                continue;
            const QColor stored = format.foreground().color();
            const QColor color = shownColor(stored);
            if (color == stored)
                continue;
            ExtraSelection selection{QTextCursor(document()), {}};
            selection.cursor.setPosition(fragment.position());
            selection.cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
            selection.format.setForeground(color);
            // Without a ground the layout passes over a selection that touches the one before.
            selection.format.setBackground(Qt::transparent);
            shown.append(selection);
        }
    }
    if (!shown.isEmpty() || !extraSelections().isEmpty())
        setExtraSelections(shown);
}

void RichTextBox::changeEvent(QEvent* event)
{
    QTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        refreshColors();
}

void RichTextBox::resizeEvent(QResizeEvent* event)
{
    QTextEdit::resizeEvent(event);
    if (event->size().width() != event->oldSize().width()) {
        if (m_rightMargin > 0)
            wrap();
        fitIndents(*document());
    }
    refreshColors();
}

void RichTextBox::paintEvent(QPaintEvent* event)
{
    if (m_colorsAreOld)
        layColors();
    QTextEdit::paintEvent(event);
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-scrolled());
    const Range visible = visibleText();
    for (QTextBlock block = document()->findBlock(visible.first);
         block.isValid() && block.position() <= visible.last; block = block.next())
        drawBullet(painter, block);
}

void RichTextBox::drawBullet(QPainter& painter, const QTextBlock& block) const
{
    const double distance = bulletDistance(toParagraphFormat(block.blockFormat()));
    if (distance <= 0 || block.layout()->lineCount() == 0)
        return;
    const auto at = block.begin();
    const QTextCharFormat format = at.atEnd() ? block.charFormat() : at.fragment().charFormat();
    const QFontMetricsF metrics(format.font().resolve(document()->defaultFont()));
    const QTextLine line = block.layout()->lineAt(0);
    const QPointF corner = document()->documentLayout()->blockBoundingRect(block).topLeft();
    const double radius = metrics.xHeight() / 3;
    const QPointF left = corner + QPointF(line.naturalTextRect().left() - distance,
                                          line.y() + line.ascent() - metrics.xHeight() / 2);
    const bool hasColor = format.hasProperty(QTextFormat::ForegroundBrush);
    painter.setPen(Qt::NoPen);
    painter.setBrush(hasColor ? shownColor(format.foreground().color()) : palette().color(QPalette::Text));
    painter.drawEllipse(left + QPointF(radius, 0), radius, radius);
}

void RichTextBox::keyPressEvent(QKeyEvent* event)
{
    const bool leavesBullet = event->key() == Qt::Key_Backspace ||
                              (event->key() == Qt::Key_Return && textCursor().block().length() == 1);
    if (leavesBullet && !isReadOnly() && endBullet())
        return;
    QTextEdit::keyPressEvent(event);
}

/// True when a bullet stood before the caret and is gone now.
bool RichTextBox::endBullet()
{
    QTextCursor cursor = textCursor();
    RichText::ParagraphFormat format = toParagraphFormat(cursor.blockFormat());
    if (cursor.hasSelection() || !cursor.atBlockStart() || !format.bullet)
        return false;
    format.bullet = false;
    format.bulletIndent = 0;
    format.firstIndent = 0;
    cursor.setBlockFormat(toBlockFormat(format));
    return true;
}

QMimeData* RichTextBox::createMimeDataFromSelection() const
{
    return offerRichText(textCursor().selection(), richTextHeader(*document())).release();
}

bool RichTextBox::canInsertFromMimeData(const QMimeData* source) const
{
    return source != nullptr && holdsRichText(*source);
}

void RichTextBox::insertFromMimeData(const QMimeData* source)
{
    std::optional<RichText> pasted = isReadOnly() ? std::nullopt : takeRichText(*source);
    if (!pasted)
        return;
    fitLists(*pasted, richTextHeader(*document()));
    QTextDocument contents;
    contents.setDocumentMargin(document()->documentMargin());
    contents.setTextWidth(document()->textWidth());
    setRichText(contents, *pasted);
    textCursor().insertFragment(QTextDocumentFragment(&contents));
    ensureCursorVisible();
}

} // namespace varnhold
