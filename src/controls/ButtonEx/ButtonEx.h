#pragma once

#include "controls/ButtonEx/ButtonExState.h"
#include "controls/PressedKeys.h"
#include "controls/SystemColors.h"

#include <QAccessible>
#include <QBasicTimer>
#include <QImage>
#include <QPixmap>
#include <QPointer>
#include <QWidget>

#include <array>

class QMimeData;

namespace varnhold {

/// The button of every window: a bevelled face, or five pictures for its five visual states. Focus, keys,
/// mnemonics and assistive tools work as on any push button; Click comes after MouseUp.
///
/// A button with faces is as large as its face, whatever size its window gave it, and has its outline.
/// Every event may destroy the button.
class ButtonEx : public QWidget, private ButtonExState::Host
{
    Q_OBJECT
    Q_PROPERTY(bool AllowDefault READ AllowDefault WRITE setAllowDefault)
    Q_PROPERTY(bool AllowFocus READ AllowFocus WRITE setAllowFocus)
    Q_PROPERTY(int Appearance READ Appearance WRITE setAppearance)
    Q_PROPERTY(quint32 BackColor READ BackColor WRITE setBackColor)
    Q_PROPERTY(int BorderStyle READ BorderStyle WRITE setBorderStyle)
    Q_PROPERTY(QString Caption READ Caption WRITE setCaption)
    Q_PROPERTY(int CaptionOffsetX READ CaptionOffsetX WRITE setCaptionOffsetX)
    Q_PROPERTY(int CaptionOffsetY READ CaptionOffsetY WRITE setCaptionOffsetY)
    Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled)
    Q_PROPERTY(quint32 ForeColor READ ForeColor WRITE setForeColor)
    Q_PROPERTY(QFont Font READ font WRITE setFont)
    Q_PROPERTY(quint32 HighlightColor READ HighlightColor WRITE setHighlightColor)
    Q_PROPERTY(bool HighlightPicture READ HighlightPicture WRITE setHighlightPicture)
    Q_PROPERTY(QPixmap MouseIcon READ MouseIcon WRITE setMouseIcon)
    Q_PROPERTY(int MousePointer READ MousePointer WRITE setMousePointer)
    Q_PROPERTY(int OLEDropMode READ OLEDropMode WRITE setOLEDropMode)
    Q_PROPERTY(QPixmap Picture READ Picture WRITE setPicture)
    Q_PROPERTY(QPixmap PictureDisabled READ PictureDisabled WRITE setPictureDisabled)
    Q_PROPERTY(QPixmap PictureDown READ PictureDown WRITE setPictureDown)
    Q_PROPERTY(QPixmap PictureFocus READ PictureFocus WRITE setPictureFocus)
    Q_PROPERTY(QPixmap PictureOver READ PictureOver WRITE setPictureOver)
    Q_PROPERTY(int PictureOffsetX READ PictureOffsetX WRITE setPictureOffsetX)
    Q_PROPERTY(int PictureOffsetY READ PictureOffsetY WRITE setPictureOffsetY)
    Q_PROPERTY(bool RightToLeft READ RightToLeft WRITE setRightToLeft)
    Q_PROPERTY(QPixmap SkinUp READ SkinUp WRITE setSkinUp)
    Q_PROPERTY(QPixmap SkinOver READ SkinOver WRITE setSkinOver)
    Q_PROPERTY(QPixmap SkinFocus READ SkinFocus WRITE setSkinFocus)
    Q_PROPERTY(QPixmap SkinDown READ SkinDown WRITE setSkinDown)
    Q_PROPERTY(QPixmap SkinDisabled READ SkinDisabled WRITE setSkinDisabled)
    Q_PROPERTY(int Style READ Style WRITE setStyle)
    Q_PROPERTY(QString ToolTipText READ toolTip WRITE setToolTip)
    Q_PROPERTY(quint32 TransparentColor READ TransparentColor WRITE setTransparentColor)
    Q_PROPERTY(int Value READ Value WRITE setValue)
    Q_PROPERTY(int WhatsThisHelpID READ WhatsThisHelpID WRITE setWhatsThisHelpID)
    Q_PROPERTY(bool Default READ Default WRITE setDefault)
    Q_PROPERTY(bool Cancel READ Cancel WRITE setCancel)

public:
    explicit ButtonEx(QWidget* parent = nullptr);
    ~ButtonEx() override;

