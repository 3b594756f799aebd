#pragma once

#include "controls/MorphListBox/MorphListDesign.h"
#include "controls/MorphListBox/MorphListModel.h"
#include "controls/MorphListBox/MorphListPainter.h"
#include "controls/PressedKeys.h"

#include <QBasicTimer>
#include <QPixmap>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace varnhold {

/// A list box that is painted whole by itself, with a scroll bar of its own. Coordinates are logical pixels
/// of the widget. While `Enabled` is false the methods do nothing and `ListIndex`, `TopIndex` and `Selected`
/// keep their values; texts, item data, image indexes and the look can still be set.
///
/// `Sorted` is true by default: a list that runs parallel to another one must set it to false.
class MorphListBox : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int Theme READ Theme WRITE setTheme)
    Q_PROPERTY(int Style READ Style WRITE setStyle)
    Q_PROPERTY(int CheckStyle READ CheckStyle WRITE setCheckStyle)
    Q_PROPERTY(int MultiSelect READ MultiSelect WRITE setMultiSelect)
    Q_PROPERTY(bool Sorted READ Sorted WRITE setSorted)
    Q_PROPERTY(bool SortAsNumeric READ SortAsNumeric WRITE setSortAsNumeric)
    Q_PROPERTY(bool ShowItemImages READ ShowItemImages WRITE setShowItemImages)
    Q_PROPERTY(int ItemImageSize READ ItemImageSize WRITE setItemImageSize)
    Q_PROPERTY(bool ShowSelectRect READ ShowSelectRect WRITE setShowSelectRect)
    Q_PROPERTY(int DblClickBehavior READ DblClickBehavior WRITE setDblClickBehavior)
    Q_PROPERTY(bool DragEnabled READ DragEnabled WRITE setDragEnabled)
    Q_PROPERTY(bool Enabled READ Enabled WRITE setEnabled)
    Q_PROPERTY(bool RedrawFlag READ RedrawFlag WRITE setRedrawFlag)
    Q_PROPERTY(bool RightToLeft READ RightToLeft WRITE setRightToLeft)
    Q_PROPERTY(bool ReadableText READ ReadableText WRITE setReadableText)
    Q_PROPERTY(int NewIndex READ NewIndex WRITE setNewIndex)
    Q_PROPERTY(int TopIndex READ TopIndex WRITE setTopIndex)
    Q_PROPERTY(int ListIndex READ ListIndex WRITE setListIndex)
    Q_PROPERTY(int ListCount READ ListCount)
    Q_PROPERTY(int SelCount READ SelCount)
    Q_PROPERTY(QString Text READ Text)
    Q_PROPERTY(qulonglong hwnd READ hwnd)
    Q_PROPERTY(int ScaleHeight READ ScaleHeight)
    Q_PROPERTY(int ScaleWidth READ ScaleWidth)
    Q_PROPERTY(int ScaleMode READ ScaleMode)
    Q_PROPERTY(float BackAngle READ BackAngle WRITE setBackAngle)
    Q_PROPERTY(bool BackMiddleOut READ BackMiddleOut WRITE setBackMiddleOut)
    Q_PROPERTY(bool BorderMiddleOut READ BorderMiddleOut WRITE setBorderMiddleOut)
    Q_PROPERTY(bool CircularGradient READ CircularGradient WRITE setCircularGradient)
    Q_PROPERTY(int BorderWidth READ BorderWidth WRITE setBorderWidth)
    Q_PROPERTY(int CurveTopLeft READ CurveTopLeft WRITE setCurveTopLeft)
    Q_PROPERTY(int CurveTopRight READ CurveTopRight WRITE setCurveTopRight)
    Q_PROPERTY(int CurveBottomLeft READ CurveBottomLeft WRITE setCurveBottomLeft)
    Q_PROPERTY(int CurveBottomRight READ CurveBottomRight WRITE setCurveBottomRight)
    Q_PROPERTY(QPixmap Picture READ Picture WRITE setPicture)
    Q_PROPERTY(int PictureMode READ PictureMode WRITE setPictureMode)
    Q_PROPERTY(QPixmap DisPicture READ DisPicture WRITE setDisPicture)
    Q_PROPERTY(int DisPictureMode READ DisPictureMode WRITE setDisPictureMode)
