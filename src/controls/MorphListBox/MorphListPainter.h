#pragma once

#include "controls/MorphListBox/MorphListDesign.h"
#include "controls/MorphListBox/MorphListModel.h"
#include "controls/MorphListBox/MorphListScrollBar.h"
#include "controls/MorphListBox/MorphListTexts.h"
#include "controls/ReadableColor.h"

#include <QFont>
#include <QImage>
#include <QPixmap>

#include <utility>
#include <vector>

class QPainter;
class QRegion;

namespace varnhold {

/// All that the look of a list is made of, besides its model. Lengths are logical pixels.
struct MorphListLook
{
    MorphListDesign design;
    QPixmap Picture;
    QPixmap DisPicture;
    int PictureMode = 0; ///< 0 normal, 1 stretched, 2 tiled
    int DisPictureMode = 0;
    int CheckStyle = 1;
    bool ShowSelectRect = true;
    bool ShowItemImages = false;
    int ItemImageSize = 0;
    bool RightToLeft = false;
    bool ReadableText = false; ///< a text that could not be read on its row takes a colour that can
    bool enabled = true;
    QList<QPixmap> images; ///< by image index; an empty one shows as nothing
    QFont font;
};

/// Paints a list into any painter, pixel by pixel of the device, so that it is sharp at any ratio. It keeps
/// what is costly to make from one painting to the next.
class MorphListPainter
{
public:
    /// Paints the list at `place`, or the part of it that `dirty` touches; both in the painter's logical
    /// pixels. The painter may be moved and scaled, not turned. Outside curved corners nothing is painted.
    void paint(QPainter& painter, const QRect& place, const QRegion& dirty, MorphListModel& model,
               const MorphListLook& look);
    void forget(); ///< the look has changed

private:
    void paintRow(QPainter& painter, int index, MorphListModel& model, const MorphListLook& look);
    void paintText(QPainter& painter, int index, bool selected, MorphListModel& model,
                   const MorphListLook& look);
    /// Of the pixels that were painted under a row's text.
    const GroundTones& tonesUnder(const QRect& text, const QRect& row, bool selected);
    void paintImage(QPainter& painter, const QRect& place, int image, const MorphListLook& look);
    const QImage& selectionStrip(const QSize& size, const MorphListLook& look);
    void renewBackground(const QSize& size, bool focused, const MorphListLook& look);
    [[nodiscard]] QRect toDevice(const QRect& logical) const;

    qreal m_ratio = 1;
    bool m_focusedBackground = false;
    QImage m_background;
    QImage m_selection;
    /// Measured once for each place: the background stands still while rows run over it.
    struct Measured
    {
        std::pair<bool, QRect> key; ///< on the selection, place in device pixels
        GroundTones tones;
    };
    std::vector<Measured> m_tones;
    QList<QImage> m_images; // scaled to device pixels
    MorphListScrollBar m_scrollBar;
    MorphListTexts m_texts;
};

} // namespace varnhold
