#include "controls/ButtonEx/ButtonExState.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace varnhold {
namespace {

using namespace buttonstate;
using Event = ButtonExEvent;

std::string name(Event event)
{
    static const std::vector<std::string> names = {"None",       "Click",     "KeyDown",   "KeyPress",
                                                   "KeyUp",      "MouseDown", "MouseMove", "MouseUp",
                                                   "MouseEnter", "MouseExit"};
    return names.at(static_cast<std::size_t>(event));
}

/// A button without a widget. What it raises and which state it had then stands in `log`.
class Machine : public ButtonExState::Host
{
public:
    ButtonExState state{*this};
    std::string log;
    int redraws = 0;
    bool timer = false;
    Event dieAt = Event::None;

    std::string taken() { return std::exchange(log, {}); }
    void move(bool inside, int held = 0) { state.mouseMove({held, 0, 1, 1, 0}, inside); }
    void down(int button = 1) { state.mouseDown({button, 0, 1, 1, 0}); }
    void up(int button = 1) { state.mouseUp({button, 0, 1, 1, 0}); }
    /// A tick, when the timer runs.
    void tick(bool inside)
    {
        if (timer)
            state.pollCursor(inside);
    }
    void setFaces(const std::vector<int>& states)
    {
        state.setAppearance(2);
        for (const int one : states)
            state.setFaceSet(one, true);
        state.redrawState();
    }

