#include "CoverWorld.h"

#include "covers/ThumbPages.h"

#include <sys/stat.h>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

struct FakeThumbsList : ThumbsList
{
    [[nodiscard]] int count() const override { return static_cast<int>(ids.size()); }
    [[nodiscard]] QString id(int row) const override { return ids.value(row); }
    [[nodiscard]] QString title(int row) const override { return titles.value(row); }
    [[nodiscard]] int listIndex() const override { return index; }
    [[nodiscard]] bool isSelected(int row) const override { return selected.contains(row); }

    QStringList ids;
    QStringList titles;
    QList<int> selected;
    int index = -1;
};

class ThumbPagesTest : public CoverWorld
{
protected:
    [[nodiscard]] QString files(int index) const
    {
        QStringList all;
        for (const ThumbSlot& slot : pages.page(index).images)
            all.append(slot.shows == ThumbSlot::Shows::Kept    ? u"kept"_s
                       : slot.shows == ThumbSlot::Shows::Blank ? u"blank"_s
                                                               : slot.file.section(u'/', -1));
        return all.join(u' ');
    }

    FakeThumbsList list;
    ThumbPages pages{list, folder};
};

} // namespace

TEST_F(ThumbPagesTest, OpensAtTheListsOwnIndexWhereAnyRowIsSelected)
{
    list.ids = {u"A"_s, u"B"_s, u"C"_s};
    const struct
    {
        QList<int> selected;
        int index;
        int first;
    } rows[] = {{{}, 2, 0}, {{1}, 1, 1}, {{0, 2}, 1, 1}, {{2}, -1, 0}, {{2}, 9, 2}};
    for (const auto& row : rows) {
        list.selected = row.selected;
        list.index = row.index;
        EXPECT_EQ(pages.firstIndex(), row.first);
    }
}

TEST_F(ThumbPagesTest, ShowsARowAndItsNeighbours)
{
    list.ids = {u"A"_s, u"B"_s, u"C"_s, u"../D"_s, u"E"_s};
    list.titles = {u"One"_s, u"<b>Two</b>"_s, u"Three"_s, u"Four"_s};
    EXPECT_EQ(files(1), u"kept kept kept"_s) << "without a folder";
    setFolder();
    for (const char* const name : {"A.jpg", "a.JPG", "b.Jpg", "../D.jpg"})
        root.write(u"covers/"_s + QString::fromLatin1(name), "x");
    root.makeFolder(u"covers/C.jpg"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(root.path(u"covers/E.jpg"_s)).constData(), 0600), 0);

    const ThumbPage page = pages.page(1);
    EXPECT_EQ(page.caption, u"B-[<b>Two</b>]"_s);
    EXPECT_EQ(page.images[0].toolTip, u"A-[One]"_s);
    EXPECT_EQ(page.images[2].toolTip, u"C-[Three]"_s);
    EXPECT_EQ(files(0), u"blank A.jpg b.Jpg"_s);
    EXPECT_EQ(pages.page(0).images[0].toolTip, QString());
    EXPECT_EQ(files(3), u"blank blank blank"_s) << "a folder, a way out, a pipe";
    EXPECT_EQ(pages.page(4).caption, u"E-[]"_s) << "the lists have drifted apart";
    EXPECT_EQ(pages.maximum(), 4);

    // What came into the folder counts at once.
    root.write(u"covers/c.JPG"_s, "x");
    EXPECT_EQ(files(1), u"A.jpg b.Jpg c.JPG"_s);

    list.ids.clear();
    EXPECT_EQ(pages.maximum(), 0);
    EXPECT_EQ(pages.page(0).caption, u"-[One]"_s);
    EXPECT_EQ(files(0), u"blank blank blank"_s);
    list.titles.clear();
    EXPECT_EQ(pages.page(0).caption, u"-[]"_s);
}

} // namespace varnhold::test
