#pragma once

#include <QString>

#include <array>

namespace varnhold {

/// The cascade: five places for download windows, as texts. "99" marks a free place, a taken one holds its
/// own index. Places that a refused download took stay taken until the program ends; this is meant.
struct DownloadSlots
{
    std::array<QString, 5> lstFrm;  ///< "99" each at start
    std::array<QString, 5> lstLeft; ///< twips from the main window: "320", "640", "960", "1280", "1600"
    std::array<QString, 5> lstTop;  ///< the same

    DownloadSlots();
    /// Walks with the given shared index and takes the first free place; the index is 5 when there was none.
    void take(qint16& loopIndex);
    /// Frees the first place whose numeric value equals the index, if any.
    void free(qint16 slotIndex);
    /// Offset in twips. RunTimeError 381 past the last place.
    [[nodiscard]] double left(qint16 loopIndex) const;
    [[nodiscard]] double top(qint16 loopIndex) const;
};

} // namespace varnhold
