#pragma once

#include "controls/MorphListBox/MorphListDesign.h"
#include "controls/MorphListBox/MorphListModel.h"

#include <QFont>
#include <QImage>
#include <QPixmap>

class QPainter;
class QRegion;

namespace varnhold {

/// All that the look of a list is made of, besides its model.
struct MorphListLook
{
    MorphListDesign design;
    QPixmap Picture;
    QPixmap DisPicture;
    int PictureMode = 0;
    int DisPictureMode = 0;
    int CheckStyle = 1;
    bool ShowSelectRect = true;
    bool ShowItemImages = false;
    int ItemImageSize = 0;
    bool RightToLeft = false;
    QList<QPixmap> images; ///< by image index; an empty one shows as nothing
    QFont font;
};

/// Paints a list into any painter. It keeps what is costly to make (the background, in device pixels) from
/// one painting to the next.
class MorphListPainter
{
public:
    /// Paints the part `dirty` of the list, which lies in the rectangle `place`; both in the painter's
    /// logical pixels.
    void paint(QPainter& painter, const QRect& place, const QRegion& dirty, MorphListModel& model,
               const MorphListLook& look);
    void forgetBackground() { m_background = {}; } ///< the look has changed

private:
    QImage m_background;
};

} // namespace varnhold
