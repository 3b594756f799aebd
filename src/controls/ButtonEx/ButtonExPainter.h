#pragma once

#include "controls/ButtonEx/ButtonExMetrics.h"
#include "controls/SystemColors.h"

#include <QFont>
#include <QImage>

class QPainter;

namespace varnhold {

/// Everything that decides the pixels of a button.
struct ButtonExLook
{
    BevelRequest bevel; ///< its size is the control's
    bool skinned = false;
    QImage face;  ///< already cut; null leaves the back colour
    QImage glyph; ///< null for none
    QPoint glyphOffset;
    QString caption; ///< with its mnemonic mark
    QPoint captionOffset;
    QFont font;
    ColorValue backColor = systemcolors::buttonFace;
    ColorValue textColor = systemcolors::buttonText;
    bool rightToLeft = false;
    ColorValue highlightColor = systemcolors::buttonText;
    bool ring = false;      ///< the control's own keyboard highlight, where the bevel draws no dots
    bool focusDots = false; ///< a focus rectangle over what is shown
};

/// Draws the button at (0, 0). Any size will do; nothing is drawn outside it.
void paintButtonEx(QPainter& painter, const ButtonExLook& look);

} // namespace varnhold
