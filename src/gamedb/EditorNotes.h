#pragma once

#include "platform/richtext/RichTextBox.h"

namespace varnhold {

/// The notes of the entry editor: rich text to be written. Tab types a tab; Ctrl+Tab and Shift+Tab leave the
/// box.
class EditorNotes : public RichTextBox
{
    Q_OBJECT

public:
    explicit EditorNotes(QWidget* parent = nullptr) : RichTextBox(parent) {}

Q_SIGNALS:
    void menuWanted(const QPoint& globalPosition); ///< mnuRTXT: the right button goes down, or its key

protected:
    /// Readable on the ground that the skin gives, the palette's base.
    [[nodiscard]] QColor shownColor(const QColor& stored) const override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
};

} // namespace varnhold
