#pragma once

#include "appearance/SkinFolder.h"

#include <QHash>
#include <QPixmap>

namespace varnhold {

/// Decodes a skin's pictures for one run of the appearance. Within the run a file is decoded once; the next
/// run makes a new object, so that edited files count.
class SkinPictures
{
public:
    explicit SkinPictures(const QString& folder) : m_folder(folder) {}

    [[nodiscard]] const SkinFolder& folder() const { return m_folder; }
    /// Throws RunTimeError as SkinFolder::read(), 481 for what is no picture, 7 for one that is too large.
    /// Of an icon the size that suits a knob or a row best is taken.
    QPixmap load(const QString& name);
    /// A picture by its full path. One that is not there is looked for by its base name in the skin's folder:
    /// the path may come from another machine.
    QPixmap loadPath(const QString& path);

private:
    SkinFolder m_folder;
    QHash<QString, QPixmap> m_decoded;
};

} // namespace varnhold
