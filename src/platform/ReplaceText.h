#pragma once

#include <QString>

namespace varnhold {

/// Every occurrence from the left in one pass, case-sensitive. An empty needle does nothing, where the
/// toolkit's own replacing would fill the text.
inline void replaceIn(QString& text, const QString& needle, const QString& with = {})
{
    if (!needle.isEmpty())
        text.replace(needle, with);
}

} // namespace varnhold
