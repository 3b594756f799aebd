#include "controls/ButtonEx/ButtonEx.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QDropEvent>
#include <QLineEdit>
#include <QMetaProperty>
#include <QMimeData>
#include <QPointer>
#include <QScreen>
#include <QTest>

#include <memory>

namespace varnhold {
namespace {

using namespace Qt::StringLiterals;

QPixmap face(QRgb color, QSize size = QSize(28, 14))
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return QPixmap::fromImage(image);
}

/// A window with one button at (40, 30), and the log of what it raised. The cursor is the real one.
class ButtonExOnWindow : public testing::Test
{
protected:
    void SetUp() override
    {
        QCursor::setPos(away());
        window.resize(200, 100);
        window.move(100, 100);
        button = new ButtonEx(&window);
        button->setGeometry(40, 30, 60, 24);
        log(&ButtonEx::Click, u"Click"_s);
        log(&ButtonEx::KeyDown, u"KeyDown"_s);
        log(&ButtonEx::KeyPress, u"KeyPress"_s);
        log(&ButtonEx::KeyUp, u"KeyUp"_s);
        log(&ButtonEx::MouseDown, u"MouseDown"_s);
        log(&ButtonEx::MouseUp, u"MouseUp"_s);
        log(&ButtonEx::MouseEnter, u"MouseEnter"_s);
        log(&ButtonEx::MouseExit, u"MouseExit"_s);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    static QPoint away() { return QGuiApplication::primaryScreen()->geometry().bottomRight() - QPoint(5, 5); }

    template <typename Signal> void log(Signal signal, const QString& name)
    {
        QObject::connect(button, signal, &window, [this, name] { raised += name; });
    }

    QString taken() { return std::exchange(raised, {}).join(u' '); }

    /// Moves the cursor to a place of the window, with its move event.
    void moveTo(const QPoint& place, Qt::MouseButtons held = Qt::NoButton)
    {
        QCursor::setPos(window.mapToGlobal(place));
        QMouseEvent move(QEvent::MouseMove, place - button->pos(), window.mapToGlobal(place), Qt::NoButton,
                         held, Qt::NoModifier);
        if (held != Qt::NoButton || button->geometry().contains(place))
            QCoreApplication::sendEvent(button, &move);
    }

    QWidget window;
    ButtonEx* button = nullptr;
    QStringList raised;
    const QPoint in{60, 40};
    const QPoint out{10, 10};
};

TEST(ButtonEx, HasItsPropertiesUnderTheirNames)
{
    const ButtonEx button;
    for (const char* name :
         {"Appearance", "BackColor", "BorderStyle", "Caption", "ForeColor", "HighlightColor", "PictureDown",
          "SkinDisabled", "SkinDown", "SkinFocus", "SkinOver", "SkinUp", "Style", "TransparentColor"})
        EXPECT_TRUE(button.property(name).isValid()) << name;
    EXPECT_EQ(button.property("Value"), 1);
}

TEST_F(ButtonExOnWindow, ClicksOnlyWhenReleasedInside)
{
    moveTo(in);
    QTest::mousePress(button, Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(button->state(), buttonstate::pressed);
    QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(taken(), u"MouseEnter MouseDown MouseUp Click");

    QTest::mousePress(button, Qt::LeftButton, {}, QPoint(5, 5));
    moveTo(out, Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return button->state() == buttonstate::up; }));
    QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(-20, -20));
    EXPECT_EQ(taken(), u"MouseDown MouseExit MouseUp");
}

TEST_F(ButtonExOnWindow, HiddenUnderTheMouseItIsLeft)
{
    moveTo(in);
    EXPECT_EQ(button->state(), buttonstate::over);
    window.hide();
    EXPECT_TRUE(QTest::qWaitFor([&] { return button->state() == buttonstate::up; }));
    EXPECT_EQ(taken(), u"MouseEnter MouseExit");
}

TEST_F(ButtonExOnWindow, MouseDownTellsTwipsAndTheOthersPixels)
{
    QList<double> seen;
    QObject::connect(button, &ButtonEx::MouseDown, &window, [&](int, int, double x, double) { seen << x; });
    QObject::connect(button, &ButtonEx::MouseUp, &window, [&](int, int, double x, double) { seen << x; });
    QTest::mouseClick(button, Qt::RightButton, {}, QPoint(5, 5));
    EXPECT_EQ(seen, (QList<double>{75, 5}));
    EXPECT_EQ(taken(), u"MouseDown MouseUp") << "no Click of the right button";
}

