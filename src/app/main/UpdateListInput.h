#pragma once

#include <QObject>
#include <QString>

#include <functional>

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
    /// Asked for the balloon's heading.
    void setTipTitle(std::function<QString()> title) { m_tipTitle = std::move(title); }

Q_SIGNALS:
    void menuWanted(const QPoint& globalPosition);
    void rowActivated();

private:
    void onHover(int row);

    UpdateListView& m_updates;
    const UpdateList& m_list;
    CTooltip* m_toolTip = nullptr;
    std::function<QString()> m_tipTitle;
};

} // namespace varnhold
