// The cover below the game list and its large view.

#include "../MainWindowWorld.h"

#include "covers/CoverBox.h"

#include <QBuffer>
#include <QDir>
#include <QPainter>
#include <QSignalSpy>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

QByteArray pictureBytes(const QSize& size, const char* format)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(qRgb(10, 120, 200));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

class CoverPanelTest : public testing::Test, protected MainWindowWorld
{
protected:
    CoverPanelTest()
    {
        window.setBlankPicture([] { return QPixmap(7, 7); });
    }
    void click(Qt::MouseButton button = Qt::LeftButton) { QTest::mouseClick(&preview, button); }

    CoverBox& preview = child<CoverBox>(window, "PicPreview");
    QWidget& large = child(window, "imgPreview");
};

} // namespace

TEST_F(CoverPanelTest, ShowsTheCoverLargeInsteadOfTheViews)
{
    window.showStoredPicture(pictureBytes({300, 400}, "jpg"));
    EXPECT_EQ(preview.picture().size(), QSize(90, 120)) << "no more is read than shows";
    child(window, "txtGameNotes").setFocus();
    click();
    EXPECT_EQ(window.focusWidget(), &preview) << "the next key makes it small again";
    EXPECT_EQ(child<CoverBox>(window, "imgPreview").picture().size(), QSize(300, 400));
    EXPECT_EQ(player.played, QStringList{u"0"_s});
    EXPECT_TRUE(large.isVisible());
    EXPECT_EQ(viewsShown(), 0);
    EXPECT_EQ(large.geometry(), QRect(84, 0, 168, 224)) << "as high as the column, in its middle";
    EXPECT_FALSE(QFile::exists(root.path(u"temp.bmp"_s)));
    click();
    EXPECT_FALSE(large.isVisible());
    EXPECT_EQ(viewsShown(), 3);
    EXPECT_EQ(player.played.size(), 2);
}

TEST_F(CoverPanelTest, FitsTheLargeCoverToTheOtherWindowSize)
{
    window.showStoredPicture(pictureBytes({400, 100}, "jpg"));
    click();
    EXPECT_EQ(large.geometry(), QRect(0, 70, 337, 84));
    window.EnlargeMainWindow();
    EXPECT_EQ(large.geometry(), QRect(0, 99, 485, 121));
    window.RestoreMainWindow();
    EXPECT_EQ(large.geometry(), QRect(0, 70, 337, 84));
    window.showListViews();
    window.EnlargeMainWindow();
    EXPECT_FALSE(large.isVisible());
    EXPECT_EQ(viewsShown(), 3);
}

TEST_F(CoverPanelTest, KeepsTheViewsWhereNoPictureIs)
{
    window.showStoredPicture(pictureBytes({33, 44}, "png") + '\0'); // as an edited entry stores it
    EXPECT_EQ(preview.wholePicture().size(), QSize(33, 44));
    window.showStoredPicture("no picture at all");
    EXPECT_EQ(preview.wholePicture().size(), QSize(7, 7));
    window.setBlankPicture({});
    window.showBlankPicture();
    click();
    EXPECT_FALSE(large.isVisible());
    EXPECT_EQ(viewsShown(), 3);
}

TEST_F(CoverPanelTest, ShowsHandsAndItsMenu)
{
    const QSignalSpy menus(&window, &frmMain::mnuImageWanted);
    QTest::mousePress(&preview, Qt::RightButton);
    EXPECT_EQ(preview.cursor().shape(), Qt::PointingHandCursor);
    EXPECT_EQ(menus.count(), 0);
    QTest::mouseRelease(&preview, Qt::RightButton);
    EXPECT_EQ(preview.cursor().shape(), Qt::OpenHandCursor);
    EXPECT_EQ(menus.count(), 1);
    EXPECT_FALSE(large.isVisible());
}

TEST_F(CoverPanelTest, ForgetsTheCoverWhenASkinBringsItsBlankPicture)
{
    window.showStoredPicture(pictureBytes({300, 400}, "jpg"));
    preview.setProperty("Picture", QPixmap(5, 5));
    ASSERT_TRUE(QDir(root.paths().root).removeRecursively()); // enlarges without a folder to write to, too
    QTest::keyClick(&preview, Qt::Key_Space);
    EXPECT_EQ(child<CoverBox>(window, "imgPreview").picture().size(), QSize(5, 5));
    EXPECT_TRUE(large.isVisible());
    QTest::keyClick(&preview, Qt::Key_Return);
    EXPECT_FALSE(large.isVisible());
}

} // namespace varnhold::test
