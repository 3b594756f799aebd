#pragma once

#include <QTextEdit>

#include <functional>

namespace varnhold {

struct RichText;

/// A text box whose contents come and go as Rich Text Format.
class RichTextBox : public QTextEdit
{
    Q_OBJECT
    Q_PROPERTY(bool Locked READ Locked WRITE setLocked)

public:
    explicit RichTextBox(QWidget* parent = nullptr);

    [[nodiscard]] QString TextRTF() const;
    /// Replaces the contents and shows their start; a text that is no RTF shows as it stands. Not undoable.
    void setTextRTF(const QString& rtf);

    /// The same contents as values, and as one step that Undo takes back.
    void replaceContents(const RichText& text);
    [[nodiscard]] RichText contents() const;
    /// Without what stands for kept groups; lines end with "\n".
    [[nodiscard]] QString plainText() const;
    /// Neither text nor a kept group.
    [[nodiscard]] bool isEmpty() const;

    /// Runs a change of RichTextTools.h on the selection; not while the box is locked.
    void edit(const std::function<void(QTextCursor&)>& change);
    /// Room that lines leave free at the view's right, in twips; not part of the contents.
    [[nodiscard]] int RightMargin() const { return m_rightMargin; }
    void setRightMargin(int twips);

    [[nodiscard]] bool Locked() const { return isReadOnly(); }
    /// While locked the text can be read, selected and copied; the keys scroll.
    void setLocked(bool locked);

    /// Position of the character at that point of the viewport, in pixels; that of the line's end behind a
    /// line, and of the text's end below the text.
    [[nodiscard]] int characterAt(const QPoint& viewportPoint) const;

protected:
    /// Changes new contents before they show, where a kind of box does.
    virtual void prepare(RichText& text) const;
    /// The colour in which a stored one shows; what is stored stays. Call refreshColors when other answers
    /// are to be given for the same palette.
    [[nodiscard]] virtual QColor shownColor(const QColor& stored) const { return stored; }
    void refreshColors();

    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;
    [[nodiscard]] bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    struct Range
    {
        int first;
        int last;
    };
    /// Positions between which all that can be seen lies.
    [[nodiscard]] Range visibleText() const;
    [[nodiscard]] QPoint scrolled() const; ///< from the viewport to the document
    void layColors();
    void drawBullet(QPainter& painter, const QTextBlock& block) const;
    bool endBullet();
    void wrap();

    bool m_colorsAreOld = true;
    int m_rightMargin = 0;
};

} // namespace varnhold
