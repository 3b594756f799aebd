#pragma once

#include <QHash>
#include <QMap>
#include <QWidget>

#include <functional>

class QAction;
class QLabel;
class QMenu;
class QTimer;

namespace varnhold {

class MenuCommands;
class Sounds;

/// Owner of every popup menu, built from the menu tree; never shown itself.
class frmMenu : public QWidget
{
    Q_OBJECT

public:
    frmMenu(const MenuCommands& commands, Sounds& sounds);

    enum class WithSound { No, Menu };
    /// Opens a popup by its name ("mnuLView").
    void popUp(const char* name, const QPoint& globalPosition, WithSound sound = WithSound::No);

    /// An entry, submenu or separator by its name, index included ("mnuSkin(2)"): to show, hide or check it.
    [[nodiscard]] QAction& entry(const QString& name) const;
    /// Entries 1 and on of an array, behind its hidden entry 0. A "&" in a caption shows as it stands.
    void fill(const char* array, const QStringList& captions);
    /// The same by index, from 1: there may be gaps.
    void fill(const char* array, const QMap<int, QString>& captions);
    /// Gives all entries the skin's glyphs anew; runs after entries change.
    void menu_ImgCheck();
    void setGlyphs(std::function<void()> attach) { m_attachGlyphs = std::move(attach); }

    [[nodiscard]] const QLabel& imgBlank() const { return *m_imgBlank; }
    /// Scroller of the settings window's credits, switched off at first.
    [[nodiscard]] QTimer& tmr_Scroll() { return *m_scroll; }

private:
    void build();
    void prepare(QAction& entry, const QString& name);

    const MenuCommands& m_commands;
    Sounds& m_sounds;
    QHash<QString, QMenu*> m_menus;
    QHash<QString, QAction*> m_entries;
    std::function<void()> m_attachGlyphs;
    QLabel* m_imgBlank; ///< picture of a title without a cover
    QTimer* m_scroll;
};

} // namespace varnhold
