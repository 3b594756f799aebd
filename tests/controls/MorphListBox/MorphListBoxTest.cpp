#include "controls/MorphListBox/MorphListBox.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QMetaProperty>
#include <QMouseEvent>
#include <QPointer>
#include <QTest>

namespace varnhold {

namespace {

using namespace Qt::StringLiterals;

/// A list of forty rows on the screen, with a log of what it raises.
class MorphListBoxTest : public testing::Test
{
protected:
    MorphListBoxTest()
    {
        m_list->setSorted(false);
        for (int i = 0; i < 40; ++i)
            m_list->AddItem(QString::number(i));
        m_list->resize(113, 200);
        m_list->show();
        m_list->activateWindow();
        m_list->setFocus();
        QCoreApplication::processEvents();
        const auto log = [this](const char* name) {
            return [this, name] { m_log.append(QLatin1String(name)); };
        };
        QObject::connect(m_list, &MorphListBox::Click, m_list, log("Click"));
        QObject::connect(m_list, &MorphListBox::DblClick, m_list, log("DblClick"));
        QObject::connect(m_list, &MorphListBox::MouseDown, m_list, log("MouseDown"));
        QObject::connect(m_list, &MorphListBox::MouseUp, m_list, log("MouseUp"));
        QObject::connect(m_list, &MorphListBox::MouseEnter, m_list, log("MouseEnter"));
        QObject::connect(m_list, &MorphListBox::MouseExit, m_list, log("MouseExit"));
        QObject::connect(m_list, &MorphListBox::KeyDown, m_list, log("KeyDown"));
        QObject::connect(m_list, &MorphListBox::KeyPress, m_list, log("KeyPress"));
        QObject::connect(m_list, &MorphListBox::KeyUp, m_list, log("KeyUp"));
        QObject::connect(m_list, &MorphListBox::Resize, m_list, log("Resize"));
    }
    ~MorphListBoxTest() override { delete m_list; }

    [[nodiscard]] QPoint row(int index) const { return m_list->rowRect(index).center(); }
    [[nodiscard]] QPoint lowerArrow() const { return {m_list->width() - 4, m_list->height() - 4}; }
    QStringList takeLog() { return std::exchange(m_log, {}); }

    QPointer<MorphListBox> m_list = new MorphListBox;
    QStringList m_log;
};

} // namespace

TEST_F(MorphListBoxTest, RaisesItsEventsInTheirOrder)
{
    takeLog();
    QTest::mouseMove(m_list, row(2));
    QTest::mousePress(m_list, Qt::LeftButton, {}, row(2));
    EXPECT_EQ(m_list->Text(), u"2"_s);
    QTest::mouseRelease(m_list, Qt::LeftButton, {}, row(2));
    EXPECT_EQ(takeLog(), QStringList({u"MouseEnter"_s, u"MouseDown"_s, u"MouseUp"_s, u"Click"_s}));

    QTest::mousePress(m_list, Qt::LeftButton, {}, row(3));
    QTest::mouseMove(m_list, {-20, 10});
    QTest::mouseRelease(m_list, Qt::LeftButton, {}, {-20, 10});
    EXPECT_EQ(takeLog(), QStringList({u"MouseDown"_s, u"MouseUp"_s})) << "released outside";

    QTest::mouseDClick(m_list, Qt::LeftButton, {}, row(4));
    EXPECT_EQ(takeLog().count(u"DblClick"_s), 1);
    QTest::keyClick(m_list, Qt::Key_Down);
    QTest::keyClick(m_list, Qt::Key_A);
    EXPECT_EQ(takeLog(), QStringList({u"KeyDown"_s, u"KeyUp"_s, u"KeyDown"_s, u"KeyPress"_s, u"KeyUp"_s}));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(m_list, &leave);
    EXPECT_EQ(takeLog(), QStringList({u"MouseExit"_s}));
    m_list->setListIndex(7);
    m_list->setTheme(3);
    EXPECT_EQ(takeLog(), QStringList()) << "code raises no event";
    m_list->resize(120, 210);
    EXPECT_EQ(takeLog(), QStringList({u"Resize"_s}));
}

TEST_F(MorphListBoxTest, AHeldArrowGoesOnByTheClock)
{
    QTest::mouseMove(m_list, lowerArrow());
    QTest::mousePress(m_list, Qt::LeftButton, {}, lowerArrow());
    EXPECT_EQ(m_list->TopIndex(), 1);
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_list->TopIndex() >= 3; }));
    takeLog();
    QTest::mouseMove(m_list, row(m_list->TopIndex()));
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_log.contains(u"MouseDown"_s); }));
    QTest::mouseRelease(m_list, Qt::LeftButton, {}, lowerArrow());
    EXPECT_EQ(takeLog(), QStringList({u"MouseDown"_s, u"MouseUp"_s}));
}

TEST_F(MorphListBoxTest, OutlivesItsListeners)
{
    // The list changed inside its own events.
    QObject::connect(m_list, &MorphListBox::Click, m_list, [this] { m_list->Clear(); });
    QObject::connect(m_list, &MorphListBox::MouseMove, m_list, [this] { m_list->RemoveItem(0); });
    QObject::connect(m_list, &MorphListBox::KeyDown, m_list, [this] { m_list->AddItem(u"new"_s, 0); });
    QTest::mouseMove(m_list, row(2));
    QTest::mouseClick(m_list, Qt::LeftButton, {}, row(2));
    EXPECT_EQ(m_list->ListCount(), 0);
    QTest::keyClick(m_list, Qt::Key_Down);
    EXPECT_EQ(m_list->ListCount(), 1);
    m_list->grab();

    // Ended while an arrow is held, and ended by its own event.
    for (int i = 0; i < 40; ++i)
        m_list->AddItem(u"x"_s);
    QTest::mousePress(m_list, Qt::LeftButton, {}, lowerArrow());
    QObject::connect(m_list, &MorphListBox::MouseUp, m_list, [this] { delete m_list; });
    QMouseEvent release(QEvent::MouseButtonRelease, lowerArrow(), lowerArrow(), Qt::LeftButton, {}, {});
    QCoreApplication::sendEvent(m_list, &release);
    EXPECT_FALSE(m_list);
    m_list = new MorphListBox;
    m_list->setSorted(false);
    for (int i = 0; i < 400; ++i)
        m_list->AddItem(u"x"_s);
    m_list->resize(113, 200);
    m_list->show();
    QTest::mousePress(m_list, Qt::LeftButton, {}, lowerArrow());
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_list->TopIndex() >= 2; }));
    delete m_list;
    QCoreApplication::processEvents();
}

