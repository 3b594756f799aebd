#include "tools/GotoLine.h"

#include "platform/Conversion.h"
#include "platform/RunTimeError.h"

#include <cmath>
#include <limits>

namespace varnhold {

GotoLine GotoLine::from(const QString& text)
{
    try {
        const double line = std::nearbyint(doubleFromText(text)) - 1;
        if (std::abs(line) > std::numeric_limits<qint32>::max())
            return {};
        if (line < -1)
            return {Kind::End, 0};
        if (line < 0)
            return {Kind::OwnLine, 0};
        return {Kind::Line, static_cast<int>(line)};
    } catch (const RunTimeError&) {
        return {};
    }
}

} // namespace varnhold
