// The widget under mouse, keys, wheel and assistive tools.

#include "controls/ucSlider/ucSlider.h"

#include "platform/RunTimeError.h"
#include "support/PrintText.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QImage>
#include <QPointer>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>

#include <memory>

namespace varnhold {
namespace {

using namespace Qt::StringLiterals;

QPixmap picture(QSize size)
{
    QPixmap made(size);
    made.fill(Qt::red);
    return made;
}

// A slider 110 long, its knob 10: the knob's way is 100, its values 0 to 10.
class Slider : public testing::Test
{
protected:
    Slider()
    {
        slider.setOrientation(0);
        slider.setSliderIcon(picture({10, 20}));
        slider.resize(110, 20);
        slider.show();
        QObject::connect(&slider, &ucSlider::Change, &slider,
                         [this] { log << u"Change %1"_s.arg(slider.value()); });
        QObject::connect(&slider, &ucSlider::Click, &slider, [this] { log << u"Click"_s; });
        QObject::connect(&slider, &ucSlider::MouseUp, &slider, [this] { log << u"MouseUp"_s; });
        QObject::connect(&slider, &ucSlider::KeyDown, &slider,
                         [this](int key) { log << u"Key %1"_s.arg(key); });
    }

    QStringList happened() { return std::exchange(log, {}); }

