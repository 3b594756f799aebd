#include "controls/gallery/GallerySheet.h"

#include <QLabel>

namespace varnhold {

namespace {
constexpr int gap = 16;
constexpr int captionGap = 3;
} // namespace

GallerySheet::GallerySheet(int width, const QColor& background)
    : m_ink(background.lightness() > 128 ? QColor(0x30, 0x30, 0x30) : QColor(0xD8, 0xD8, 0xD8))
{
    setAutoFillBackground(true);
    setPalette(QPalette(background));
    QFont small = font();
    small.setPixelSize(11);
    setFont(small);
    resize(width, margin);
}

QLabel* GallerySheet::label(const QString& text, bool bold)
{
    auto* made = new QLabel(text, this);
    QPalette colors = made->palette();
    colors.setColor(QPalette::WindowText, m_ink);
    made->setPalette(colors);
    QFont weight = font();
    weight.setBold(bold);
    made->setFont(weight);
    made->adjustSize();
    return made;
}

void GallerySheet::heading(const QString& text)
{
    newRow();
    QLabel* title = label(text, true);
    title->move(margin, m_y);
    m_y += title->height() + gap / 2;
}

void GallerySheet::add(QWidget* sample, const QString& caption)
{
    QLabel* under = label(caption, false);
    const int taken = qMax(sample->width(), under->width());
    if (m_x > margin && m_x + taken > width() - margin)
        newRow();
    sample->setParent(this);
    sample->move(m_x, m_y);
    under->move(m_x, m_y + sample->height() + captionGap);
    m_x += taken + gap;
    m_rowHeight = qMax(m_rowHeight, sample->height() + captionGap + under->height());
}

void GallerySheet::newRow()
{
    m_x = margin;
    if (m_rowHeight > 0)
        m_y += m_rowHeight + gap;
    m_rowHeight = 0;
}

QWidget* GallerySheet::finish()
{
    newRow();
    resize(width(), m_y - gap + margin);
    return this;
}

} // namespace varnhold