TEST_F(ButtonExOnWindow, SpaceAndEnterClick)
{
    button->setFocus(Qt::TabFocusReason);
    QTest::keyPress(button, Qt::Key_Space);
    EXPECT_EQ(button->state(), buttonstate::pressed);
    QTest::keyRelease(button, Qt::Key_Space);
    EXPECT_EQ(button->state(), buttonstate::up);
    EXPECT_EQ(taken(), u"KeyDown KeyPress KeyUp Click");
    QTest::keyClick(button, Qt::Key_Return);
    EXPECT_EQ(taken(), u"KeyDown KeyPress Click KeyUp");

    button->setStyle(1);
    button->setValue(1);
    QTest::keyClick(button, Qt::Key_Space);
    EXPECT_EQ(button->Value(), 0);
    QTest::keyPress(button, Qt::Key_Space);
    button->clearFocus();
    EXPECT_EQ(button->Value(), 1) << "the press stands, the click is dropped with the focus";
}

TEST_F(ButtonExOnWindow, DefaultCancelAndMnemonicWorkFromAnotherControl)
{
    auto* edit = new QLineEdit(&window);
    edit->show();
    edit->setFocus();
    button->setDefault(true);
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(taken(), u"Click");
    QTest::keyClick(edit, Qt::Key_Escape);
    EXPECT_EQ(taken(), u"");
    button->setDefault(false);
    button->setCancel(true);
    QTest::keyClick(edit, Qt::Key_Return);
    QTest::keyClick(edit, Qt::Key_Escape);
    EXPECT_EQ(taken(), u"Click");
    button->setCaption(u"&Go"_s);
    QTest::keyClick(edit, Qt::Key_G, Qt::AltModifier);
    EXPECT_EQ(taken(), u"Click");
    EXPECT_TRUE(button->hasFocus());
    button->setEnabled(false);
    QTest::keyClick(&window, Qt::Key_G, Qt::AltModifier);
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_EQ(taken(), u"");
}

TEST_F(ButtonExOnWindow, DisabledItRaisesNothing)
{
    button->setEnabled(false);
    moveTo(in);
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::keyClick(button, Qt::Key_Space);
    button->click();
    button->DrawHighlight();
    button->setValue(0);
    button->setCaption(u"other"_s);
    EXPECT_EQ(taken(), u"");
}

TEST_F(ButtonExOnWindow, AHandlerThatDisablesItEndsThePress)
{
    QObject::connect(button, &ButtonEx::MouseDown, &window, [this] { button->setEnabled(false); });
    QTest::mousePress(button, Qt::LeftButton);
    button->setEnabled(true);
    QTest::mouseRelease(button, Qt::LeftButton);
    EXPECT_EQ(taken(), u"MouseDown MouseUp");
}