    ucSlider slider;
    QStringList log;
};

TEST_F(Slider, MouseEventsComeInTheirOrder)
{
    slider.setValue(5);
    EXPECT_EQ(happened(), QStringList()); // set from code

    QTest::mousePress(&slider, Qt::LeftButton, {}, {55, 10}); // a still press on the knob
    EXPECT_EQ(happened(), QStringList{u"Change 5"_s});
    QTest::mouseMove(&slider, {76, 10});
    EXPECT_EQ(happened(), QStringList{u"Change 7"_s});
    QTest::mouseMove(&slider, {500, 90});
    QTest::mouseRelease(&slider, Qt::LeftButton, {}, {500, 90}); // outside: no click
    EXPECT_EQ(happened(), (QStringList{u"Change 10"_s, u"MouseUp"_s}));
    QTest::mouseMove(&slider, {20, 10});
    EXPECT_EQ(happened(), QStringList());

    QTest::mouseClick(&slider, Qt::LeftButton, {},
                      {25, 10}); // on the rail: the jump's event, the press's own
    EXPECT_EQ(happened(), (QStringList{u"Change 2"_s, u"Change 2"_s, u"Click"_s, u"MouseUp"_s}));
    QTest::mouseClick(&slider, Qt::RightButton, {}, {85, 10});
    EXPECT_EQ(happened(), QStringList{u"MouseUp"_s});
    EXPECT_EQ(slider.value(), 2);
}

TEST_F(Slider, DisabledOneTakesNothingAndADragEndsWithIt)
{
    const auto send = [this](QEvent::Type type, Qt::MouseButtons held) {
        const QPoint at(80, 10);
        QMouseEvent event(type, at, slider.mapToGlobal(at), Qt::LeftButton, held, {});
        QCoreApplication::sendEvent(&slider, &event);
    };
    QTest::mousePress(&slider, Qt::LeftButton, {}, {5, 10});
    happened();
    slider.setProperty("Enabled", false);
    send(QEvent::MouseMove, Qt::LeftButton);
    send(QEvent::MouseButtonPress, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, Qt::NoButton);
    slider.setEnabled(true);
    send(QEvent::MouseMove, Qt::LeftButton); // the old drag is over
    EXPECT_EQ(happened(), QStringList());
    EXPECT_EQ(slider.value(), 0);
}

TEST_F(Slider, KeysAndWheelMoveTheKnobTheirWay)
{
    slider.setMax(100);
    const struct
    {
        int key, lying, upright;
    } cases[] = {
        {Qt::Key_Right, 51, 51}, {Qt::Key_Left, 49, 49},   {Qt::Key_Up, 51, 49},
        {Qt::Key_Down, 49, 51},  {Qt::Key_PageUp, 60, 40}, {Qt::Key_PageDown, 40, 60},
        {Qt::Key_Home, 0, 0},    {Qt::Key_End, 100, 100},  {Qt::Key_A, 50, 50},
    };
    for (const int orientation : {0, 1}) {
        slider.setOrientation(orientation);
        for (const auto& c : cases) {
            slider.setValue(50);
            QTest::keyClick(&slider, Qt::Key(c.key));
            const int value = orientation == 0 ? c.lying : c.upright;
            EXPECT_EQ(slider.value(), value) << "key " << c.key << ", orientation " << orientation;
            QStringList events{u"Key %1"_s.arg(c.key)};
            if (value != 50)
                events << u"Change %1"_s.arg(value);
            EXPECT_EQ(happened(), events);
        }
        slider.setValue(50);
        for (const int turn : {40, 40, 40}) { // a fine wheel: together one notch up
            QWheelEvent event({5, 5}, slider.mapToGlobal(QPointF(5, 5)), {}, {0, turn}, Qt::NoButton, {},
                              Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&slider, &event);
        }
        EXPECT_EQ(happened(), QStringList{orientation == 0 ? u"Change 53"_s : u"Change 47"_s});
    }
    slider.setValue(0);
    QTest::keyClick(&slider, Qt::Key_Left);
    EXPECT_EQ(happened(), QStringList{u"Key %1"_s.arg(Qt::Key_Left)}); // at the end: no change
}

TEST_F(Slider, KnobLiesFlushAtBothEnds)
{
    const QColor knob(Qt::red);
    for (const int value : {0, 10}) {
        slider.setValue(value);
        const QImage image = slider.grab().toImage();
        EXPECT_EQ(image.pixelColor(0, 10) == knob, value == 0);
        EXPECT_EQ(image.pixelColor(9, 10) == knob, value == 0);
        EXPECT_EQ(image.pixelColor(100, 10) == knob, value == 10);
        EXPECT_EQ(image.pixelColor(109, 10) == knob, value == 10);
    }
}

TEST_F(Slider, ErrorsReachTheCallerButNotThePropertySystem)
{
    slider.setValue(4);
    EXPECT_THROW(slider.setValue(11), RunTimeError);
    EXPECT_NO_THROW(slider.setProperty("Value", 11));
    EXPECT_EQ(slider.property("Value"), 4);
    slider.setProperty("Value", 6);
    EXPECT_EQ(slider.value(), 6);
    slider.setProperty("Orientation", 2);
    EXPECT_EQ(slider.orientation(), 0);
}

TEST_F(Slider, TipFollowsTheDragUnlessTurnedOff)
{
    QTest::mousePress(&slider, Qt::LeftButton, {}, {35, 10});
    EXPECT_EQ(QToolTip::text(), u"3"_s);
    QTest::mouseRelease(&slider, Qt::LeftButton, {}, {35, 10});
    slider.setShowValueTip(false);
    slider.setValue(0);
    QTest::mousePress(&slider, Qt::LeftButton, {}, {85, 10});
    EXPECT_NE(QToolTip::text(), u"8"_s);
}

TEST(ucSlider, SizeDoesNotDependOnTheOrderOfItsSetting)
{
    ucSlider early;
    early.resize(150, 40);
    early.setSliderIcon(picture({16, 18}));
    early.setOrientation(0);
    ucSlider late;
    late.setOrientation(0);
    late.setSliderIcon(picture({16, 18}));
    late.show();
    late.resize(150, 40);
    EXPECT_EQ(early.size(), QSize(150, 18));
    EXPECT_EQ(late.size(), QSize(150, 18));

    late.setRailPicture(picture({90, 8}));
    EXPECT_EQ(late.size(), QSize(150, 18)); // of no account until the style asks for it
    late.setRailStyle(SliderState::pictureRail);
    EXPECT_EQ(late.size(), QSize(90, 22));
    for (const QSize size : {QSize(0, 0), QSize(1, 1), QSize(3, 400)}) {
        early.resize(size);
        early.grab();
        QTest::mouseClick(&early, Qt::LeftButton, {}, {0, 0});
        EXPECT_GE(early.value(), 0);
    }
}

TEST(ucSlider, HandlersMayTakeItAway)
{
    const QPoint beside(3, 100);
    for (const bool onRelease : {false, true}) {
        QPointer<ucSlider> slider(new ucSlider);
        slider->show();
        QObject::connect(slider, onRelease ? &ucSlider::Click : &ucSlider::Change, slider,
                         [&] { delete slider; });
        QMouseEvent press(QEvent::MouseButtonPress, beside, beside, Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(slider, &press);
        if (onRelease) {
            QMouseEvent release(QEvent::MouseButtonRelease, beside, beside, Qt::LeftButton, Qt::NoButton, {});
            QCoreApplication::sendEvent(slider, &release);
        }
        EXPECT_TRUE(slider.isNull());
    }
}

TEST_F(Slider, AssistiveToolsReadAndMoveIt)
{
    QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(&slider);
    ASSERT_NE(seen, nullptr);
    ASSERT_NE(seen->valueInterface(), nullptr);
    EXPECT_EQ(seen->role(), QAccessible::Slider);
    EXPECT_TRUE(seen->state().focusable);
    EXPECT_EQ(seen->valueInterface()->maximumValue(), 10);
    seen->valueInterface()->setCurrentValue(7);
    EXPECT_EQ(seen->text(QAccessible::Value), u"7"_s);
    ASSERT_NE(seen->actionInterface(), nullptr);
    seen->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    EXPECT_EQ(happened(), (QStringList{u"Change 7"_s, u"Change 8"_s}));
    seen->valueInterface()->setCurrentValue(400);
    EXPECT_EQ(slider.value(), 10);
}

} // namespace
} // namespace varnhold
