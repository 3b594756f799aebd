#pragma once

#include "search/SearchQuery.h"

#include <QList>

namespace varnhold {

/// Where a search for links shows what it found, in place of what stood there before. Not asked when nothing
/// was found.
class LinkResults
{
public:
    virtual ~LinkResults() = default;
    /// `title` names the search; the window comes to the front.
    virtual void showLinks(const QList<FoundLink>& rows, const QString& title) = 0;
};

} // namespace varnhold
