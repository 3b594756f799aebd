#include "gamedb/frmDB.h"

#include "controls/ButtonEx/ButtonEx.h"
#include "covers/BitmapFile.h"
#include "covers/CoverBox.h"
#include "covers/LoadPicture.h"
#include "gamedb/EditorNotes.h"
#include "gamedb/EntryEditor.h"
#include "lookup/GameIdBox.h"
#include "platform/ElidedLabel.h"
#include "platform/PictureBox.h"
#include "platform/ToolTipText.h"
#include "platform/pictures/PictureReader.h"
#include "platform/richtext/RichTextTools.h"
#include "platform/richtext/RtfReader.h"

#include <QCloseEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolTip>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr const char* tag = "Tag"; ///< what a label shows as its tool tip: a full path

} // namespace

frmDB::~frmDB() = default;

void frmDB::open()
{
    if (!isVisible())
        m_services.place();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

frmDB::Kept frmDB::current() const
{
    return {m_id->text(), m_name->text(), m_image->text(), m_picture->picture().cacheKey()};
}

void frmDB::setUnchanged()
{
    m_kept = current();
    m_notes->document()->setModified(false);
}

bool frmDB::isUnchanged() const
{
    const Kept now = current();
    return now.id == m_kept.id && now.name == m_kept.name && now.image == m_kept.image &&
           now.picture == m_kept.picture && !m_notes->document()->isModified();
}

void frmDB::showBusy(bool busy)
{
    if (busy)
        setCursor(Qt::WaitCursor);
    else
        unsetCursor();
}

void frmDB::setCaption(const QString& text)
{
    m_caption->setText(text);
    setWindowTitle(text);
}

void frmDB::offer(EntrySave which, const QString& toolTip)
{
    ButtonEx& shown = which == EntrySave::New ? *m_add : *m_update;
    ButtonEx& other = which == EntrySave::New ? *m_update : *m_add;
    shown.setToolTip(toolTipText(toolTip));
    shown.setAccessibleDescription(toolTip);
    shown.show();
    other.hide();
}

QString frmDB::gameId() const
{
    return m_id->text();
}

void frmDB::setGameId(const QString& text)
{
    m_id->setText(text);
}

void frmDB::focusGameId()
{
    m_id->setFocus();
}

QString frmDB::gameName() const
{
    return m_name->text();
}

void frmDB::setGameName(const QString& text)
{
    m_name->setText(text);
    m_name->setCursorPosition(0);
}

RichText frmDB::notes() const
{
    return m_notes->contents();
}

void frmDB::fillNotes(const QString& rtf)
{
    if (m_notes->document()->isModified())
        m_notes->replaceContents(readRtf(rtf.toUtf8()));
    else
        m_notes->setTextRTF(rtf);
    readFont();
}

void frmDB::replaceNotes(const RichText& notes)
{
    m_notes->replaceContents(notes);
    m_notes->document()->setModified(true);
    readFont();
}

void frmDB::blackenNotes()
{
    QTextCursor all(m_notes->document());
    all.select(QTextCursor::Document);
    setColor(all, 0);
    all.movePosition(QTextCursor::Start);
    m_notes->setTextCursor(all);
}

void frmDB::unlockNotes()
{
    m_notes->setLocked(false);
}

void frmDB::focusNotes()
{
    m_notes->setFocus();
}

QString frmDB::imageLabel() const
{
    return m_image->text();
}

void frmDB::setImageLabel(const QString& text)
{
    m_image->setText(text);
}

bool frmDB::showPicture(const QByteArray& bytes)
{
    return m_picture->setPictureFrom([bytes](const QSize& most) { return readPicture(bytes, most); });
}

void frmDB::showBlankPicture()
{
    m_picture->setPicture(m_services.blankPicture());
}

void frmDB::showPngFile(const QString& path)
{
    loadPictureFile(path, *m_picture);
}

QByteArray frmDB::pictureAsBitmap() const
{
    return bitmapFile(m_picture->wholePicture().toImage());
}

void frmDB::setFileLabel(const QString& title, const QString& path)
{
    m_file->setText(title);
    m_file->setProperty(tag, path);
}

void frmDB::setSaveLabel(const QString& title, const QString& path)
{
    m_saved->setText(title);
    m_saved->setProperty(tag, path);
}

void frmDB::mnuUndo_Click()
{
    m_notes->undo();
}

void frmDB::mnuCut_Click()
{
    m_notes->cut();
}

void frmDB::mnuCopy_Click()
{
    m_notes->copy();
}

void frmDB::mnuPaste_Click()
{
    m_notes->paste();
}

void frmDB::mnuDelete_Click()
{
    m_notes->edit([](QTextCursor& selection) { selection.removeSelectedText(); });
}

void frmDB::mnuSelectAll_Click()
{
    m_notes->setFocus();
    m_notes->selectAll();
}

void frmDB::showEvent(QShowEvent* event)
{
    if (!m_isLaidOut)
        layOut();
    ShapedWindow::showEvent(event);
}

void frmDB::hideEvent(QHideEvent* event)
{
    if (!event->spontaneous() && m_editor != nullptr)
        m_editor->leave();
    ShapedWindow::hideEvent(event);
}

void frmDB::closeEvent(QCloseEvent* event)
{
    event->ignore();
    hide();
}

void frmDB::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && isUnchanged())
        hide();
    else
        ShapedWindow::keyPressEvent(event);
}

bool frmDB::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate)
        ReDraw_PicFrame();
    return ShapedWindow::event(event);
}

bool frmDB::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ToolTip && (watched == m_file || watched == m_saved)) {
        const QString path = watched->property(tag).toString();
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), toolTipText(path),
                           static_cast<QWidget*>(watched));
        return true;
    }
    if (watched == m_browse && event->type() == QEvent::ContextMenu) {
        // With the mouse the button's own event comes, when it is let go.
        if (static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard)
            m_editor->CmdBrowse_RightClick();
        return true;
    }
    return ShapedWindow::eventFilter(watched, event);
}

} // namespace varnhold