    [[nodiscard]] bool AllowDefault() const { return m_allowDefault; }
    [[nodiscard]] bool AllowFocus() const { return m_allowFocus; }
    [[nodiscard]] int Appearance() const { return m_state.Appearance(); }
    [[nodiscard]] quint32 BackColor() const { return m_backColor; }
    [[nodiscard]] int BorderStyle() const { return m_borderStyle; }
    [[nodiscard]] QString Caption() const { return m_caption; }
    [[nodiscard]] int CaptionOffsetX() const { return m_captionOffset.x(); }
    [[nodiscard]] int CaptionOffsetY() const { return m_captionOffset.y(); }
    [[nodiscard]] quint32 ForeColor() const { return m_foreColor; }
    [[nodiscard]] quint32 HighlightColor() const { return m_highlightColor; }
    [[nodiscard]] bool HighlightPicture() const { return m_highlightPicture; }
    [[nodiscard]] QPixmap MouseIcon() const { return m_mouseIcon; }
    [[nodiscard]] int MousePointer() const { return m_mousePointer; }
    [[nodiscard]] int OLEDropMode() const { return m_oleDropMode; }
    [[nodiscard]] QPixmap Picture() const { return glyph(buttonstate::up); }
    [[nodiscard]] QPixmap PictureDisabled() const { return glyph(buttonstate::disabled); }
    [[nodiscard]] QPixmap PictureDown() const { return glyph(buttonstate::pressed); }
    [[nodiscard]] QPixmap PictureFocus() const { return glyph(buttonstate::focused); }
    [[nodiscard]] QPixmap PictureOver() const { return glyph(buttonstate::over); }
    [[nodiscard]] int PictureOffsetX() const { return m_pictureOffset.x(); }
    [[nodiscard]] int PictureOffsetY() const { return m_pictureOffset.y(); }
    [[nodiscard]] bool RightToLeft() const { return m_rightToLeft; }
    [[nodiscard]] QPixmap SkinUp() const { return skin(buttonstate::up); }
    [[nodiscard]] QPixmap SkinOver() const { return skin(buttonstate::over); }
    [[nodiscard]] QPixmap SkinFocus() const { return skin(buttonstate::focused); }
    [[nodiscard]] QPixmap SkinDown() const { return skin(buttonstate::pressed); }
    [[nodiscard]] QPixmap SkinDisabled() const { return skin(buttonstate::disabled); }
    [[nodiscard]] int Style() const { return m_state.Style(); }
    [[nodiscard]] quint32 TransparentColor() const { return m_transparentColor; }
    [[nodiscard]] int Value() const { return m_state.Value(); }
    [[nodiscard]] int WhatsThisHelpID() const { return m_whatsThisHelpId; }
    [[nodiscard]] bool Default() const { return m_default; }
    [[nodiscard]] bool Cancel() const { return m_cancel; }

    /// A focused button may show the default frame.
    void setAllowDefault(bool allow);
    void setAllowFocus(bool allow);
    /// 2 selects the drawing with faces; any other number the bevel.
    void setAppearance(int appearance);
    void setBackColor(quint32 color);
    /// 0 none, 1 normal, 2 etched, 3 and 4 thin; 4 has a grey caption too.
    void setBorderStyle(int style);
    /// The letter after the first "&" is the mnemonic.
    void setCaption(const QString& caption);
    void setCaptionOffsetX(int pixels);
    void setCaptionOffsetY(int pixels);
    void setForeColor(quint32 color);
    /// Caption colour while pressed or under the mouse.
    void setHighlightColor(quint32 color);
    void setHighlightPicture(bool highlight);
    void setMouseIcon(const QPixmap& icon);
    /// Pointer numbers 0 to 15, or 99 for MouseIcon; an unknown number is the default pointer.
    void setMousePointer(int pointer);
    /// 0 takes no drops, any other number raises the OLE drag events.
    void setOLEDropMode(int mode);
    void setPicture(const QPixmap& picture);
    void setPictureDisabled(const QPixmap& picture);
    void setPictureDown(const QPixmap& picture);
    void setPictureFocus(const QPixmap& picture);
    void setPictureOver(const QPixmap& picture);
    void setPictureOffsetX(int pixels);
    void setPictureOffsetY(int pixels);
    void setRightToLeft(bool rightToLeft);
    /// Faces; a null picture unsets one. A face's pixels are logical pixels, whatever its file says.
    void setSkinUp(const QPixmap& face);
    void setSkinOver(const QPixmap& face);
    void setSkinFocus(const QPixmap& face);
    void setSkinDown(const QPixmap& face);
    void setSkinDisabled(const QPixmap& face);
    /// 0 push button, 1 toggle button; anything else is 0.
    void setStyle(int style);
    /// Colour of the faces and glyphs that shows through.
    void setTransparentColor(quint32 color);
    /// Toggle button: 0 latched down, anything else up. Raises no event.
    void setValue(int value);
    void setWhatsThisHelpID(int id);
    /// The button that Enter (Default) or Escape (Cancel) clicks when nothing else on its window takes the
    /// key.
    void setDefault(bool on);
    void setCancel(bool on);

