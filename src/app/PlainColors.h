#pragma once

#include <QColor>

namespace varnhold::plainlook {

inline const QColor nightTop(0x1a2843);
inline const QColor nightMiddle(0x111c32);
inline const QColor nightBottom(0x0b1323);
inline const QColor panel(0x0d1628);
inline const QColor panelRaised(0x152239);
inline const QColor edge(0x2d4166);
inline const QColor innerLight(0x3d5686);
inline const QColor text(0xdfe9f7);
inline const QColor quietText(0x9fb2cf);
inline const QColor accent(0x3fd4e8);
inline const QColor accentDeep(0x16506a);

} // namespace varnhold::plainlook
