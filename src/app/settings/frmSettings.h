#pragma once

#include "platform/ShapedWindow.h"
#include "state/SettingsValues.h"

#include <QRect>
#include <QTimer>

#include <functional>
#include <vector>

class QFrame;
class QLabel;
class QListWidget;
class QPlainTextEdit;

namespace varnhold {

class ButtonEx;
class CaptionDrag;
class ElidedLabel;
class FileDialogs;
class MessagePump;
class Screen;
class Settings;
class Sounds;
class SkinPage;
struct ApplicationState;
struct Paths;

/// The settings window. Its controls show the live settings and change them as the user acts; closing only
/// hides it.
class frmSettings : public ShapedWindow
{
    Q_OBJECT

public:
    struct Services
    {
        ApplicationState& state;
        Settings& settings;
        Sounds& sounds;
        FileDialogs& dialogs;
        MessagePump& pump;
        const Screen& screen;
        const Paths& paths;
        SkinPage& skinPage;
    };

    explicit frmSettings(const Services& services);

    /// Shows it at this place in pixels; a window that is open only comes to the front.
    void open(const QPoint& place);
    /// At the owner's corner and above it from now on; one that is open moves there too. An owner that is not
    /// shown yet comes first: window managers look for a window's owner when the window comes up. On the
    /// skin page, with the focus on btn_Skin_Path.
    void askForSkin(QWidget& owner);
    /// The same on the Database page: `text` in Label9(1), the focus on txt_IDList.
    void askForDatabase(QWidget& owner, const QString& text);
    /// The same with `caption` in lbl_Caption, until another page is opened.
    void askForTables(QWidget& owner, const QString& caption);
    /// Comes up if it was asked to before its owner was on the screen; false when it was not.
    bool followOwner();
    /// `text` in Label9(1), in the highlight colour.
    void thankForDatabase(const QString& text);
    /// Fills all controls from the settings; nothing is written.
    void refresh();

Q_SIGNALS:
    /// The mouse let go of an Auto box; raised before the box's setting changes.
    void autoSslReleased();
    void skinMenuWanted(const QPoint& globalPosition); ///< btn_Skin_Path
    void btnOpen_Click();
    /// The user moved a slider; its key is written.
    void opacityMoved(varnhold::OpacityOf which, int value);

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// A page: one title line, one column of controls.
    struct Page
    {
        QString caption;
        QFrame* frame;
    };

    /// A bar from 1 to `most` with the text of its value.
    struct Scroll
    {
        QString name;
        QString labelName;
        QString accessibleName;
        QPoint place = {};
        QRect labelPlace = {};
        int most;
        std::function<int()> read;
        std::function<void(int)> write;
        std::function<QString()> text;
    };

    void buildFrame();
    QFrame* addPage(const QString& row, const char* name, const QString& caption);
    void buildDatabase();
    void buildDownload();
    void buildOpacity();
    void buildOptions();
    void buildSkin();
    void showSkin();
    void buildSounds();
    void buildUnwanted();
    void addCheck(QFrame& page, const char* name, const QString& caption, const QString& toolTip, Check check,
                  const QPoint& place);
    void addScroll(QFrame& page, const Scroll& scroll);
    void addOpacity(QFrame& page, OpacityOf which, const QString& heading, int top);
    void addOrder(QFrame& page, Order which, const QString& heading, int left);
    ButtonEx* addButton(QWidget& page, const char* name, const QString& toolTip, const QRect& place);
    void showCaption(const QString& text);
    void showPage(int row);
    void showPageOver(QWidget& owner, const char* name);
    void chooseSaveDir();
    void chooseSound();
    void warn();
    void updateUnwantedTips();

    Services m_services;
    std::vector<Page> m_pages;
    std::vector<std::function<void()>> m_refreshers; ///< one for each control
    bool m_refreshing = false;
    bool m_awaitsOwner = false;
    QTimer m_warnLater; ///< the key goes its way first
    ElidedLabel* m_caption = nullptr;
    QListWidget* m_list = nullptr;
    QPlainTextEdit* m_unwanted = nullptr;
    QLabel* m_count = nullptr;
    QLabel* m_warning = nullptr;
};

} // namespace varnhold
