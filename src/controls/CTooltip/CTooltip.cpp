#include "controls/CTooltip/CTooltip.h"

#include "controls/CTooltip/TipWindow.h"

namespace varnhold {

CTooltip::CTooltip(QObject* parent) : QObject(parent) {}

CTooltip::~CTooltip() = default;

bool CTooltip::Create(QWidget* owner)
{
    Destroy();
    if (!owner)
        return false;
    TipTimes times;
    times.delay = m_delayTime;
    times.visible = m_visibleTime;
    m_tip = std::make_unique<TipWindow>(owner, m_style == 1, m_centered, times);
    m_tip->setText(m_tipText);
    if (!m_title.isEmpty() || m_icon != 0)
        m_tip->setTitle(m_icon, m_title);
    if (m_foreColor != 0)
        m_tip->setTextColor(m_foreColor);
    if (m_backColor != 0)
        m_tip->setBackColor(m_backColor);
    return true;
}

void CTooltip::Destroy()
{
    m_tip.reset();
}

bool CTooltip::exists() const
{
    return m_tip != nullptr;
}

QWidget* CTooltip::window() const
{
    return m_tip && m_tip->isVisible() ? m_tip.get() : nullptr;
}

void CTooltip::setStyle(int style)
{
    m_style = style == 1 ? 1 : 0;
}

void CTooltip::setCentered(bool centered)
{
    m_centered = centered;
}

void CTooltip::setIcon(int icon)
{
    m_icon = icon;
    if (m_tip && m_icon != 0 && !m_title.isEmpty())
        m_tip->setTitle(m_icon, m_title);
}

void CTooltip::setForeColor(quint32 color)
{
    m_foreColor = color;
    if (m_tip)
        m_tip->setTextColor(color);
}

void CTooltip::setBackColor(quint32 color)
{
    m_backColor = color;
    if (m_tip)
        m_tip->setBackColor(color);
}

void CTooltip::setTitle(const QString& title)
{
    m_title = title;
    if (m_tip && m_icon != 0 && !m_title.isEmpty())
        m_tip->setTitle(m_icon, m_title);
}

void CTooltip::setTipText(const QString& text)
{
    m_tipText = text;
    if (m_tip)
        m_tip->setText(text);
}

void CTooltip::setVisibleTime(int milliseconds)
{
    m_visibleTime = milliseconds;
}

void CTooltip::setDelayTime(int milliseconds)
{
    m_delayTime = milliseconds;
}

} // namespace varnhold
