#pragma once

#include <QWidget>

class QMenu;

namespace varnhold {

class Sounds;

/// Owner of every popup menu; never shown itself.
class frmMenu : public QWidget
{
    Q_OBJECT

public:
    explicit frmMenu(Sounds& sounds);

    /// Both play the menu sound first.
    void popUp_mnuMenu(const QPoint& globalPosition);
    void popUp_mnuLView(const QPoint& globalPosition);

Q_SIGNALS:
    void mnuSettings_Click();
    void mnuWebOpen_Click();
    void mnuRaw_Click();
    void mnuExit_Click();
    void mnuDLoad_Click();

private:
    QMenu* addMenu(const char* name);
    void addEntry(QMenu& menu, const char* name, const QString& caption, void (frmMenu::*signal)());
    void popUp(QMenu& menu, const QPoint& globalPosition);

    Sounds& m_sounds;
    QMenu* m_mnuMenu;
    QMenu* m_mnuLView;
};

} // namespace varnhold