    bool raiseEvent(Event event, const ButtonExArguments&) override
    {
        log += (log.empty() ? "" : " ") + name(event) + "/" + std::to_string(state.state());
        return event != dieAt;
    }
    void redraw() override { ++redraws; }
    void startTimer1() override { timer = true; }
    void stopTimer1() override { timer = false; }
};

TEST(ButtonExState, RaisesInOrderFromEnterToExit)
{
    Machine button;
    button.move(true);
    EXPECT_EQ(button.taken(), "MouseEnter/2 MouseMove/2");
    button.move(true);
    EXPECT_EQ(button.taken(), "MouseMove/2") << "entered once";
    button.down();
    EXPECT_EQ(button.taken(), "MouseDown/0");
    button.tick(true);
    EXPECT_EQ(button.state.state(), pressed);
    button.up();
    EXPECT_EQ(button.taken(), "MouseUp/1");
    button.tick(false);
    button.tick(false);
    EXPECT_EQ(button.taken(), "MouseExit/1") << "once a leave";
    EXPECT_FALSE(button.timer);
}

TEST(ButtonExState, APressDraggedOutShowsUpAndComesBackPressed)
{
    Machine button;
    button.move(true);
    button.down();
    button.move(false, 1);
    EXPECT_EQ(button.state.state(), pressed) << "until the cursor is polled";
    button.taken();
    button.tick(false);
    EXPECT_EQ(button.taken(), "MouseExit/0") << "raised before the face changes";
    EXPECT_EQ(button.state.state(), up);
    for (int i = 0; i < 3; ++i) {
        button.move(false, 1);
        EXPECT_EQ(button.state.state(), up) << "moves outside do not press";
        EXPECT_FALSE(button.timer);
    }
    EXPECT_EQ(button.taken(), "");
    button.move(true, 1);
    EXPECT_EQ(button.taken(), "MouseEnter/1 MouseMove/1");
    EXPECT_EQ(button.state.state(), pressed);
    button.tick(false);
    EXPECT_EQ(button.state.state(), up);
    button.taken();
    button.up();
    EXPECT_EQ(button.taken(), "MouseUp/1");
}

TEST(ButtonExState, AfterMouseExitAPressHasNoPressedFace)
{
    Machine button;
    button.move(true);
    button.tick(false);
    button.down();
    EXPECT_EQ(button.state.state(), up);
    EXPECT_EQ(button.state.Value(), 0) << "the value flips all the same";
    // Any other event lifts the guard: here the MouseDown itself.
    button.state.SetState(pressed);
    EXPECT_EQ(button.state.state(), pressed);
}

TEST(ButtonExState, ValueFlipsWithEveryPress)
{
    Machine push;
    push.down();
    EXPECT_EQ(push.state.Value(), 0);
    push.up();
    EXPECT_EQ(push.state.state(), up) << "a push button comes up whatever its value";
    push.state.SetState(pressed);
    push.down();
    EXPECT_EQ(push.state.Value(), 1) << "pressed already";

    Machine toggle;
    toggle.state.setStyle(1);
    toggle.move(true);
    toggle.down();
    toggle.up();
    EXPECT_EQ(toggle.state.Value(), 0);
    EXPECT_EQ(toggle.state.state(), pressed) << "latched";
    toggle.move(true);
    EXPECT_EQ(toggle.state.state(), pressed) << "hover does not lift it";
    toggle.tick(false);
    EXPECT_EQ(toggle.state.state(), pressed) << "nor does leaving";
    EXPECT_FALSE(toggle.state.isCaptionHighlighted()) << "but the caption cools down";
    const int before = toggle.redraws;
    toggle.state.setFocused(true);
    EXPECT_EQ(toggle.redraws, before + 1) << "redrawn after the mouse left";
    toggle.move(true);
    toggle.down();
    EXPECT_EQ(toggle.state.state(), up);
    toggle.up();
    EXPECT_EQ(toggle.state.Value(), 1);
    toggle.move(true);
    EXPECT_EQ(toggle.state.state(), over);
}

TEST(ButtonExState, FacesByStateDisabledAndFocus)
{
    struct Case
    {
        const char* name;
        std::vector<int> faces;
        bool enabled, focused;
        int asked, face;
    };
    const std::vector<Case> cases = {
        {"pressed", {0, 1, 2, 3, 4}, true, false, pressed, pressed},
        {"up", {0, 1, 2, 3, 4}, true, false, up, up},
        {"over", {0, 1, 2, 3, 4}, true, true, over, over},
        {"focused", {0, 1, 2, 3, 4}, true, true, up, focused},
        {"disabled wins over all", {0, 1, 2, 3, 4}, false, true, pressed, disabled},
        {"no focus face", {0, 1, 2, 3}, true, true, up, up},
        {"no pressed face", {1}, true, false, pressed, up},
        {"no disabled face", {1, 2}, false, false, over, up},
        {"no up face: no faces at all", {0, 2}, true, false, pressed, -1},
    };
    for (const Case& one : cases) {
        Machine button;
        button.setFaces(one.faces);
        button.state.setEnabled(one.enabled);
        button.state.setFocused(one.focused);
        button.state.SetState(one.asked);
        EXPECT_EQ(button.state.face(), one.face) << one.name;
    }
    Machine button;
    button.setFaces({1, 2});
    button.state.setFocused(true);
    button.move(true);
    button.tick(false);
    EXPECT_EQ(button.state.face(), over) << "the focus face that is wanted is missing: the one before stays";
    button.state.setFocused(false);
    EXPECT_EQ(button.state.face(), up);
}

TEST(ButtonExState, DisabledShowsAtOnceAndStays)
{
    Machine button;
    button.move(true);
    button.state.setEnabled(false);
    EXPECT_EQ(button.state.bevelState(), disabled);
    EXPECT_EQ(button.state.shownState(), disabled);
    button.tick(false);
    EXPECT_EQ(button.state.bevelState(), disabled) << "leaving asks for up";
    button.state.setEnabled(true);
    EXPECT_EQ(button.state.bevelState(), up);

    Machine toggle;
    toggle.state.setStyle(1);
    toggle.state.setValue(0);
    toggle.state.setEnabled(false);
    EXPECT_EQ(toggle.state.bevelState(), pressed) << "a latched button stays down";
    EXPECT_EQ(toggle.state.shownState(), disabled);
}

TEST(ButtonExState, TouchesNothingAfterAHandlerDestroyedIt)
{
    for (const Event last : {Event::MouseEnter, Event::MouseMove}) {
        Machine button;
        button.dieAt = last;
        EXPECT_FALSE(button.state.mouseMove({1, 0, 1, 1, 0}, true));
        EXPECT_EQ(button.taken(), last == Event::MouseEnter ? "MouseEnter/0" : "MouseEnter/0 MouseMove/0");
    }
    Machine button;
    button.dieAt = Event::MouseExit;
    button.move(true);
    EXPECT_FALSE(button.state.pollCursor(false));
    EXPECT_EQ(button.state.state(), over) << "the up face is not shown any more";
}

} // namespace
} // namespace varnhold
