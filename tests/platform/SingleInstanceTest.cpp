#include "platform/SingleInstance.h"

#include "support/TempRoot.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <future>
#include <memory>

namespace varnhold {
namespace {

using namespace Qt::StringLiterals;

class SingleInstanceTest : public testing::Test
{
protected:
    SingleInstanceTest()
    {
        session.makeFolder(u"session"_s);
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(session.path(u"session"_s)));
    }
    ~SingleInstanceTest() override { qputenv("XDG_RUNTIME_DIR", before); }

    /// Asks as another process would, while this one's events run.
    static bool ask(const SingleInstance& later)
    {
        std::future<bool> answered = std::async(std::launch::async, [&] { return later.askFirst(); });
        while (answered.wait_for(std::chrono::milliseconds(1)) != std::future_status::ready)
            QCoreApplication::processEvents();
        return answered.get();
    }

    QByteArray before = qgetenv("XDG_RUNTIME_DIR");
    test::TempRoot session;
    test::TempRoot root;
};

TEST_F(SingleInstanceTest, OneAFolder)
{
    const test::TempRoot other;
    auto first = std::make_unique<SingleInstance>(root.paths().root);
    EXPECT_TRUE(first->isFirst());
    EXPECT_TRUE(SingleInstance(other.paths().root).isFirst());
    EXPECT_FALSE(SingleInstance(root.paths().root).isFirst());
    EXPECT_FALSE(SingleInstance(root.paths().root + u"/."_s).isFirst()) << "the same folder by another name";
    first.reset();
    EXPECT_TRUE(SingleInstance(root.paths().root).isFirst());
}

TEST_F(SingleInstanceTest, TheFirstIsAskedAndAnswers)
{
    const SingleInstance first(root.paths().root);
    int requests = 0;
    QObject::connect(&first, &SingleInstance::activationRequested, &first, [&] { ++requests; });
    const SingleInstance second(root.paths().root);
    EXPECT_TRUE(ask(second));
    EXPECT_EQ(requests, 1);
}

TEST_F(SingleInstanceTest, NobodyAnswers)
{
    const SingleInstance first(root.paths().root);
    const SingleInstance second(root.paths().root);
    EXPECT_FALSE(second.askFirst(50)) << "the first one's event loop stands still";
    const test::TempRoot other;
    EXPECT_FALSE(SingleInstance(other.paths().root).askFirst(50)) << "nobody listens but itself";
}

TEST_F(SingleInstanceTest, TheSocketOfACrashIsNoObstacle)
{
    const QDir folder(session.path(u"session"_s));
    auto first = std::make_unique<SingleInstance>(root.paths().root);
    const QStringList sockets = folder.entryList({u"*.socket"_s}, QDir::System | QDir::Files);
    ASSERT_EQ(sockets.size(), 1);
    first.reset();
    session.write(u"session/"_s + sockets.first(), "");
    first = std::make_unique<SingleInstance>(root.paths().root);
    const SingleInstance second(root.paths().root);
    EXPECT_TRUE(ask(second));
}

} // namespace
} // namespace varnhold
