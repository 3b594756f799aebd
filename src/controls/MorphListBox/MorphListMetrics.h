#pragma once

#include "controls/MorphListBox/MorphListDesign.h"

#include <QRect>

#include <vector>

namespace varnhold {

/// Parts of the list under the pointer.
enum class HitZone {
    Rows = 1,
    UpperArrow = 2,
    LowerArrow = 3,
    Track = 4, ///< above or below the thumb, told apart by position
    Thumb = 5,
};

/// What the geometry of a list depends on. Lengths are logical pixels.
struct MorphListMeasure
{
    int ScaleWidth = 0;
    int ScaleHeight = 0;
    int fontHeight = 0;
    int BorderWidth = 0;
    int ItemImageSize = 0; ///< 0: as high as the font
    bool ShowItemImages = false;
    bool checkList = false;
    bool RightToLeft = false;
    int scrollBarWidth = 16;
    int thumbMinimum = 16;

    bool operator==(const MorphListMeasure&) const = default;
};

/// The geometry of a list as a value: it serves the size hint, the painting and the hit test alike. All
/// rectangles are in logical pixels of the list, and mirrored already when it is right to left.
class MorphListMetrics
{
public:
    MorphListMetrics() = default;
    /// `count` items, of which `first` is the top row.
    MorphListMetrics(const MorphListMeasure& measure, int count, int first);

    /// The size at which that many rows with texts of that width fit beside a scroll bar.
    [[nodiscard]] static QSize sizeFor(const MorphListMeasure& measure, int rows, int textWidth);

    [[nodiscard]] int rowHeight() const { return m_rowHeight; }
    [[nodiscard]] int rows() const { return m_rows; }           ///< rows that fit, 0 to rowLimit
    [[nodiscard]] int imageSide() const { return m_imageSide; } ///< 0 without images
    [[nodiscard]] const std::vector<int>& rowTops() const { return m_rowTops; } ///< a top for each of rows()
    [[nodiscard]] bool hasScrollBar() const { return !m_bar.isEmpty(); }

    [[nodiscard]] QRect bar() const { return m_bar; }
    [[nodiscard]] QRect upperArrow() const { return m_upperArrow; }
    [[nodiscard]] QRect lowerArrow() const { return m_lowerArrow; }
    [[nodiscard]] QRect track() const { return m_track; } ///< all between the arrows
    [[nodiscard]] QRect thumb() const { return m_thumb; }
    [[nodiscard]] QRect trackAbove() const; ///< between the upper arrow and the thumb
    [[nodiscard]] QRect trackBelow() const;

    // Places of the visible row 0 to rows() - 1.
    [[nodiscard]] QRect row(int visible) const; ///< inside the border, up to the scroll bar
    [[nodiscard]] QRect checkBox(int visible) const;
    [[nodiscard]] QRect image(int visible) const;
    [[nodiscard]] QRect text(int visible) const;

    /// The visible row at that height, by binary search in the row tops; -1 above row 0 and below the last.
    [[nodiscard]] int rowAt(int y) const;
    [[nodiscard]] HitZone zoneAt(QPoint position) const;
    [[nodiscard]] bool aboveThumb(QPoint position) const { return position.y() < m_thumb.top(); }

    /// The first row that belongs to a thumb with that top: the thumb's relation backwards.
    [[nodiscard]] int firstRowFor(int thumbTop) const;

private:
    void placeRows();
    void placeBar(int first);
    [[nodiscard]] int contentLeft() const; ///< of the text, or of the image in front of it
    [[nodiscard]] QRect mirrored(QRect rectangle) const;

    MorphListMeasure m_measure;
    int m_count = 0;
    int m_rowHeight = 1;
    int m_rows = 0;
    int m_imageSide = 0;
    int m_contentWidth = 0; ///< from border to border, less the scroll bar
    std::vector<int> m_rowTops;
    QRect m_bar;
    QRect m_upperArrow;
    QRect m_lowerArrow;
    QRect m_track;
    QRect m_thumb;
};

} // namespace varnhold
