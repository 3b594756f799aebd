#include "controls/CTooltip/CTooltipState.h"

namespace varnhold {

bool CTooltipState::Create()
{
    Destroy();
    if (!m_platform.createWindow(m_style == 1))
        return false;
    m_exists = true;
    m_platform.addTool(m_centered, m_tipText);
    if (!m_title.isEmpty() || m_icon != 0)
        m_platform.sendTitle(m_icon, m_title);
    if (m_foreColor != 0)
        m_platform.sendTextColor(m_foreColor);
    if (m_backColor != 0)
        m_platform.sendBackColor(m_backColor);
    m_platform.sendDelays(m_visibleTime, m_delayTime);
    return true;
}

void CTooltipState::Destroy()
{
    if (!m_exists)
        return;
    m_exists = false;
    m_platform.destroyWindow();
}

void CTooltipState::setIcon(int icon)
{
    m_icon = icon;
    resendTitle();
}

void CTooltipState::setTitle(const QString& title)
{
    m_title = title;
    resendTitle();
}

// Both must be set, unlike at Create: a title can not be taken away from a tip that exists.
void CTooltipState::resendTitle()
{
    if (m_exists && m_icon != 0 && !m_title.isEmpty())
        m_platform.sendTitle(m_icon, m_title);
}

void CTooltipState::setForeColor(ColorValue color)
{
    m_foreColor = color;
    if (m_exists)
        m_platform.sendTextColor(color);
}

void CTooltipState::setBackColor(ColorValue color)
{
    m_backColor = color;
    if (m_exists)
        m_platform.sendBackColor(color);
}

void CTooltipState::setTipText(const QString& text)
{
    m_tipText = text;
    if (m_exists)
        m_platform.sendText(text);
}

} // namespace varnhold
