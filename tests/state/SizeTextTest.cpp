#include "state/SizeText.h"

#include "state/DisplayLocale.h"
#include "support/PrintText.h"
#include "support/TempRoot.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QLocale>

namespace varnhold {
namespace {

using namespace Qt::StringLiterals;

class SizeTextTest : public testing::Test
{
protected:
    SizeTextTest() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
    ~SizeTextTest() override { QLocale::setDefault(QLocale::system()); }
};

TEST_F(SizeTextTest, UpdateListForm)
{
    const struct
    {
        double bytes;
        QString text;
    } cases[] = {
        {0, u"0 Bytes"_s},
        {1023, u"1,023 Bytes"_s},
        {1023.5, u"0.00 GB"_s}, // between two ranges
        {1024, u"1.00 kB"_s},
        {1152, u"1.13 kB"_s}, // 1.125
        {1048064, u"1,023.50 kB"_s},
        {1048575, u"1,024.00 kB"_s},
        {1048576, u"1.00 MB"_s},
        {1805056, u"1.72 MB"_s},
        {1073741823, u"1,024.00 MB"_s},
        {1073741824, u"1.00 GB"_s},
        {-1610612736, u"-1.50 GB"_s},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Format_Size(c.bytes, 2, true), c.text) << c.bytes;
    EXPECT_EQ(Format_Size(1805056, 0, true), u"2 MB"_s);
    EXPECT_EQ(Format_Size(1805056, 3, false), u"1.721"_s);
    EXPECT_EQ(Format_Size(12, 3, false), u"12"_s);
}

TEST_F(SizeTextTest, ReportForm)
{
    const struct
    {
        double bytes;
        QString text;
    } cases[] = {
        {-1, u"-1 B"_s},         {0, u"0 B"_s},           {1023, u"1023 B"_s},
        {1024, u"1 KB"_s},       {1152, u"1.12 KB"_s}, // 1.125
        {1408, u"1.38 KB"_s},                          // 1.375
        {1536, u"1.5 KB"_s},     {1048575, u"1024 KB"_s}, {1048576, u"1 MB"_s},
        {1805056, u"1.72 MB"_s}, {1073741824, u"1 GB"_s}, {1099511627776, u"1"_s},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Size_Text(c.bytes), c.text) << c.bytes;
}

TEST_F(SizeTextTest, FileForm)
{
    const test::TempRoot root;
    const QString path = root.write(u"file"_s, {});
    const struct
    {
        qint64 length;
        QString text;
    } cases[] = {
        {0, u"0 Bytes"_s},
        {1023, u"1023 Bytes"_s},
        {1024, u"1.00 KB"_s},
        {1048575, u"1024.00 KB"_s},
        {1048576, u"1.00 MB"_s},
        {1043741824, u"995.39 MB"_s},
        {1043741856, u"995.39 MB"_s}, // in single precision still the border
        {1043741857, u"0.97 GB"_s},
        {1073741824, u"1.00 GB"_s},
    };
    for (const auto& c : cases) {
        ASSERT_TRUE(QFile::resize(path, c.length)); // sparse
        EXPECT_EQ(File_Size_Text(path), c.text) << c.length;
    }
    EXPECT_EQ(File_Size_Text(root.path(u"gone"_s)), u""_s);
    EXPECT_EQ(File_Size_Text(root.path({})), u""_s);
}

TEST_F(SizeTextTest, FollowsTheLocale)
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(Format_Size(1048064, 2, true), u"1.023,50 kB"_s);
    EXPECT_EQ(Size_Text(1805056), u"1,72 MB"_s);
    EXPECT_EQ(Size_Text(1048575), u"1024 KB"_s);
}

TEST_F(SizeTextTest, NumbersAreNeverNegativeZero)
{
    EXPECT_EQ(fixedNumber(-0.004, 2, Grouping::On), u"0.00"_s);
    EXPECT_EQ(shortNumber(-0.004, 2), u"0"_s);
}

} // namespace
} // namespace varnhold
