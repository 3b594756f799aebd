#pragma once

#include <array>

namespace varnhold {

/// Everything a button can raise, under the names that its dispatch routine remembers.
enum class ButtonExEvent {
    None,
    Click,
    KeyDown,
    KeyPress,
    KeyUp,
    MouseDown,
    MouseMove,
    MouseUp,
    MouseEnter,
    MouseExit,
    OLEStartDrag,
    OLEGiveFeedback,
    OLEDragOver,
    OLEDragDrop,
    OLECompleteDrag,
};

/// Visual states by number. Faces and glyphs are numbered alike.
namespace buttonstate {
inline constexpr int pressed = 0;
inline constexpr int up = 1;
inline constexpr int over = 2;
inline constexpr int disabled = 3;
inline constexpr int focused = 4;
inline constexpr int count = 5;
} // namespace buttonstate

/// What a button needs to know of one event. Mouse positions are logical pixels of the control, except that
/// MouseDown carries twips.
struct ButtonExArguments
{
    int button = 0; ///< 1 left, 2 right, 4 middle; for MouseMove the sum of those held
    int shift = 0;  ///< 1 shift, 2 control, 4 alt
    double x = 0;
    double y = 0;
    int key = 0; ///< Qt::Key for KeyDown and KeyUp, a Unicode code point for KeyPress
};

/// The behaviour of a button without a widget. It is fed positions and keys and tells its host, in order,
/// what to show and what to raise.
class ButtonExState
{
public:
    class Host
    {
    public:
        virtual ~Host() = default;
        /// Raises the event. A handler may destroy the control: returns false then, and the state touches
        /// nothing of its own any more.
        virtual bool raiseEvent(ButtonExEvent event, const ButtonExArguments& arguments) = 0;
        /// Draws the whole control anew from the present state.
        virtual void redraw() = 0;
        virtual void startTimer1() = 0;
        virtual void stopTimer1() = 0;
    };

    explicit ButtonExState(Host& host);

    /// The centre of the control: decides what is shown when a state (0 to 4) is asked for.
    void SetState(int state);
    /// Draws the present state again, whatever the last event was.
    void redrawState();

    void setAppearance(int appearance);
    void setStyle(int style);
    void setValue(int value);
    void setEnabled(bool enabled);
    void setFocused(bool focused);
    /// Whether the face picture of a state is set. Does not redraw.
    void setFaceSet(int state, bool set);

    // What the host delivers. Those that raise an event return false when the control is gone.
    bool mouseDown(const ButtonExArguments& at);
    bool mouseMove(const ButtonExArguments& at, bool inside);
    bool mouseUp(const ButtonExArguments& at);
    /// One tick of Timer1 with where the cursor is now.
    bool pollCursor(bool inside);
    /// A press and release that come from a key: as the left button's, without its mouse events.
    void keyPressed();
    void keyReleased();
    /// The dispatch routine: remembers the event's name, then raises it.
    bool dispatch(ButtonExEvent event, const ButtonExArguments& arguments);

    /// The state that was asked for last, after the toggle rule.
    [[nodiscard]] int state() const { return m_state; }
    /// What the bevel goes by: 0 to 3. A disabled push button is flat, a disabled toggle button shows its
    /// value.
    [[nodiscard]] int bevelState() const { return m_bevel; }
    /// What glyph and caption go by: also 3 and 4.
    [[nodiscard]] int shownState() const { return m_shown; }
    /// Whether the caption takes HighlightColor.
    [[nodiscard]] bool isCaptionHighlighted() const { return m_captionHighlighted; }
    /// Which face picture is on the control; -1 before the first.
    [[nodiscard]] int face() const { return m_face; }
    [[nodiscard]] int Value() const { return m_value; }
    [[nodiscard]] int Style() const { return m_style; }
    [[nodiscard]] int Appearance() const { return m_appearance; }
    [[nodiscard]] bool isSkinned() const;
    [[nodiscard]] bool hasFocus() const { return m_focused; }
    [[nodiscard]] bool isEnabled() const { return m_enabled; }
    [[nodiscard]] ButtonExEvent lastEvent() const { return m_lastEvent; }

private:
    void show(int state);
    void press();

    Host& m_host;
    std::array<bool, buttonstate::count> m_faceSet{};
    int m_state = buttonstate::up;
    int m_shown = buttonstate::up;
    int m_bevel = buttonstate::up;
    int m_face = -1;
    int m_appearance = 1;
    int m_style = 0;
    int m_value = 1;
    ButtonExEvent m_lastEvent = ButtonExEvent::None;
    bool m_leftDuringPress = false;
    bool m_entered = false; ///< between MouseEnter and MouseExit, which is when Timer1 runs
    bool m_captionHighlighted = false;
    bool m_enabled = true;
    bool m_focused = false;
};

} // namespace varnhold