TEST_F(MorphListBoxTest, PaintsNothingNewWhileRedrawIsOff)
{
    const QImage before = m_list->grab().toImage();
    m_list->setRedrawFlag(false);
    m_list->Clear();
    m_list->setTheme(4);
    EXPECT_EQ(m_list->grab().toImage(), before);
    m_list->setRedrawFlag(true);
    const QImage after = m_list->grab().toImage();
    EXPECT_NE(after, before);
    m_list->setBackColor1(m_list->BackColor1());
    EXPECT_EQ(m_list->grab().toImage(), after);
}

TEST_F(MorphListBoxTest, DeclaresItsPropertiesUnderTheirNames)
{
    // The keys of a skin's own list colours, and the properties that skins and settings set by name.
    for (const char* name : {"ArrowDownColor", "BackColor1", "BorderColor1", "ButtonColor1", "CheckBoxColor",
                             "FocusBorderColor2", "ForeColor", "HighlightColor", "SelColor1", "ThumbColor1",
                             "TrackBarColor2", "TrackClickColor1", "DisCheckboxArrowColor"}) {
        ASSERT_TRUE(m_list->setProperty(name, 0x123456)) << name;
        EXPECT_EQ(m_list->property(name).toUInt(), 0x123456U) << name;
    }
    EXPECT_LT(m_list->metaObject()->indexOfProperty("BackColor"), 0) << "no such property";
    EXPECT_TRUE(m_list->setProperty("Enabled", false));
    EXPECT_FALSE(m_list->isEnabled());
    QWidget* const plain = m_list;
    plain->setEnabled(true);
    EXPECT_TRUE(m_list->Enabled());

    m_list->setProperty("MultiSelect", 2);
    m_list->setProperty("Theme", 5);
    EXPECT_EQ(m_list->MultiSelect(), 0);
    EXPECT_EQ(m_list->DisForeColor(), 0x404040U);
}

TEST_F(MorphListBoxTest, TakesAnySizeAndText)
{
    m_list->AddImage(QPixmap());
    m_list->setShowItemImages(true);
    m_list->setList(0, QString(10000, u'W'));
    m_list->setList(1, u"\u0633\u0644\u0627\u0645 \u05d0\u05d1"_s);
    for (const int image : {-7, 0, 5, 1'000'000})
        m_list->setImageIndex(image % 3 + 1, image);
    for (const bool mirrored : {false, true}) {
        m_list->setRightToLeft(mirrored);
        for (const QSize size : {QSize(0, 0), QSize(1, 1), QSize(0, 90), QSize(90, 0), QSize(5, 300),
                                 QSize(300, 5), QSize(40, 2000)}) {
            m_list->resize(size);
            m_list->setCurveTopLeft(size.width());
            m_list->setBorderWidth(size.height() % 7);
            m_list->setCircularGradient(mirrored);
            m_list->grab();
            QTest::mouseClick(m_list, Qt::LeftButton, {}, QPoint(size.width() / 2, size.height() / 2));
            EXPECT_GE(m_list->TopIndex(), 0);
            EXPECT_LT(m_list->TopIndex(), 40);
        }
    }
}

TEST_F(MorphListBoxTest, IsAListToAssistiveTools)
{
    QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(m_list);
    ASSERT_TRUE(list);
    EXPECT_EQ(list->role(), QAccessible::List);
    ASSERT_EQ(list->childCount(), 40);
    QAccessibleInterface* const item = list->child(3);
    ASSERT_TRUE(item && item->actionInterface());
    EXPECT_EQ(item->role(), QAccessible::ListItem);
    EXPECT_EQ(item->text(QAccessible::Name), u"3"_s);
    EXPECT_FALSE(item->state().selected);
    EXPECT_EQ(item->rect().topLeft(), m_list->mapToGlobal(m_list->rowRect(3).topLeft()));
    EXPECT_EQ(list->childAt(item->rect().center().x(), item->rect().center().y()), item);
    EXPECT_EQ(list->indexOfChild(item), 3);
    EXPECT_TRUE(list->child(39)->state().offscreen);

    takeLog();
    item->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCoreApplication::processEvents(); // it is done afterwards
    EXPECT_EQ(takeLog(), QStringList({u"Click"_s}));
    EXPECT_TRUE(item->state().selected);
    EXPECT_EQ(list->text(QAccessible::Value), u"3"_s);
    ASSERT_TRUE(list->tableInterface());
    EXPECT_EQ(list->tableInterface()->selectedRows(), QList<int>{3});

    m_list->setStyle(1);
    EXPECT_TRUE(item->state().checkable);
    item->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QCoreApplication::processEvents(); // it is done afterwards
    EXPECT_TRUE(item->state().checked);
    m_list->Clear();
    EXPECT_FALSE(item->isValid());
    EXPECT_EQ(item->text(QAccessible::Name), QString());
}

} // namespace varnhold
