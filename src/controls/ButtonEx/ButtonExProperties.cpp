#include "controls/ButtonEx/ButtonEx.h"

#include "controls/ButtonEx/ButtonExMetrics.h"
#include "controls/ButtonEx/TransparentCopy.h"
#include "controls/MousePointer.h"

#include <QAccessible>

namespace varnhold {

using namespace buttonstate;

void ButtonEx::setAllowDefault(bool value)
{
    m_allowDefault = value;
    m_state.redrawState();
}

void ButtonEx::setAllowFocus(bool allow)
{
    m_allowFocus = allow;
    setFocusPolicy(allow ? Qt::StrongFocus : Qt::NoFocus);
    m_state.redrawState();
}

void ButtonEx::setAppearance(int appearance)
{
    m_state.setAppearance(appearance);
}

void ButtonEx::setBackColor(quint32 value)
{
    m_backColor = value;
    m_state.redrawState();
}

void ButtonEx::setBorderStyle(int value)
{
    m_borderStyle = value;
    m_state.redrawState();
}

void ButtonEx::setCaption(const QString& caption)
{
    m_caption = caption;
    if (m_mnemonic != 0)
        releaseShortcut(m_mnemonic);
    m_mnemonic = 0;
    const QKeySequence mnemonic =
        captionMnemonic(caption) >= 0 ? QKeySequence::mnemonic(caption) : QKeySequence();
    if (!mnemonic.isEmpty())
        m_mnemonic = grabShortcut(mnemonic);
    updateGeometry();
    m_state.redrawState();
    tellAssistiveTools(QAccessible::NameChanged);
}

void ButtonEx::setCaptionOffsetX(int value)
{
    m_captionOffset.rx() = value;
    m_state.redrawState();
}

void ButtonEx::setCaptionOffsetY(int value)
{
    m_captionOffset.ry() = value;
    m_state.redrawState();
}

void ButtonEx::setForeColor(quint32 value)
{
    m_foreColor = value;
    m_state.redrawState();
}

void ButtonEx::setHighlightColor(quint32 value)
{
    m_highlightColor = value;
    m_state.redrawState();
}

void ButtonEx::setHighlightPicture(bool value)
{
    m_highlightPicture = value;
    m_state.redrawState();
}

void ButtonEx::setMouseIcon(const QPixmap& icon)
{
    m_mouseIcon = icon;
    applyMousePointer(*this, m_mousePointer, m_mouseIcon);
}

void ButtonEx::setMousePointer(int pointer)
{
    m_mousePointer = pointer;
    applyMousePointer(*this, m_mousePointer, m_mouseIcon);
}

void ButtonEx::setOLEDropMode(int mode)
{
    m_oleDropMode = mode;
    setAcceptDrops(mode != 0);
}

void ButtonEx::setPicture(const QPixmap& picture)
{
    setGlyph(up, picture);
}

void ButtonEx::setPictureDisabled(const QPixmap& picture)
{
    setGlyph(disabled, picture);
}

void ButtonEx::setPictureDown(const QPixmap& picture)
{
    setGlyph(pressed, picture);
}

void ButtonEx::setPictureFocus(const QPixmap& picture)
{
    setGlyph(focused, picture);
}

void ButtonEx::setPictureOver(const QPixmap& picture)
{
    setGlyph(over, picture);
}

void ButtonEx::setPictureOffsetX(int value)
{
    m_pictureOffset.rx() = value;
    m_state.redrawState();
}

void ButtonEx::setPictureOffsetY(int value)
{
    m_pictureOffset.ry() = value;
    m_state.redrawState();
}

void ButtonEx::setRightToLeft(bool value)
{
    m_rightToLeft = value;
    m_state.redrawState();
}

void ButtonEx::setSkinUp(const QPixmap& face)
{
    setSkin(up, face);
}

void ButtonEx::setSkinOver(const QPixmap& face)
{
    setSkin(over, face);
}

void ButtonEx::setSkinFocus(const QPixmap& face)
{
    setSkin(focused, face);
}

void ButtonEx::setSkinDown(const QPixmap& face)
{
    setSkin(pressed, face);
}

void ButtonEx::setSkinDisabled(const QPixmap& face)
{
    setSkin(disabled, face);
}

void ButtonEx::setStyle(int style)
{
    m_state.setStyle(style);
}

void ButtonEx::setTransparentColor(quint32 color)
{
    m_transparentColor = color;
    m_faceKey = 0;
    m_state.redrawState();
}

void ButtonEx::setValue(int value)
{
    m_state.setValue(value);
}

void ButtonEx::setWhatsThisHelpID(int id)
{
    m_whatsThisHelpId = id;
}

void ButtonEx::setDefault(bool on)
{
    m_default = on;
    watchWindow();
    m_state.redrawState();
}

void ButtonEx::setCancel(bool on)
{
    m_cancel = on;
    watchWindow();
}

void ButtonEx::setSkin(int state, const QPixmap& face)
{
    m_skins.at(static_cast<std::size_t>(state)) = face;
    m_state.setFaceSet(state, !face.isNull());
    m_state.redrawState();
}

void ButtonEx::setGlyph(int state, const QPixmap& picture)
{
    m_glyphs.at(static_cast<std::size_t>(state)) = picture;
    m_cutGlyphs.at(static_cast<std::size_t>(state)) = cutColor(picture.toImage(), colorOfPicture);
    m_state.redrawState();
}

} // namespace varnhold
