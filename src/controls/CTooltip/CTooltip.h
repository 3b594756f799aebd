#pragma once

#include "controls/CTooltip/CTooltipState.h"

#include <QObject>
#include <QPointer>

class QWidget;

namespace varnhold {

class TipWindow;

/// A tool tip for one owner control: rectangle or balloon, with a title, an icon, colours and two delays.
///
/// Setting a property before Create only stores it. While a tip exists, Icon and Title take effect at once
/// when Icon is not 0 and Title is not empty; ForeColor, BackColor and TipText always; the others with the
/// next Create.
class CTooltip : public QObject, private TipPlatform
{
    Q_OBJECT
    Q_PROPERTY(int Style READ Style WRITE setStyle)
    Q_PROPERTY(bool Centered READ Centered WRITE setCentered)
    Q_PROPERTY(int Icon READ Icon WRITE setIcon)
    Q_PROPERTY(quint32 ForeColor READ ForeColor WRITE setForeColor)
    Q_PROPERTY(quint32 BackColor READ BackColor WRITE setBackColor)
    Q_PROPERTY(QString Title READ Title WRITE setTitle)
    Q_PROPERTY(QString TipText READ TipText WRITE setTipText)
    Q_PROPERTY(int VisibleTime READ VisibleTime WRITE setVisibleTime)
    Q_PROPERTY(int DelayTime READ DelayTime WRITE setDelayTime)

public:
    explicit CTooltip(QObject* parent = nullptr);
    ~CTooltip() override;

    /// Makes the tip of an owner, in place of one that exists. It shows after DelayTime while the pointer
    /// rests on the owner. False when there is no owner.
    bool Create(QWidget* owner);
    /// Closes the tip, if there is one.
    void Destroy();
    /// Whether a tip exists, shown or waiting.
    [[nodiscard]] bool exists() const { return m_state.exists(); }
    /// The window of the tip while it is on the screen, otherwise nullptr.
    [[nodiscard]] QWidget* window() const;

    [[nodiscard]] int Style() const { return m_state.Style(); }
    [[nodiscard]] bool Centered() const { return m_state.Centered(); }
    [[nodiscard]] int Icon() const { return m_state.Icon(); }
    [[nodiscard]] quint32 ForeColor() const { return m_state.ForeColor(); }
    [[nodiscard]] quint32 BackColor() const { return m_state.BackColor(); }
    [[nodiscard]] QString Title() const { return m_state.Title(); }
    [[nodiscard]] QString TipText() const { return m_state.TipText(); }
    [[nodiscard]] int VisibleTime() const { return m_state.VisibleTime(); }
    [[nodiscard]] int DelayTime() const { return m_state.DelayTime(); }

    /// 1 is a balloon, anything else a rectangle.
    void setStyle(int style) { m_state.setStyle(style); }
    /// Centred under the owner instead of at the pointer.
    void setCentered(bool centered) { m_state.setCentered(centered); }
    /// 0 none, 1 information, 2 warning, 3 error. Shows beside a title only.
    void setIcon(int icon) { m_state.setIcon(icon); }
    /// 0 leaves the platform's colour: black cannot be set.
    void setForeColor(quint32 color) { m_state.setForeColor(color); }
    void setBackColor(quint32 color) { m_state.setBackColor(color); }
    void setTitle(const QString& title) { m_state.setTitle(title); }
    /// Lines, tabs and runs of blanks are kept. A tip without text does not show.
    void setTipText(const QString& text) { m_state.setTipText(text); }
    /// Milliseconds; negative is the platform's time.
    void setVisibleTime(int milliseconds) { m_state.setVisibleTime(milliseconds); }
    void setDelayTime(int milliseconds) { m_state.setDelayTime(milliseconds); }

private:
    bool createWindow(bool balloon) override;
    void destroyWindow() override;
    void addTool(bool centered, const QString& text) override;
    void sendTitle(int icon, const QString& title) override;
    void sendTextColor(ColorValue color) override;
    void sendBackColor(ColorValue color) override;
    void sendDelays(int visible, int initial) override;
    void sendText(const QString& text) override;

    CTooltipState m_state;
    QWidget* m_owner = nullptr; ///< during Create
    QPointer<TipWindow> m_window;
};

} // namespace varnhold
