#include "platform/QtColorDialog.h"

#include "platform/FrontWindow.h"

#include <QColorDialog>

namespace varnhold {

std::optional<std::uint32_t> QtColorDialog::chooseColor(const QString& title, std::uint32_t first)
{
    const auto channel = [first](int shift) { return static_cast<int>((first >> shift) & 0xFFU); };
    const QColor chosen =
        QColorDialog::getColor(QColor(channel(0), channel(8), channel(16)), frontWindow(), title);
    if (!chosen.isValid())
        return std::nullopt;
    return static_cast<std::uint32_t>(chosen.red() | chosen.green() << 8 | chosen.blue() << 16);
}

} // namespace varnhold
