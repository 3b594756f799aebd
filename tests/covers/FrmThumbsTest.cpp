#include "CoverWorld.h"

#include "controls/ButtonEx/ButtonEx.h"
#include "covers/LoadPicture.h"
#include "covers/ThumbBox.h"
#include "covers/frmThumbs.h"
#include "platform/PictureBox.h"
#include "support/ErrorNumber.h"
#include "support/FakeScreen.h"

#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

struct Games : ThumbsList
{
    [[nodiscard]] int count() const override { return games; }
    [[nodiscard]] QString id(int row) const override
    {
        return row >= 0 && row < games ? u"BLUS%1"_s.arg(row, 5, 10, QChar(u'0')) : QString();
    }
    [[nodiscard]] QString title(int row) const override { return u"Game %1"_s.arg(row); }
    [[nodiscard]] int listIndex() const override { return index; }
    [[nodiscard]] bool isSelected(int row) const override { return row == index; }

    int games = 9;
    int index = 4;
};

class FrmThumbsTest : public CoverWorld
{
protected:
    FrmThumbsTest()
    {
        setFolder();
        for (int row = 0; row < list.games; ++row)
            draw(row, QSize(300, 344), row);
        blank.fill(Qt::gray);
    }

    void draw(int row, const QSize& size, int shade)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(qRgb(20 * shade, 0, 0));
        EXPECT_TRUE(image.save(root.path(u"covers/"_s + list.id(row) + u".jpg"_s), "bmp"));
    }
    void open()
    {
        window = std::make_unique<frmThumbs>(frmThumbs::Services{list, folder, settings, state, screen, blank,
                                                                 [this](QWidget&) { ++dressed; }},
                                             nullptr);
        QObject::connect(window.get(), &frmThumbs::chosen, window.get(),
                         [this](const QString& id) { chosen.append(id); });
        window->show();
    }
    template <typename T = QWidget> T& get(const char* name)
    {
        return *window->findChild<T*>(QString::fromLatin1(name));
    }
    /// Which covers show, by their shade; "b" the blank.
    QString shown()
    {
        QStringList all;
        for (int i = 0; i < 3; ++i) {
            const QPixmap& picture = get<ThumbBox>(qPrintable(u"Thumb(%1)"_s.arg(i))).picture();
            all.append(picture.cacheKey() == blank.cacheKey()
                           ? u"b"_s
                           : QString::number(qRound(qRed(picture.toImage().pixel(5, 5)) / 20.0)));
        }
        return all.join(u' ');
    }

    Games list;
    FakeScreen screen;
    QPixmap blank{90, 104};
    std::unique_ptr<frmThumbs> window;
    QStringList chosen;
    int dressed = 0;
};

} // namespace

TEST_F(FrmThumbsTest, OpensAtTheSelectionAndFollowsKeysWheelAndBar)
{
    open();
    EXPECT_EQ(dressed, 1);
    EXPECT_EQ(shown(), u"3 4 5"_s);
    EXPECT_EQ(get<QLabel>("lblCaption").text(), u"BLUS00004-[Game 4]"_s);
    EXPECT_EQ(get("Thumb(2)").toolTip(), u"BLUS00005-[Game 5]"_s);
    EXPECT_LE(get<ThumbBox>("Thumb(1)").picture().width(), 139 * window->devicePixelRatio());
    const struct
    {
        Qt::Key key;
        QString shown;
    } rows[] = {{Qt::Key_Right, u"4 5 6"_s}, {Qt::Key_PageDown, u"7 8 b"_s}, {Qt::Key_Home, u"b 0 1"_s},
                {Qt::Key_End, u"7 8 b"_s},   {Qt::Key_Left, u"6 7 8"_s},     {Qt::Key_PageUp, u"3 4 5"_s}};
    for (const auto& row : rows) {
        QTest::keyClick(window.get(), row.key);
        EXPECT_EQ(shown(), row.shown);
    }
    QWheelEvent turn({200, 100}, {200, 100}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                     false);
    QCoreApplication::sendEvent(window.get(), &turn);
    EXPECT_EQ(shown(), u"4 5 6"_s);

    // While the bar is dragged the newest place counts, once nothing else waits.
    auto& bar = get<QScrollBar>("HScroll1");
    bar.setSliderDown(true);
    for (const int value : {8, 0, 7, 2})
        bar.setValue(value);
    EXPECT_EQ(get<QLabel>("lblCaption").text(), u"BLUS00002-[Game 2]"_s);
    QTRY_COMPARE(shown(), u"1 2 3"_s);
    bar.setSliderDown(false);

    // A cover that has changed shows as it is now; one that is none, and one that is gone, as blank.
    draw(4, QSize(301, 344), 9);
    root.write(u"covers/BLUS00003.jpg"_s, "<html>");
    QFile::remove(root.path(u"covers/BLUS00002.jpg"_s));
    QTest::keyClick(window.get(), Qt::Key_Right);
    EXPECT_EQ(shown(), u"b b 9"_s);
    // The list was emptied meanwhile: rows read empty, the bar keeps its range.
    list.games = 0;
    QTest::keyClick(window.get(), Qt::Key_Right);
    EXPECT_EQ(shown(), u"b b b"_s);
    EXPECT_EQ(bar.maximum(), 8);

    settings.unwrittenValues().covers.tag.clear();
    list.games = 9;
    open();
    EXPECT_EQ(shown(), u"b b b"_s);
}

