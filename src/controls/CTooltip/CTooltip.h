#pragma once

#include "controls/SystemColors.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

class QWidget;

namespace varnhold {

class TipWindow;

/// A tool tip for one owner control: rectangle or balloon, with a title, an icon, colours and two delays.
///
/// Setting a property before Create only stores it. While a tip exists, Icon and Title take effect at once
/// when Icon is not 0 and Title is not empty; ForeColor, BackColor and TipText always; the others with the
/// next Create.
class CTooltip : public QObject
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
    [[nodiscard]] bool exists() const;
    /// The window of the tip while it is on the screen, otherwise nullptr.
    [[nodiscard]] QWidget* window() const;

    [[nodiscard]] int Style() const { return m_style; }
    [[nodiscard]] bool Centered() const { return m_centered; }
    [[nodiscard]] int Icon() const { return m_icon; }
    [[nodiscard]] quint32 ForeColor() const { return m_foreColor; }
    [[nodiscard]] quint32 BackColor() const { return m_backColor; }
    [[nodiscard]] QString Title() const { return m_title; }
    [[nodiscard]] QString TipText() const { return m_tipText; }
    [[nodiscard]] int VisibleTime() const { return m_visibleTime; }
    [[nodiscard]] int DelayTime() const { return m_delayTime; }

    /// 1 is a balloon, anything else a rectangle.
    void setStyle(int style);
    /// Centred under the owner instead of beside the pointer.
    void setCentered(bool centered);
    /// 0 none, 1 information, 2 warning, 3 error.
    void setIcon(int icon);
    /// 0 leaves the platform's colour: black cannot be set.
    void setForeColor(quint32 color);
    void setBackColor(quint32 color);
    void setTitle(const QString& title);
    /// Lines, tabs and runs of blanks are kept.
    void setTipText(const QString& text);
    /// Milliseconds.
    void setVisibleTime(int milliseconds);
    void setDelayTime(int milliseconds);

private:
    int m_style = 0;
    int m_icon = 0;
    int m_visibleTime = 5000;
    int m_delayTime = 500;
    quint32 m_foreColor = 0;
    quint32 m_backColor = 0;
    bool m_centered = false;
    QString m_title;
    QString m_tipText;
    std::unique_ptr<TipWindow> m_tip;
};

} // namespace varnhold