// The colours: a property each, under the name in the design.
#define VARNHOLD_MORPH_PROPERTY(name, value) Q_PROPERTY(quint32 name READ name WRITE set##name)
    VARNHOLD_MORPH_COLORS(VARNHOLD_MORPH_PROPERTY)
#undef VARNHOLD_MORPH_PROPERTY

public:
    explicit MorphListBox(QWidget* parent = nullptr);
    ~MorphListBox() override;

#define VARNHOLD_MORPH_ACCESS(name, value)                                                                   \
    [[nodiscard]] quint32 name() const                                                                       \
    {                                                                                                        \
        return m_look.design.name;                                                                           \
    }                                                                                                        \
    void set##name(quint32 color)                                                                            \
    {                                                                                                        \
        changeDesign(&MorphListDesign::name, color);                                                         \
    }
    VARNHOLD_MORPH_COLORS(VARNHOLD_MORPH_ACCESS)
#undef VARNHOLD_MORPH_ACCESS

    /// Appends, or sorts the text in when `Sorted`, or opens a slot at `index` (0 to ListCount; another one
    /// is ignored with the whole call). `NewIndex` is the slot.
    void AddItem(QString text, std::optional<int> index = {}) // inline: a bulk fill is made of nothing else
    {
        m_model->AddItem(std::move(text), index);
        if (m_redraw)
            repaintDirty();
    }
    void RemoveItem(int index); ///< an index out of range is ignored
    void Clear();               ///< all items; the images stay
    /// Clears the selection (the checks of a check list) when a row is selected, else selects every row; in
    /// a single-select list it only clears.
    void ClearOrSelect();
    /// Appends to the images that `ImageIndex` counts; an empty picture takes its place too and shows as
    /// nothing.
    void AddImage(const QPixmap& picture);
    /// Sorts by text, or by number with `SortAsNumeric`; the selection is reset, the first row is shown.
    void Sort(bool descending);
    void ReverseStringArray(); ///< turns the order of the items round
    /// The first item that equals the text as a whole; -1 when none does.
    [[nodiscard]] int FindIndex(const QString& text, bool matchCase = false) const;
    /// Makes the item the first visible row, or shows the last page when the list ends before.
    void DisplayFrom(int index);
    [[nodiscard]] int MouseOverIndex(int y) const; ///< the item shown at that height, -1 when none is
    /// Whether rows, or the room below them, lie there, and not a part of the scroll bar.
    [[nodiscard]] bool isRowsZone(const QPoint& position) const;
    void Refresh(); ///< rebuilds the background and repaints

    // Fields of an item. Out of range: an empty text, 0, false, -1; writing is ignored.
    [[nodiscard]] QString List(int index) const;
    void setList(int index, const QString& text);
    [[nodiscard]] qint32 ItemData(int index) const;
    void setItemData(int index, qint32 value);
    [[nodiscard]] bool Selected(int index) const;
    void setSelected(int index, bool selected);
    [[nodiscard]] int ImageIndex(int index) const;
    void setImageIndex(int index, int image);

    /// Theme 0 to 9 sets the whole look and `CheckStyle`, `MultiSelect`, `ShowSelectRect` and `Style`;
    /// another number is kept and changes nothing.
    [[nodiscard]] int Theme() const
    {
        return m_theme;
    }
    void setTheme(int theme);
    [[nodiscard]] int Style() const; ///< 0 plain list, 1 check-box list
    void setStyle(int style);
    [[nodiscard]] int CheckStyle() const
    {
        return m_look.CheckStyle;
    } ///< 0 cross, 1 check mark, 2 filled square
    void setCheckStyle(int style);
    [[nodiscard]] int MultiSelect() const; ///< 0 single, 1 simple, 2 extended
    void setMultiSelect(int mode);
    [[nodiscard]] bool Sorted() const;
    void setSorted(bool sorted);
    [[nodiscard]] bool SortAsNumeric() const;
    void setSortAsNumeric(bool numeric);
    [[nodiscard]] bool ShowItemImages() const
    {
        return m_look.ShowItemImages;
    }
    void setShowItemImages(bool show);
    [[nodiscard]] int ItemImageSize() const
    {
        return m_look.ItemImageSize;
    } ///< 0: as high as the font
    void setItemImageSize(int size);
    [[nodiscard]] bool ShowSelectRect() const
    {
        return m_look.ShowSelectRect;
    }
    void setShowSelectRect(bool show);
    /// 0: a double click on a row is a second press; another value: it raises DblClick.
    [[nodiscard]] int DblClickBehavior() const;
    void setDblClickBehavior(int behavior);
    [[nodiscard]] bool DragEnabled() const; ///< the pressed rows can be dragged away as text
    void setDragEnabled(bool enabled);
    [[nodiscard]] bool Enabled() const; ///< this list's own switch, whatever its window's is
    void setEnabled(bool enabled);
    [[nodiscard]] bool RedrawFlag() const
    {
        return m_redraw;
    }
    void setRedrawFlag(bool redraw); ///< true repaints what was held back
    [[nodiscard]] bool RightToLeft() const
    {
        return m_look.RightToLeft;
    }
    void setRightToLeft(bool rightToLeft);
    /// Off at first: every text has its own colour. On: one that could not be read on the ground of its row
    /// takes a colour that can.
    [[nodiscard]] bool ReadableText() const
    {
        return m_look.ReadableText;
    }
    void setReadableText(bool readable);
    [[nodiscard]] int NewIndex() const; ///< the item added last, -1 when none
    void setNewIndex(int index);
    [[nodiscard]] int TopIndex() const;
    void setTopIndex(int index);         ///< clamped to the last page
    [[nodiscard]] int ListIndex() const; ///< -1 when none
    /// Selects and scrolls into view; raises no event. Below -1 or past the end: ignored.
    void setListIndex(int index);
    [[nodiscard]] int ListCount() const;
    [[nodiscard]] int SelCount() const;
    [[nodiscard]] QString Text() const; ///< of the item at ListIndex, empty when none
    [[nodiscard]] qulonglong hwnd() const
    {
        return effectiveWinId();
    }
    [[nodiscard]] QPaintDevice* hdc()
    {
        return this;
    }
    [[nodiscard]] int ScaleHeight() const
    {
        return height();
    }
    [[nodiscard]] int ScaleWidth() const
    {
        return width();
    }
    [[nodiscard]] int ScaleMode() const
    {
        return 3;
    } ///< pixels, always

    [[nodiscard]] const MorphListDesign& design() const
    {
        return m_look.design;
    }
    [[nodiscard]] float BackAngle() const
    {
        return m_look.design.BackAngle;
    }
    void setBackAngle(float degrees)
    {
        changeDesign(&MorphListDesign::BackAngle, degrees);
    }
    [[nodiscard]] bool BackMiddleOut() const
    {
        return m_look.design.BackMiddleOut;
    }
    void setBackMiddleOut(bool on)
    {
        changeDesign(&MorphListDesign::BackMiddleOut, on);
    }
    [[nodiscard]] bool BorderMiddleOut() const
    {
        return m_look.design.BorderMiddleOut;
    }
    void setBorderMiddleOut(bool on)
    {
        changeDesign(&MorphListDesign::BorderMiddleOut, on);
    }
    [[nodiscard]] bool CircularGradient() const
    {
        return m_look.design.CircularGradient;
    }
    void setCircularGradient(bool on)
    {
        changeDesign(&MorphListDesign::CircularGradient, on);
    }
    [[nodiscard]] int BorderWidth() const
    {
        return m_look.design.BorderWidth;
    }
    void setBorderWidth(int width)
    {
        changeDesign(&MorphListDesign::BorderWidth, qBound(0, width, 1000));
    }
    [[nodiscard]] int CurveTopLeft() const
    {
        return m_look.design.CurveTopLeft;
    }
    void setCurveTopLeft(int radius)
    {
        changeDesign(&MorphListDesign::CurveTopLeft, qMax(0, radius));
    }
    [[nodiscard]] int CurveTopRight() const
    {
        return m_look.design.CurveTopRight;
    }
    void setCurveTopRight(int radius)
    {
        changeDesign(&MorphListDesign::CurveTopRight, qMax(0, radius));
    }
    [[nodiscard]] int CurveBottomLeft() const
    {
        return m_look.design.CurveBottomLeft;
    }
    void setCurveBottomLeft(int radius)
    {
        changeDesign(&MorphListDesign::CurveBottomLeft, qMax(0, radius));
    }
    [[nodiscard]] int CurveBottomRight() const
    {
        return m_look.design.CurveBottomRight;
    }
    void setCurveBottomRight(int radius)
    {
        changeDesign(&MorphListDesign::CurveBottomRight, qMax(0, radius));
    }
    [[nodiscard]] QPixmap Picture() const
    {
        return m_look.Picture;
    } ///< lies over the gradient
    void setPicture(const QPixmap& picture);
    [[nodiscard]] int PictureMode() const
    {
        return m_look.PictureMode;
    } ///< 0 normal, 1 stretched, 2 tiled
    void setPictureMode(int mode);
    [[nodiscard]] QPixmap DisPicture() const
    {
        return m_look.DisPicture;
    }
    void setDisPicture(const QPixmap& picture);
    [[nodiscard]] int DisPictureMode() const
    {
        return m_look.DisPictureMode;
    }
    void setDisPictureMode(int mode);

    /// What assistive tools read beside a row's text; asked for when they do.
    void setRowDescriptions(std::function<QString(int)> describe)
    {
        m_describe = std::move(describe);
    }
    [[nodiscard]] QString rowDescription(int index) const
    {
        return m_describe ? m_describe(index) : QString();
    }

    /// What a press on a row does, without a mouse: selects it and raises Click.
    void activateRow(int index);
    /// Where the item shows; empty when it does not.
    [[nodiscard]] QRect rowRect(int index) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void Click();
    void DblClick();
    /// After the list's own move. KeyCode as in MorphListKeys.h; Shift: 1 Shift, 2 Ctrl, 4 Alt, added up.
    void KeyDown(int KeyCode, int Shift);
    void KeyPress(int KeyAscii);
    void KeyUp(int KeyCode, int Shift);
    /// Button: 1 left, 2 right, 4 middle. On a scroll part MouseDown comes when the auto-repeat is over, so
    /// after MouseUp; that is meant.
    void MouseDown(int Button, int Shift, int X, int Y);
    void MouseMove(int Button, int Shift, int X, int Y);
    void MouseUp(int Button, int Shift, int X, int Y);
    void Resize();
    void MouseEnter();
    void MouseExit();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    template <typename T> void changeDesign(T MorphListDesign::*field, T value)
    {
        if (m_look.design.*field == value)
            return;
        m_look.design.*field = value;
        lookChanged();
    }
    void lookChanged();
    [[nodiscard]] MorphListMeasure measured() const;
    void shape();
    void dragRows();
    void tellRelease();
    bool isWholeNotch(int delta);
    void tellAssistiveTools(bool itemsChanged);
    void repaintDirty();
    void deliver(const MorphListEvents& events);

    std::unique_ptr<MorphListModel> m_model;
    MorphListPainter m_painter;
    MorphListLook m_look;
    QBasicTimer m_beat;
    int m_theme = morphThemeByHand;
    bool m_redraw = true;
    bool m_repaintDue = false; ///< of the whole list
    QPixmap m_held;            ///< what the list shows while RedrawFlag is false
    QPoint m_pressed;
    int m_partOfNotch = 0; ///< of the wheel
    struct KeyRelease
    {
        int key;
        int shift;
        quint64 time; ///< the window system's
    };
    PressedKeys m_keys;
    std::optional<KeyRelease> m_release; ///< not told yet
    QBasicTimer m_releaseTimer;
    std::function<QString(int)> m_describe;
    int m_toldRow = -1; ///< the current row that assistive tools know
};

} // namespace varnhold