TEST_F(FrmThumbsTest, ShowsTheBarUnderThePointerAndChoosesTheCentre)
{
    open();
    auto& bar = get("picBar");
    const QPoint corner = window->mapToGlobal(QPoint(8, 193));
    const struct
    {
        QPoint place;
        bool isShown;
    } rows[] = {{{0, 0}, true}, {{-1, 0}, false}, {{431, 22}, true}, {{432, 22}, false}, {{9, 9}, true}};
    for (const auto& row : rows) {
        screen.place = {corner.x() + row.place.x(), corner.y() + row.place.y()};
        QTRY_COMPARE(bar.isVisible(), row.isShown);
    }
    get<QScrollBar>("HScroll1").setSliderDown(true);
    screen.place = {-9, -9};
    QTest::qWait(250);
    EXPECT_TRUE(bar.isVisible()) << "its bar is held";
    get<QScrollBar>("HScroll1").setSliderDown(false);
    QTRY_VERIFY(!bar.isVisible());

    const QPoint place = window->pos();
    QTest::mouseDClick(&get("Thumb(0)"), Qt::LeftButton);
    EXPECT_TRUE(chosen.isEmpty());
    QTest::mouseDClick(&get("Thumb(1)"), Qt::LeftButton);
    EXPECT_EQ(chosen, QStringList{u"BLUS00004"_s});
    EXPECT_EQ(window->pos(), place);

    // Unloaded in the middle of its own double click.
    QObject::connect(window.get(), &frmThumbs::chosen, window.get(), [this] { window.reset(); });
    QTest::mouseDClick(&get("Thumb(1)"), Qt::LeftButton);
    EXPECT_EQ(window, nullptr);
    list.games = 0;
    open();
    EXPECT_EQ(get<QLabel>("lblCaption").text(), u"-[Game 0]"_s);
    int unloads = 0;
    QObject::connect(window.get(), &frmThumbs::unloaded, window.get(), [&] { ++unloads; });
    QTest::mouseClick(&get("btn_WinState(1)"), Qt::LeftButton);
    EXPECT_EQ(unloads, 1);
}

TEST_F(FrmThumbsTest, LoadsPicturesForTheEditorOnWhite)
{
    QImage clear(4, 2, QImage::Format_ARGB32);
    clear.fill(qRgba(255, 0, 0, 128));
    const QString path = root.path(u"clear.png"_s);
    ASSERT_TRUE(clear.save(path));
    PictureBox box;
    EXPECT_TRUE(loadPictureFile(path, box));
    EXPECT_EQ(box.picture().toImage().pixel(0, 0), qRgb(255, 127, 127));
    EXPECT_FALSE(loadPictureFile(root.write(u"page.png"_s, "<html>"), box));
    EXPECT_EQ(box.picture().size(), QSize(4, 2)) << "the picture stays";

    EXPECT_EQ(loadImageScaled(path, 7, -1, 0, true).size(), QSize(4, 2));
    const QImage fitted = loadImageScaled(path, 8, 8, qRgb(0, 0, 255), true);
    EXPECT_EQ(fitted.pixel(4, 1), qRgb(0, 0, 255));
    EXPECT_EQ(fitted.pixel(4, 4), qRgb(128, 0, 127));
    EXPECT_EQ(errorNumberOf([&] { loadImageScaled(path, 0, 8, 0, false); }), 999);
}

} // namespace varnhold::test
