#pragma once

#include "covers/ThumbPages.h"
#include "covers/ThumbPictures.h"
#include "platform/ShapedWindow.h"

#include <QTimer>

#include <array>
#include <functional>

class QScrollBar;

namespace varnhold {

class CoverFolder;
class ElidedLabel;
class PictureBox;
class Screen;
class Settings;
class ThumbBox;
struct ApplicationState;

/// Pages through the covers of the game list, three at a time. It loads when it is made, and is unloaded by
/// being closed: its maker then drops it.
class frmThumbs : public ShapedWindow
{
    Q_OBJECT

public:
    struct Services
    {
        const ThumbsList& list;
        const CoverFolder& folder;
        const Settings& settings;
        ApplicationState& state;
        const Screen& screen;
        QPixmap blank; ///< Thumb(3)'s picture
        /// Gives the window its look.
        std::function<void(QWidget&)> skin;
    };

    frmThumbs(const Services& services, QWidget* owner);

Q_SIGNALS:
    void unloaded();
    /// Double click on Thumb(1): the first nine characters of lblCaption. The window may be gone when this
    /// returns.
    void chosen(const QString& gameId);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void build();
    void buildThumbs();
    void buildBar();
    void makeDraggable();
    void load();
    void HScroll1_Change();
    void showPage(const ThumbPage& page);
    void showPictures();
    void tmr_Mouse_Timer();
    void choose();

    Services m_services;
    ThumbPages m_pages;
    ThumbPictures m_pictures;
    ThumbPage m_page;
    std::array<ThumbBox*, 3> m_thumbs{}; ///< Thumb(0) to Thumb(2)
    ElidedLabel* m_caption = nullptr;
    PictureBox* m_picBar = nullptr;
    QScrollBar* m_bar = nullptr; ///< HScroll1
    QTimer m_mouse;              ///< tmr_Mouse
    QTimer m_later;              ///< for the pictures of the newest place, while the bar is dragged
    int m_wheel = 0;             ///< of a step, in eighths of a degree
};

} // namespace varnhold