    /// Redraws the present state.
    void ClearHighlight();
    /// Draws the focus rectangle over what is shown now; the next redraw of a state takes it away.
    void DrawHighlight();
    void Refresh();
    /// Starts a drag with what a handler of OLEStartDrag puts in; returns when it is over.
    void OLEDrag();
    /// Clicks as the user would: raises Click. Nothing while disabled.
    void click();

    /// The visual state (0 to 4) by which the control is drawn.
    [[nodiscard]] int state() const { return m_state.state(); }
    /// The caption without its mnemonic mark; the tool tip when the caption is empty or a lone symbol.
    [[nodiscard]] QString accessibleText() const;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void Click();
    /// key is a Qt::Key; shift adds 1 for shift, 2 for control, 4 for alt.
    void KeyDown(int key, int shift);
    /// The character of the key as a Unicode code point.
    void KeyPress(int keyAscii);
    void KeyUp(int key, int shift);
    /// button: 1 left, 2 right, 4 middle. x and y in twips of the control, unlike those of the other two.
    void MouseDown(int button, int shift, double x, double y);
    /// button: the sum of the buttons held. x and y in logical pixels.
    void MouseMove(int button, int shift, double x, double y);
    void MouseUp(int button, int shift, double x, double y);
    void MouseEnter();
    void MouseExit();
    /// Fill data; allowedEffects adds 1 for copy, 2 for move (starts as 1).
    void OLEStartDrag(QMimeData* data, int* allowedEffects);
    void OLEGiveFeedback(int effect);
    /// effect: 0 refuses, 1 copies, 2 moves; starts as 1. state: 0 enter, 1 leave, 2 over.
    void OLEDragOver(const QMimeData* data, int* effect, int button, int shift, double x, double y,
                     int state);
    void OLEDragDrop(const QMimeData* data, int* effect, int button, int shift, double x, double y);
    void OLECompleteDrag(int effect);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    bool raiseEvent(ButtonExEvent event, const ButtonExArguments& arguments) override;
    void redraw() override;
    void startTimer1() override;
    void stopTimer1() override;

    [[nodiscard]] QPixmap skin(int state) const { return m_skins.at(static_cast<std::size_t>(state)); }
    [[nodiscard]] QPixmap glyph(int state) const { return m_glyphs.at(static_cast<std::size_t>(state)); }
    void setSkin(int state, const QPixmap& face);
    void setGlyph(int state, const QPixmap& picture);
    void applyFace();
    void watchWindow();
    void tellAssistiveTools(QAccessible::Event change);
    void finishClick();
    void showDrag(QDropEvent* event, int state);
    void drawOn(QPainter& painter) const;

    ButtonExState m_state;
    std::array<QPixmap, buttonstate::count> m_skins;
    std::array<QPixmap, buttonstate::count> m_glyphs;
    std::array<QImage, buttonstate::count> m_cutGlyphs;
    QImage m_face;        ///< the face shown, its transparent colour cut out
    qint64 m_faceKey = 0; ///< cache key of the picture that m_face was made from
    QPixmap m_mouseIcon;
    QString m_caption;
    QBasicTimer m_timer1;
    QPoint m_captionOffset;
    QPoint m_pictureOffset;
    QPointer<QWidget> m_watchedWindow;
    quint32 m_backColor = systemcolors::buttonFace;
    quint32 m_foreColor = systemcolors::buttonText;
    quint32 m_highlightColor = systemcolors::buttonText;
    quint32 m_transparentColor = 0xFF0000; ///< pure blue
    int m_borderStyle = 1;
    int m_toldValue = 1; ///< what assistive tools know
    int m_mousePointer = 0;
    int m_oleDropMode = 0;
    int m_whatsThisHelpId = 0;
    int m_mnemonic = 0; ///< shortcut id
    bool m_allowDefault = true;
    bool m_allowFocus = true;
    bool m_highlightPicture = false;
    bool m_rightToLeft = false;
    bool m_default = false;
    bool m_cancel = false;
    bool m_highlightDrawn = false;
    bool m_keyboardFocus = false; ///< focus that came by a key shows
    bool m_pointerLeft = false;
    bool m_buttonDown = false;
    PressedKeys m_keys;
    bool m_keyDown = false;
};

} // namespace varnhold
