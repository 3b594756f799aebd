#pragma once

#include "controls/SystemColors.h"

#include <QString>

namespace varnhold {

/// What a tip window takes. Whoever implements it shows nothing before its delay has passed.
class TipPlatform
{
public:
    virtual ~TipPlatform() = default;
    /// Makes the window. False when there can be none.
    virtual bool createWindow(bool balloon) = 0;
    virtual void destroyWindow() = 0;
    /// Ties the window to its owner, with its first text.
    virtual void addTool(bool centered, const QString& text) = 0;
    virtual void sendTitle(int icon, const QString& title) = 0;
    /// 0 is the platform's own colour, for both.
    virtual void sendTextColor(ColorValue color) = 0;
    virtual void sendBackColor(ColorValue color) = 0;
    /// Milliseconds until the tip goes, and until it comes.
    virtual void sendDelays(int visible, int initial) = 0;
    virtual void sendText(const QString& text) = 0;
};

/// The properties of a tip, and what each sends to the platform when.
class CTooltipState
{
public:
    explicit CTooltipState(TipPlatform& platform) : m_platform(platform) {}

    bool Create();
    void Destroy();
    /// The window went away by itself, with its owner.
    void forgetWindow() { m_exists = false; }
    [[nodiscard]] bool exists() const { return m_exists; }

    [[nodiscard]] int Style() const { return m_style; }
    [[nodiscard]] bool Centered() const { return m_centered; }
    [[nodiscard]] int Icon() const { return m_icon; }
    [[nodiscard]] ColorValue ForeColor() const { return m_foreColor; }
    [[nodiscard]] ColorValue BackColor() const { return m_backColor; }
    [[nodiscard]] QString Title() const { return m_title; }
    [[nodiscard]] QString TipText() const { return m_tipText; }
    [[nodiscard]] int VisibleTime() const { return m_visibleTime; }
    [[nodiscard]] int DelayTime() const { return m_delayTime; }

    void setStyle(int style) { m_style = style == 1 ? 1 : 0; }
    void setCentered(bool centered) { m_centered = centered; }
    void setIcon(int icon);
    void setForeColor(ColorValue color);
    void setBackColor(ColorValue color);
    void setTitle(const QString& title);
    void setTipText(const QString& text);
    /// The times count from the next Create on.
    void setVisibleTime(int milliseconds) { m_visibleTime = milliseconds; }
    void setDelayTime(int milliseconds) { m_delayTime = milliseconds; }

private:
    void resendTitle();

    TipPlatform& m_platform;
    QString m_title;
    QString m_tipText;
    int m_style = 0;
    int m_icon = 0;
    int m_visibleTime = 5000;
    int m_delayTime = 500;
    ColorValue m_foreColor = 0;
    ColorValue m_backColor = 0;
    bool m_centered = false;
    bool m_exists = false;
};

} // namespace varnhold
