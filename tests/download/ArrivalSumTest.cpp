#include "download/ArrivalSum.h"
#include "support/PrintText.h"
#include "support/PumpUntil.h"
#include "support/TempRoot.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QFile>

namespace varnhold::test {
namespace {

using namespace Qt::StringLiterals;

QByteArray sumOf(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex();
}

TEST(ArrivalSum, AgreesWithWhatCameAndTellsNothingOfOtherFiles)
{
    QByteArray all(30'000'000, Qt::Uninitialized);
    for (qsizetype i = 0; i < all.size(); ++i)
        all[i] = static_cast<char>(i * 31 / 7);
    const struct
    {
        qsizetype size, piece;
        QByteArray before = {}, after = {}; ///< by another hand
        bool known = true;
    } cases[] = {
        {0, 1},
        {31, 10},
        {32, 32},
        {33, 1},
        {1000, 7},
        {all.size(), 1'000'003},
        {20, 20, "old", {}, false},
        {20, 20, {}, "more", false},
    };
    const TempRoot root;
    const auto workers = std::make_shared<Workers>(1);
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.size << " in pieces of " << c.piece);
        QFile file(root.write(u"x.temp"_s, c.before));
        ASSERT_TRUE(file.open(QIODevice::Append | QIODevice::Unbuffered));
        ArrivalSum sum(workers);
        sum.begin(file.fileName());
        for (qsizetype at = 0; at < c.size; at += c.piece) {
            sum.grow(file.write(all.constData() + at, std::min(c.piece, c.size - at)));
            QCoreApplication::processEvents();
        }
        file.write(c.after);
        ASSERT_TRUE(file.rename(root.path(u"x.pkg"_s))); // still the same file
        const std::optional<PackageSums> sums = sum.finish(file.fileName());
        ASSERT_EQ(sums.has_value(), c.known);
        if (sums) {
            EXPECT_EQ(sums->whole, sumOf(all.first(c.size)));
            EXPECT_EQ(sums->allButTail, c.size < 32 ? QByteArray() : sumOf(all.first(c.size - 32)));
        }
        // Another of the same size in its place.
        root.write(u"other"_s, all.first(c.size));
        EXPECT_FALSE(sum.finish(root.path(u"other"_s)));
        file.remove();
    }
    EXPECT_FALSE(PackageSum().finish(-1, 100));
}

} // namespace
} // namespace varnhold::test
