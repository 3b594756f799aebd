#include "covers/ThumbPages.h"

#include "covers/CoverFolder.h"

#include <algorithm>

namespace varnhold {

using namespace Qt::StringLiterals;

int ThumbPages::maximum() const
{
    return std::max(0, m_list.count() - 1);
}

int ThumbPages::firstIndex() const
{
    for (int row = m_list.count() - 1; row >= 0; --row)
        if (m_list.isSelected(row)) // ListIndex counts, not the row found: this is meant
            return std::clamp(m_list.listIndex(), 0, maximum());
    return 0;
}

QString ThumbPages::label(int row) const
{
    return m_list.id(row) + u"-["_s + m_list.title(row) + u']';
}

ThumbSlot ThumbPages::slot(int row) const
{
    ThumbSlot slot;
    const bool isThere = row >= 0 && row < m_list.count();
    if (isThere)
        slot.toolTip = label(row);
    if (m_folder.path().isEmpty())
        return slot;
    if (isThere)
        slot.file = m_folder.find(m_list.id(row));
    slot.shows = slot.file.isEmpty() ? ThumbSlot::Shows::Blank : ThumbSlot::Shows::Cover;
    return slot;
}

ThumbPage ThumbPages::page(int index) const
{
    return {index, m_list.id(index), label(index), {slot(index - 1), slot(index), slot(index + 1)}};
}

} // namespace varnhold
