#pragma once

#include "platform/richtext/RichText.h"

#include <QByteArray>
#include <QString>

namespace varnhold {

/// Which of the editor's two saving buttons shows.
enum class EntrySave {
    New,  ///< CmdAdd
    Over, ///< cmdUpdate
};

/// The editor's window, frmDB.
class EntryEditorView
{
public:
    virtual ~EntryEditorView() = default;

    virtual void showBusy(bool busy) = 0;
    [[nodiscard]] virtual bool isShown() const = 0;
    virtual void open() = 0;  ///< shown beside the main window, in front
    virtual void close() = 0; ///< hidden
    virtual void setCaption(const QString& text) = 0;
    virtual void offer(EntrySave which, const QString& toolTip) = 0;
    /// What stands in the window now is what was filled in: it may be left without a loss.
    virtual void setUnchanged() = 0;

    [[nodiscard]] virtual QString gameId() const = 0; ///< txtGameID
    virtual void setGameId(const QString& text) = 0;
    virtual void focusGameId() = 0;
    [[nodiscard]] virtual QString gameName() const = 0; ///< txtGameName
    virtual void setGameName(const QString& text) = 0;

    [[nodiscard]] virtual RichText notes() const = 0;
    /// Over notes that were typed and not saved it is one step that Undo takes back.
    virtual void fillNotes(const QString& rtf) = 0;
    virtual void replaceNotes(const RichText& notes) = 0; ///< always one that Undo takes back
    virtual void blackenNotes() = 0; ///< all of the text, as one step of undo; the selection ends
    virtual void unlockNotes() = 0;
    virtual void focusNotes() = 0;
    virtual void readFont() = 0; ///< lblFont and shapeColor, from the notes

    [[nodiscard]] virtual QString imageLabel() const = 0; ///< lblImage
    virtual void setImageLabel(const QString& text) = 0;
    virtual bool showPicture(const QByteArray& bytes) = 0; ///< false, and nothing changed: it is none
    virtual void showBlankPicture() = 0;                   ///< imgBlank
    /// Onto white; a file that is no picture leaves what shows.
    virtual void showPngFile(const QString& path) = 0;
    /// What shows, as a bitmap file; empty while nothing does.
    [[nodiscard]] virtual QByteArray pictureAsBitmap() const = 0;

    virtual void setFileLabel(const QString& title, const QString& path) = 0; ///< lblFile and its tag
    virtual void setSaveLabel(const QString& title, const QString& path) = 0; ///< lblSave and its tag
};

/// The main window, as far as entries are added, edited and deleted from it.
class EntryHost
{
public:
    virtual ~EntryHost() = default;

    virtual void showBusy(bool busy) = 0;
    [[nodiscard]] virtual QString gameIdText() const = 0; ///< txtGameID
    [[nodiscard]] virtual QString info() const = 0;       ///< lblInfo
    [[nodiscard]] virtual QString notes() const = 0;      ///< rich text
    /// PicPreview in the picture's own size, as a bitmap file; empty while nothing shows.
    [[nodiscard]] virtual QByteArray pictureAsBitmap() const = 0;
    /// Notes and picture are those of the entry loaded last: nothing has taken one of them since.
    [[nodiscard]] virtual bool showsLoadedEntry() const = 0;
    virtual void loadEntry() = 0; ///< loadGameDetails
    virtual void clearPreview() = 0;

    [[nodiscard]] virtual int gameCount() const = 0;
    [[nodiscard]] virtual int selectedRow() const = 0;          ///< MorphListBox1.ListIndex
    [[nodiscard]] virtual QString selectedGameText() const = 0; ///< MorphListBox1.Text
    virtual void addGame(const QString& gameId) = 0;            ///< MorphListBox1.AddItem
    virtual void addTitle(const QString& title) = 0;            ///< List1.AddItem
    virtual void removeRow(int row) = 0;                        ///< of both; where one lacks it, of the other
    virtual void deselect() = 0;                                ///< both
};

} // namespace varnhold
