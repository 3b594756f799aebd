#pragma once

#include "gamedb/EditorPanels.h"
#include "gamedb/EntryEditorView.h"
#include "platform/ShapedWindow.h"

#include <QPixmap>

#include <array>
#include <functional>

class QFrame;
class QLabel;
class QLineEdit;
class QScrollBar;
class QTextCursor;

namespace varnhold {

class ButtonEx;
class ColorDialog;
class CoverBox;
class EditorNotes;
class ElidedLabel;
class EntryEditor;
class FontDialog;
class GameIdBox;
class MessageBoxes;
class PictureBox;
class Screen;
class Settings;
class Sounds;
struct ApplicationState;

/// The entry editor's window: what an entry holds, and the tools for its notes. Hidden after each save; its
/// parts are laid out when it is first shown.
class frmDB : public ShapedWindow, public EntryEditorView
{
    Q_OBJECT

public:
    struct Services
    {
        ApplicationState& state;
        const Settings& settings;
        Sounds& sounds;
        const Screen& screen;
        MessageBoxes& boxes;
        FontDialog& fonts;
        ColorDialog& colors;
        std::function<QPixmap()> blankPicture; ///< imgBlank
        std::function<void()> place;           ///< puts the window beside the main one
    };

    explicit frmDB(Services services);
    ~frmDB() override;
    /// What the buttons ask; to be said once, before the window shows.
    void setEditor(EntryEditor& editor) { m_editor = &editor; }

    /// Nothing in it differs from what was filled in.
    [[nodiscard]] bool isUnchanged() const;

    // The tools, on the notes' selection; nothing while the notes are locked.
    void cmd_Tools_Click(int index);
    void applyColor(quint32 color); ///< 0x00BBGGRR; also to shapeColor
    void mnuColor_Click();
    void mnuFont_Click();
    [[nodiscard]] QString selectedFont() const;
    // The edit menu.
    void mnuUndo_Click();
    void mnuCut_Click();
    void mnuCopy_Click();
    void mnuPaste_Click();
    void mnuDelete_Click();
    void mnuSelectAll_Click();

    void showBusy(bool busy) override;
    [[nodiscard]] bool isShown() const override { return isVisible(); }
    void open() override;
    void close() override { hide(); }
    void setCaption(const QString& text) override;
    void offer(EntrySave which, const QString& toolTip) override;
    void setUnchanged() override;
    [[nodiscard]] QString gameId() const override;
    void setGameId(const QString& text) override;
    void focusGameId() override;
    [[nodiscard]] QString gameName() const override;
    void setGameName(const QString& text) override;
    [[nodiscard]] RichText notes() const override;
    void fillNotes(const QString& rtf) override;
    void replaceNotes(const RichText& notes) override;
    void blackenNotes() override;
    void unlockNotes() override;
    void focusNotes() override;
    void readFont() override;
    [[nodiscard]] QString imageLabel() const override;
    void setImageLabel(const QString& text) override;
    bool showPicture(const QByteArray& bytes) override;
    void showBlankPicture() override;
    void showPngFile(const QString& path) override;
    [[nodiscard]] QByteArray pictureAsBitmap() const override;
    void setFileLabel(const QString& title, const QString& path) override;
    void setSaveLabel(const QString& title, const QString& path) override;

Q_SIGNALS:
    void mnuRTXTWanted(const QPoint& globalPosition);
    void mnuFormatWanted(const QPoint& globalPosition); ///< cmd_Tools(5)
    void pictureClicked();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// A tool's length: the bar that sets it and the label that shows it.
    struct Length
    {
        QScrollBar* bar;
        QLabel* label;
    };

    void buildCaption();
    void buildEntry();
    void buildPanels();
    void buildTools();
    void buildLengths();
    void buildFiles();
    ButtonEx* addButton(const QString& name, QWidget& parent, const QString& caption, const QString& toolTip);
    ElidedLabel* addLabel(const char* name, QWidget& parent, const QString& description);
    Length addLength(const char* bar, const char* label, int index, const QString& accessibleName, int twips);
    void layOut();
    void stackPanels();
    void ReDraw_PicFrame();
    void showColor(quint32 stored); ///< in shapeColor
    void editNotes(const std::function<void(QTextCursor&)>& change);

    Services m_services;
    EntryEditor* m_editor = nullptr;
    EditorPanels m_panels;
    bool m_isLaidOut = false;
    quint32 m_color = 0; ///< shapeColor, as stored
    struct Kept
    {
        QString id;
        QString name;
        QString image;
        qint64 picture = 0;
    };
    [[nodiscard]] Kept current() const;
    Kept m_kept;

    ElidedLabel* m_caption = nullptr;
    ButtonEx* m_winState = nullptr;
    GameIdBox* m_id = nullptr;
    QLineEdit* m_name = nullptr;
    EditorNotes* m_notes = nullptr;
    CoverBox* m_picture = nullptr;
    ElidedLabel* m_image = nullptr;
    ButtonEx* m_browse = nullptr;
    ButtonEx* m_add = nullptr;
    ButtonEx* m_update = nullptr;
    PictureBox* m_picBack = nullptr;
    std::array<QWidget*, EditorPanels::count> m_frames{};
    std::array<ButtonEx*, EditorPanels::count> m_headers{};
    std::array<ButtonEx*, 15> m_tools{};
    std::array<Length, 3> m_indents{}; ///< vsIndent, lblIndent: bullet, indent, hanging indent
    std::array<Length, 2> m_margins{}; ///< vsMargin, lblMargin: right indent, right margin
    ElidedLabel* m_font = nullptr;
    QFrame* m_swatch = nullptr; ///< shapeColor
    ButtonEx* m_open = nullptr;
    ButtonEx* m_save = nullptr;
    ElidedLabel* m_file = nullptr;
    ElidedLabel* m_saved = nullptr;
};

} // namespace varnhold
