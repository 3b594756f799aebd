#pragma once

#include "controls/SystemColors.h"

#include <QObject>
#include <QString>

#include <array>
#include <functional>
#include <optional>

class QPoint;

namespace varnhold {

class CTooltip;
class Sounds;
class UpdateList;
class UpdateListView;

/// What the mouse and the keys do in ListView1, and the balloon over its rows.
class UpdateListInput : public QObject
{
    Q_OBJECT

public:
    UpdateListInput(UpdateListView& updates, const UpdateList& list, Sounds& sounds);

    /// The balloon; made late in the start. `owner`: the window that it belongs to.
    void createToolTip(QWidget& owner);
    /// The skin's, from the first balloon on.
    void setTipColors(ColorValue fore, ColorValue back);
    /// Asked for the balloon's heading.
    void setTipTitle(std::function<QString()> title) { m_tipTitle = std::move(title); }

Q_SIGNALS:
    void menuWanted(const QPoint& globalPosition);
    void rowActivated();

private:
    void onHover(int row, bool onIcon);

    UpdateListView& m_updates;
    const UpdateList& m_list;
    void colorToolTip();

    CTooltip* m_toolTip = nullptr;
    std::optional<std::array<ColorValue, 2>> m_tipColors; ///< fore and back, once there is a skin
    std::function<QString()> m_tipTitle;
};

} // namespace varnhold
