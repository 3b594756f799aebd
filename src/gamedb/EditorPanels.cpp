#include "gamedb/EditorPanels.h"

#include <numeric>
#include <vector>

namespace varnhold {

namespace {

struct Panel
{
    int openHeight;
    std::vector<int> closes; ///< panels that close when it opens
};

const std::array<Panel, EditorPanels::count>& panels()
{
    static const std::array<Panel, EditorPanels::count> table{
        {{950, {2}}, {475, {2}}, {1195, {0, 1, 3}}, {950, {2}}}};
    return table;
}

} // namespace

bool EditorPanels::isOpen(int panel) const
{
    return height(panel) != closed;
}

int EditorPanels::top(int panel) const
{
    return std::accumulate(m_heights.begin(), m_heights.begin() + panel, 0);
}

void EditorPanels::cmd_Collapse_Click(int panel)
{
    const auto index = static_cast<std::size_t>(panel);
    if (isOpen(panel)) {
        m_heights.at(index) = closed;
        return;
    }
    m_heights.at(index) = panels().at(index).openHeight;
    for (const int other : panels().at(index).closes)
        m_heights.at(static_cast<std::size_t>(other)) = closed;
}

} // namespace varnhold
