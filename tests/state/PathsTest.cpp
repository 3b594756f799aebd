#include "state/Paths.h"

#include "support/ErrorNumber.h"
#include "support/PrintText.h"
#include "support/TempRoot.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>

namespace varnhold {
namespace {

using namespace Qt::StringLiterals;

class PathsTest : public testing::Test
{
protected:
    PathsTest()
    {
        qunsetenv("VARNHOLD_ROOT");
        qputenv("XDG_DATA_HOME", QFile::encodeName(place.path(u"data"_s)));
        share = place.path(u"share"_s);
        place.write(u"share/wav/click.wav"_s, "sound");
        place.write(u"share/hosts.ini"_s, "hosts");
    }
    ~PathsTest() override
    {
        qputenv("VARNHOLD_ROOT", rootBefore);
        qputenv("XDG_DATA_HOME", dataBefore);
    }

    QByteArray rootBefore = qgetenv("VARNHOLD_ROOT");
    QByteArray dataBefore = qgetenv("XDG_DATA_HOME");
    test::TempRoot place;
    QString share;
    QString nowhere = u"/proc/1"_s; ///< a folder that not even root can write to
};

TEST_F(PathsTest, TheOrderOfPlaces)
{
    place.makeFolder(u"portable"_s);
    const QString portable = place.path(u"portable"_s);
    qputenv("VARNHOLD_ROOT", QFile::encodeName(place.path(u"named/deep"_s)));
    EXPECT_EQ(findPaths(place.path(u"given/"_s), portable, share).root, place.path(u"given"_s));
    EXPECT_EQ(findPaths({}, portable, share).root, place.path(u"named/deep"_s));
    EXPECT_TRUE(QFileInfo(place.path(u"named/deep"_s)).isDir());
    qunsetenv("VARNHOLD_ROOT");
    EXPECT_EQ(findPaths({}, portable + u'/', place.path(u"no share"_s)).root, portable);
    EXPECT_EQ(findPaths({}, nowhere, {}).root, place.path(u"data/varnhold"_s));
    EXPECT_EQ(findPaths({}, portable, share).root, place.path(u"data/varnhold"_s)) << "installed";
}

TEST_F(PathsTest, TheUsersFolderIsFilledOnce)
{
    QFile::setPermissions(place.path(u"share/hosts.ini"_s), QFile::ReadOwner);
    const Paths paths = findPaths({}, nowhere, share);
    EXPECT_EQ(place.read(u"data/varnhold/wav/click.wav"_s), "sound");
    EXPECT_TRUE(QFileInfo(paths.hostsIni()).permission(QFile::WriteOwner)) << "the user's to change";

    place.write(u"data/varnhold/hosts.ini"_s, "mine");
    QFile::remove(paths.sound(0));
    findPaths({}, nowhere, share);
    EXPECT_EQ(place.read(u"data/varnhold/hosts.ini"_s), "mine");
    EXPECT_FALSE(QFileInfo::exists(paths.sound(0))) << "what the user removed stays away";
}

TEST_F(PathsTest, APlaceThatCannotBe)
{
    const QString file = place.write(u"file"_s, "x");
    EXPECT_EQ(test::errorNumberOf([&] { findPaths(file + u"/below"_s, {}, {}); }), errors::pathNotFound);
    EXPECT_EQ(test::errorNumberOf([&] { findPaths(nowhere, {}, {}); }), errors::pathFileAccess);
}

} // namespace
} // namespace varnhold
