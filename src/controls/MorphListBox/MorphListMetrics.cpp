#include "controls/MorphListBox/MorphListMetrics.h"

#include <algorithm>

namespace varnhold {

using Constants = MorphListConstants;

MorphListMetrics::MorphListMetrics(const MorphListMeasure& measure, int count, int first)
    : m_measure(measure), m_count(count)
{
    placeRows();
    placeBar(first);
}

QSize MorphListMetrics::sizeFor(const MorphListMeasure& measure, int rows, int textWidth)
{
    const MorphListMetrics metrics(measure, 0, 0);
    const int inset = measure.BorderWidth + Constants::rowTopInset;
    const int image = measure.ShowItemImages ? metrics.imageSide() + 1 : 0;
    return {metrics.contentLeft() + image + textWidth + measure.scrollBarWidth + measure.BorderWidth,
            2 * inset + rows * metrics.rowHeight()};
}

void MorphListMetrics::placeRows()
{
    const int font = std::max(1, m_measure.fontHeight);
    const int side = m_measure.ItemImageSize > 0 ? m_measure.ItemImageSize : font;
    m_imageSide = m_measure.ShowItemImages ? side : 0;
    if (m_measure.checkList) {
        m_rowHeight = std::max(font + 2, Constants::checkRowMinimum);
        if (m_measure.ShowItemImages)
            m_rowHeight = std::max(m_rowHeight, std::max(font, side) + 2);
    } else {
        m_rowHeight = std::max(font, m_imageSide);
    }

    const int inset = m_measure.BorderWidth + Constants::rowTopInset;
    const int usable = m_measure.ScaleHeight - 2 * inset;
    m_rows = std::clamp(usable / m_rowHeight, 0, Constants::rowLimit);
    m_rowTops.resize(size_t(m_rows));
    for (int i = 0; i < m_rows; ++i)
        m_rowTops[size_t(i)] = inset + i * m_rowHeight;
}

void MorphListMetrics::placeBar(int first)
{
    const int border = m_measure.BorderWidth;
    const int inner = std::max(0, m_measure.ScaleWidth - 2 * border);
    const int height = std::max(0, m_measure.ScaleHeight - 2 * border);
    m_contentWidth = inner;
    if (m_count <= m_rows)
        return;

    const int width = std::min(m_measure.scrollBarWidth, inner);
    m_contentWidth = inner - width;
    m_bar = mirrored(QRect(border + m_contentWidth, border, width, height));
    if (m_bar.isEmpty())
        return;
    const int arrow = std::min(width, height / 2);
    m_upperArrow = QRect(m_bar.left(), m_bar.top(), width, arrow);
    m_lowerArrow = QRect(m_bar.left(), m_bar.bottom() + 1 - arrow, width, arrow);
    m_track = QRect(m_bar.left(), m_bar.top() + arrow, width, height - 2 * arrow);

    const qint64 proportion = qint64(m_track.height()) * m_rows / m_count;
    const int thumb =
        int(std::min(std::max(proportion, qint64(m_measure.thumbMinimum)), qint64(m_track.height())));
    const qint64 room = m_track.height() - thumb;
    const int top = m_track.top() + int(room * std::clamp(first, 0, m_count - m_rows) / (m_count - m_rows));
    m_thumb = QRect(m_bar.left(), top, width, thumb);
}

QRect MorphListMetrics::mirrored(QRect rectangle) const
{
    if (m_measure.RightToLeft)
        rectangle.moveLeft(m_measure.ScaleWidth - rectangle.left() - rectangle.width());
    return rectangle;
}

int MorphListMetrics::contentLeft() const
{
    return m_measure.BorderWidth + (m_measure.checkList ? Constants::checkTextInset : Constants::textInset);
}

QRect MorphListMetrics::trackAbove() const
{
    return {m_track.left(), m_track.top(), m_track.width(), m_thumb.top() - m_track.top()};
}

QRect MorphListMetrics::trackBelow() const
{
    const int top = m_thumb.bottom() + 1;
    return {m_track.left(), top, m_track.width(), m_track.bottom() + 1 - top};
}

QRect MorphListMetrics::row(int visible) const
{
    const int top = m_rowTops.at(size_t(visible));
    return mirrored(QRect(m_measure.BorderWidth, top, m_contentWidth, m_rowHeight));
}

QRect MorphListMetrics::checkBox(int visible) const
{
    const int top = m_rowTops.at(size_t(visible)) + (m_rowHeight - Constants::checkBoxSide) / 2;
    return mirrored(QRect(m_measure.BorderWidth + Constants::textInset, top, Constants::checkBoxSide,
                          Constants::checkBoxSide));
}

QRect MorphListMetrics::image(int visible) const
{
    const int top = m_rowTops.at(size_t(visible)) + (m_rowHeight - m_imageSide) / 2;
    return mirrored(QRect(contentLeft(), top, m_imageSide, m_imageSide));
}

QRect MorphListMetrics::text(int visible) const
{
    const int left = contentLeft() + (m_measure.ShowItemImages ? m_imageSide + 1 : 0);
    const int right = m_measure.BorderWidth + m_contentWidth;
    return mirrored(QRect(left, m_rowTops.at(size_t(visible)), std::max(0, right - left), m_rowHeight));
}

int MorphListMetrics::rowAt(int y) const
{
    const auto next = std::upper_bound(m_rowTops.begin(), m_rowTops.end(), y);
    if (next == m_rowTops.begin() || y >= *(next - 1) + m_rowHeight)
        return -1;
    return int(next - m_rowTops.begin()) - 1;
}

HitZone MorphListMetrics::zoneAt(QPoint position) const
{
    if (!m_bar.contains(position))
        return HitZone::Rows;
    if (m_upperArrow.contains(position))
        return HitZone::UpperArrow;
    if (m_lowerArrow.contains(position))
        return HitZone::LowerArrow;
    return m_thumb.contains(position) ? HitZone::Thumb : HitZone::Track;
}

int MorphListMetrics::firstRowFor(int thumbTop) const
{
    const qint64 room = m_track.height() - m_thumb.height();
    if (room <= 0)
        return 0;
    const qint64 offset = std::clamp<qint64>(thumbTop - m_track.top(), 0, room);
    return int((offset * (m_count - m_rows) + room / 2) / room);
}

} // namespace varnhold
