#pragma once

#include "platform/richtext/RichTextBox.h"

#include <vector>

namespace varnhold {

struct GotoLine;

/// RTFbox: rich text that is edited by keys, and knows on which line of the screen its caret is.
class ReportBox : public RichTextBox
{
    Q_OBJECT

public:
    explicit ReportBox(QWidget* parent = nullptr);

    /// All of one format, as reportContents makes it; caret at the start, nothing to undo.
    void setReport(const RichText& contents);
    /// Gives all letters the colour that any page shows.
    void blacken();

    /// From 1. Lines are those that are seen, so a paragraph may have several; columns count UTF-16 units.
    struct Place
    {
        int line = 1;
        int column = 1;
    };
    [[nodiscard]] Place caretPlace();
    void goTo(const GotoLine& target);

Q_SIGNALS:
    void placeChanged(); ///< the caret has moved, or the lines have
    void menuWanted(const QPoint& globalPosition);

protected:
    [[nodiscard]] QColor shownColor(const QColor& stored) const override;
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] int firstLineOf(const QTextBlock& block);
    [[nodiscard]] int positionOfLine(int line);
    void forgetLinesFrom(int block);

    std::vector<int> m_firstLines; ///< by block, from 0, of the blocks counted so far; never empty
};

} // namespace varnhold
