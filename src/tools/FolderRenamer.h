#pragma once

#include "tools/FolderNames.h"

#include <QObject>
#include <QStringListModel>

#include <functional>
#include <vector>

namespace varnhold {

class FileDialogs;
class MessageBoxes;
class MessagePump;
class RunTimeError;
class Settings;
class Shell;
class Sounds;
class Trash;
struct Paths;

/// The folder renamer without its window: it lists the folders directly below a base, takes the unwanted
/// texts out of their names, and renames or recycles single ones. It works on real folders at once, without
/// undo.
class FolderRenamer : public QObject
{
    Q_OBJECT

public:
    struct Services
    {
        const Settings& settings;
        FileDialogs& dialogs;
        MessageBoxes& boxes;
        MessagePump& pump;
        Shell& shell;
        Sounds& sounds;
        Trash& trash;
        const Paths& paths;
        QString applicationTitle;
        /// True for a folder in which a download of ours works, or that holds such a one.
        std::function<bool(const QString& folder)> isInUse;
        std::function<void(bool busy)> setBusy;
    };

    explicit FolderRenamer(Services services);

    void btnLoad_Click();      ///< left button: a new base folder
    void btnLoad_RightClick(); ///< the same base again
    void btnProcess_Click();
    void btnReName_Click();
    void btnSearch_Click();
    void btnCancel_Click();
    void txtSearch_Change(const QString& text);
    void setAgreed(bool agreed) { m_agreed = agreed; } ///< chk_Agree
    void setManualText(const QString& text) { m_manualText = text; }
    /// Rows from 0.
    void selectFolder(int row);
    /// Row of lstDirFrom for one of lstSearch; -1 for none.
    [[nodiscard]] int folderOfHit(int row) const;
    /// The right button over a list; row -1 for none. Keeps the paths of the two entries.
    void openMenu(bool overFrom, int row);
    void mnuOpenDir_Click();
    void mnuRecycle_Click();
    /// Ends a scan that runs, as the window goes.
    void abandon() { m_abandoned = true; }

    [[nodiscard]] QStringListModel& lstDirFrom() { return m_from; }
    [[nodiscard]] QStringListModel& lstDirTo() { return m_to; }
    [[nodiscard]] QStringListModel& lstSearch() { return m_hits; }
    [[nodiscard]] QStringListModel& lstBuffer() { return m_buffer; }
    [[nodiscard]] bool isSearching() const { return m_searching; }
    [[nodiscard]] const QString& title() const { return m_title; }   ///< the window's
    [[nodiscard]] const QString& current() const { return m_panel; } ///< panel 1
    [[nodiscard]] const QString& base() const { return m_base; }     ///< tag of panel 1
    [[nodiscard]] const QString& counted() const { return m_count; } ///< panel 2
    [[nodiscard]] const QString& manualText() const { return m_manualText; }
    [[nodiscard]] const QString& manualTag() const { return m_manualTag; }
    [[nodiscard]] QString openCaption() const;    ///< of mnuOpenDir
    [[nodiscard]] QString recycleCaption() const; ///< of mnuRecycle; empty: hidden
    /// The row's whole text, with a word where its name cannot be worked on.
    [[nodiscard]] QString toolTip(const QString& path) const;
    static QString disclaimer(); ///< txtDisclaimer, lines ended by LF

Q_SIGNALS:
    void changed(); ///< title, panels, manual text or mode
    void hitsChanged();

private:
    [[nodiscard]] bool refuses(const QString& path);
    void scan(const QString& title);
    void load(const QString& base, const QString& title);
    void process();
    void renameByHand();
    void requireFree(const QString& folder) const;
    void findHits();
    void removeRow(const QString& path);
    void report(const RunTimeError& error, const QString& file);
    void say();

    Services m_services;
    QStringListModel m_from;
    QStringListModel m_to;
    QStringListModel m_hits;
    QStringListModel m_buffer;
    std::vector<int> m_hitRows; ///< lstIndex
    QStringList m_unusable;     ///< paths whose names are no text
    QString m_search;
    QString m_title;
    QString m_panel;
    QString m_base;
    QString m_count;
    QString m_manualText;
    QString m_manualTag;
    QString m_openPath;
    QString m_recyclePath;
    bool m_overFrom = false;
    bool m_agreed = false;
    bool m_searching = false;
    bool m_scans = false;
    bool m_abandoned = false;
};

} // namespace varnhold
