#include "controls/CTooltip/CTooltip.h"

#include "controls/CTooltip/TipWindow.h"

namespace varnhold {

CTooltip::CTooltip(QObject* parent) : QObject(parent), m_state(*this) {}

CTooltip::~CTooltip()
{
    Destroy();
}

bool CTooltip::Create(QWidget* owner)
{
    m_owner = owner;
    const bool made = m_state.Create();
    m_owner = nullptr;
    return made;
}

void CTooltip::Destroy()
{
    m_state.Destroy();
}

QWidget* CTooltip::window() const
{
    return m_window && m_window->isVisible() ? m_window.data() : nullptr;
}

bool CTooltip::createWindow(bool balloon)
{
    if (!m_owner)
        return false;
    m_window = new TipWindow(m_owner, balloon);
    // A window that is replaced is disconnected first, so this one went with its owner.
    connect(m_window, &QObject::destroyed, this, [this] { m_state.forgetWindow(); });
    return true;
}

void CTooltip::destroyWindow()
{
    if (!m_window)
        return;
    m_window->disconnect(this);
    m_window->retire();
    m_window.clear();
}

void CTooltip::addTool(bool centered, const QString& text)
{
    m_window->setCentered(centered);
    m_window->setText(text);
}

void CTooltip::sendTitle(int icon, const QString& title)
{
    if (m_window)
        m_window->setTitle(icon, title);
}

void CTooltip::sendTextColor(ColorValue color)
{
    if (m_window)
        m_window->setTextColor(color);
}

void CTooltip::sendBackColor(ColorValue color)
{
    if (m_window)
        m_window->setBackColor(color);
}

void CTooltip::sendDelays(int visible, int initial)
{
    if (m_window)
        m_window->start(visible, initial);
}

void CTooltip::sendText(const QString& text)
{
    if (m_window)
        m_window->setText(text);
}

} // namespace varnhold
