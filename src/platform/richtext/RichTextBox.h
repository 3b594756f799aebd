#pragma once

#include <QTextEdit>

namespace varnhold {

/// A text box whose contents come and go as Rich Text Format.
class RichTextBox : public QTextEdit
{
    Q_OBJECT
    Q_PROPERTY(bool Locked READ Locked WRITE setLocked)

public:
    explicit RichTextBox(QWidget* parent = nullptr);

    [[nodiscard]] QString TextRTF() const;
    /// Replaces the contents; a text that is no RTF shows as it stands. Not undoable.
    void setTextRTF(const QString& rtf);

    [[nodiscard]] bool Locked() const { return isReadOnly(); }
    void setLocked(bool locked);

    /// Position of the character at that point of the viewport, in pixels; at the nearest one where there is
    /// none.
    [[nodiscard]] int characterAt(const QPoint& viewportPoint) const;
};

} // namespace varnhold
