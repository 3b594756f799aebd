#pragma once

#include <QWidget>

#include <vector>

class QAction;
class QLabel;
class QMenu;

namespace varnhold {

class SkinCatalogue;
class Sounds;

/// Owner of every popup menu; never shown itself.
class frmMenu : public QWidget
{
    Q_OBJECT

public:
    explicit frmMenu(Sounds& sounds);

    /// These play the menu sound first.
    void popUp_mnuMenu(const QPoint& globalPosition);
    void popUp_mnuLBox(const QPoint& globalPosition);
    void popUp_mnuImage(const QPoint& globalPosition);
    void popUp_mnuLView(const QPoint& globalPosition); ///< without a sound

    void popUp_mnuSkins(const QPoint& globalPosition); ///< without a sound
    /// The entries mnuSkin(1) and on.
    void fill_mnuSkin(const SkinCatalogue& catalogue);
    /// The check mark of mnuLBIcons; choosing the entry leaves it as it is.
    [[nodiscard]] bool iconsEntryChecked() const;
    void checkIconsEntry(bool checked);
    [[nodiscard]] const QLabel& imgBlank() const { return *m_imgBlank; }

Q_SIGNALS:
    void mnuSettings_Click();
    void mnuWebOpen_Click();
    void mnuRaw_Click();
    void mnuExit_Click();
    void mnuLBIcons_Click();
    void mnuDLoad_Click();
    void mnuImageView_Click();
    void mnuImageExplore_Click();
    void mnuImageOpen_Click();
    void mnuSkinDL_Click();
    void mnuSkin_Refresh_Click();
    void mnuSkin_Path_Click();
    void mnuSkin_Click(int index); ///< from 1

private:
    QMenu* addMenu(const char* name);
    void addEntry(QMenu& menu, const char* name, const QString& caption, void (frmMenu::*signal)());
    void popUp(QMenu& menu, const QPoint& globalPosition);

    Sounds& m_sounds;
    QMenu* m_mnuMenu;
    QMenu* m_mnuLBox;
    QMenu* m_mnuLView;
    QMenu* m_mnuSkins;
    QMenu* m_mnuImage;
    QAction* m_mnuLBIcons;
    QLabel* m_imgBlank; ///< picture of a title without a cover
    std::vector<QAction*> m_skinEntries;
};

} // namespace varnhold
