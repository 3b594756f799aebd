#pragma once

#include "platform/richtext/RichTextBox.h"

namespace varnhold {

/// The notes of the main window: read-only rich text whose links are live.
class NotesBox : public RichTextBox
{
    Q_OBJECT

public:
    explicit NotesBox(QWidget* parent = nullptr);

    /// Underlines all links in blue, locks the box and puts the caret at the text's end.
    void Make_Links();
    [[nodiscard]] const QString& LinkUnderMouse() const { return m_linkUnderMouse; }

Q_SIGNALS:
    void linkActivated(const QString& link); ///< a left release over it

protected:
    void prepare(RichText& text) const override;
    /// Readable on the ground that the skin gives, the palette's base.
    [[nodiscard]] QColor shownColor(const QColor& stored) const override;
    void keyPressEvent(QKeyEvent* event) override; ///< Enter runs Make_Links
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QString linkUnderPointer(const QPoint& viewportPoint);

    QString m_linkUnderMouse;
};

} // namespace varnhold
