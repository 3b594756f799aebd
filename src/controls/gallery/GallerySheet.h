#pragma once

#include <QWidget>

class QLabel;

namespace varnhold {

/// A page on which samples flow from left to right, each with a caption under it. Call finish() last.
class GallerySheet : public QWidget
{
public:
    static constexpr int margin = 12;

    /// `width` in logical pixels; the height follows from what is added.
    explicit GallerySheet(int width, const QColor& background = QColor(0xF4, 0xF4, 0xF2));

    /// Starts a new row under a line of text.
    void heading(const QString& text);
    /// Takes the sample, at the size that it has, and puts it where there is room.
    void add(QWidget* sample, const QString& caption);
    void newRow();
    /// Gives the sheet its height and returns it.
    QWidget* finish();

private:
    QLabel* label(const QString& text, bool bold);

    QColor m_ink;
    int m_x = margin;
    int m_y = margin;
    int m_rowHeight = 0;
};

} // namespace varnhold
