#pragma once

#include <QHash>
#include <QObject>

#include <functional>

namespace varnhold {

/// Which routine each menu entry runs. Whoever owns a routine binds it under the entry's name; an entry
/// without one stands in its menu and is disabled.
class MenuCommands : public QObject
{
    Q_OBJECT

public:
    using Routine = std::function<void()>;
    using IndexedRoutine = std::function<void(int)>;

    void bind(const char* entry, Routine routine);
    /// For all entries of an array; given the index, from 1.
    void bindEach(const char* array, IndexedRoutine routine);

    /// `entry` is an array's with its index: "mnuSkin(2)".
    [[nodiscard]] bool has(const QString& entry) const;
    /// Without effect where nothing is bound. The routine may pump events and refill menus.
    void run(const QString& entry) const;

Q_SIGNALS:
    void bound(const QString& name); ///< an array's without index

private:
    QHash<QString, IndexedRoutine> m_routines;
};

} // namespace varnhold