TEST_F(ButtonExOnWindow, AnyEventMayDestroyIt)
{
    const auto diesOf = [this](auto signal) {
        auto* victim = new ButtonEx(&window);
        const QPointer<ButtonEx> alive(victim);
        QObject::connect(victim, signal, victim, [victim] { delete victim; });
        victim->setGeometry(button->geometry());
        victim->show();
        victim->setFocus();
        const auto send = [&](QEvent::Type type, Qt::MouseButton which, Qt::MouseButtons held) {
            QMouseEvent event(type, QPoint(5, 5), window.mapToGlobal(in), which, held, Qt::NoModifier);
            if (alive)
                QCoreApplication::sendEvent(victim, &event);
        };
        QCursor::setPos(window.mapToGlobal(in));
        send(QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
        send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
        if (alive)
            QTest::keyClick(victim, Qt::Key_Space);
        send(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
        QCursor::setPos(away());
        return QTest::qWaitFor([&] { return alive.isNull(); }, 1000);
    };
    EXPECT_TRUE(diesOf(&ButtonEx::Click) && diesOf(&ButtonEx::KeyDown) && diesOf(&ButtonEx::KeyPress));
    EXPECT_TRUE(diesOf(&ButtonEx::KeyUp) && diesOf(&ButtonEx::MouseDown) && diesOf(&ButtonEx::MouseMove));
    EXPECT_TRUE(diesOf(&ButtonEx::MouseUp) && diesOf(&ButtonEx::MouseEnter) && diesOf(&ButtonEx::MouseExit));
}

TEST_F(ButtonExOnWindow, ADroppedTextIsHandedOn)
{
    button->setOLEDropMode(1);
    EXPECT_TRUE(button->acceptDrops());
    QString dropped;
    QObject::connect(button, &ButtonEx::OLEDragDrop, &window,
                     [&](const QMimeData* data, int*) { dropped = data->text(); });
    QMimeData data;
    data.setText(u"http://host/a.PKG"_s);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(button, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(button, &drop);
    EXPECT_EQ(dropped, u"http://host/a.PKG");
    EXPECT_TRUE(drop.isAccepted());
}

TEST_F(ButtonExOnWindow, TakesSizeAndOutlineOfItsFace)
{
    button->setAppearance(2);
    QImage image(28, 14, QImage::Format_RGB32);
    image.fill(Qt::white);
    image.setPixel(0, 0, qRgb(0, 0, 255));
    image.setDotsPerMeterX(12000);
    image.setDevicePixelRatio(2);
    button->setSkinUp(QPixmap::fromImage(image));
    EXPECT_EQ(button->size(), QSize(28, 14));
    EXPECT_EQ(button->sizeHint(), QSize(28, 14));
    EXPECT_FALSE(button->mask().contains(QPoint(0, 0)));
    EXPECT_TRUE(button->mask().contains(QPoint(1, 0)));

    button->setSkinOver(face(qRgb(9, 9, 9), QSize(40, 20)));
    moveTo(in);
    EXPECT_EQ(button->size(), QSize(40, 20)) << "each face has its own size";
    button->setTransparentColor(0xFFFFFF);
    moveTo(out);
    EXPECT_TRUE(QTest::qWaitFor([&] { return button->state() == buttonstate::up; }));
    EXPECT_TRUE(button->mask().contains(QPoint(0, 0)));
    button->setSkinUp(QPixmap());
    EXPECT_TRUE(button->mask().isEmpty()) << "bevelled again";
}

TEST(ButtonEx, SurvivesOddSizesAndTexts)
{
    ButtonEx button;
    for (const QString& text :
         {QString(), QString(10000, u'W'), u"\u05e9\u05dc\u05d5\u05dd &\u05e2"_s, u"&"_s, u"a\nb"_s}) {
        button.setCaption(text);
        for (const QSize& size : {QSize(0, 0), QSize(1, 1), QSize(-3, 7), QSize(2, 300), QSize(80, 24)}) {
            button.resize(size);
            button.grab();
        }
    }
    button.setAppearance(2);
    for (const QSize& size : {QSize(1, 1), QSize(1, 300)}) {
        button.setSkinUp(face(qRgb(0, 0, 255), size));
        EXPECT_EQ(button.size(), size);
        button.grab();
    }
    button.setStyle(7);
    button.setValue(-1);
    EXPECT_EQ(button.Style(), 0);
    EXPECT_EQ(button.Value(), 1);
    button.setMousePointer(4711);
    button.setBorderStyle(-9);
}

TEST(ButtonExAccess, TellsRoleNameStateAndAction)
{
    ButtonEx button;
    button.setCaption(u"&Fetch"_s);
    QAccessibleInterface* access = QAccessible::queryAccessibleInterface(&button);
    ASSERT_TRUE(access);
    EXPECT_EQ(access->role(), QAccessible::Button);
    EXPECT_EQ(access->text(QAccessible::Name), u"Fetch");
    button.setToolTip(u"Maximize"_s);
    EXPECT_EQ(access->text(QAccessible::Name), u"Fetch");
    button.setCaption(u"1"_s); // a glyph in a symbol font
    EXPECT_EQ(access->text(QAccessible::Name), u"Maximize");

    int clicks = 0;
    QObject::connect(&button, &ButtonEx::Click, &button, [&] { ++clicks; });
    QAccessibleActionInterface* action = access->actionInterface();
    ASSERT_TRUE(action);
    action->doAction(QAccessibleActionInterface::pressAction());
    QCoreApplication::processEvents(); // it is done afterwards
    EXPECT_EQ(clicks, 1);

    button.setStyle(1);
    button.setValue(1);
    EXPECT_EQ(access->role(), QAccessible::CheckBox);
    EXPECT_FALSE(access->state().checked);
    action->doAction(QAccessibleActionInterface::toggleAction());
    QCoreApplication::processEvents(); // it is done afterwards
    EXPECT_TRUE(access->state().checked);
    EXPECT_EQ(clicks, 2);
    button.setEnabled(false);
    EXPECT_TRUE(access->state().disabled);
    EXPECT_FALSE(action->actionNames().contains(QAccessibleActionInterface::toggleAction()));
}

} // namespace
} // namespace varnhold
