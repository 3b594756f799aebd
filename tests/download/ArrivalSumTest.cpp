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

/// Writes as a download does, and tells the sum.
class ArrivalSumTest : public testing::Test
{
protected:
    void begin(const QByteArray& old = {})
    {
        root.write(u"x.temp"_s, old);
        file.open(QIODevice::ReadWrite | QIODevice::Unbuffered);
        file.seek(old.size());
        sum = std::make_unique<ArrivalSum>(workers);
        sum->begin(file.fileName());
    }
    void write(const QByteArray& bytes)
    {
        file.write(bytes);
        sum->grow(bytes.size());
    }
    std::optional<PackageSums> finish()
    {
        file.close();
        return sum->finish(file.fileName());
    }

    TempRoot root;
    QFile file{root.path(u"x.temp"_s)};
    std::shared_ptr<Workers> workers = std::make_shared<Workers>(1);
    std::unique_ptr<ArrivalSum> sum;
};

TEST_F(ArrivalSumTest, AgreesWithTheBytesHoweverTheyCome)
{
    QByteArray all(30'000'000, Qt::Uninitialized);
    for (qsizetype i = 0; i < all.size(); ++i)
        all[i] = static_cast<char>(i * 31 / 7);
    for (const auto& [size, piece] : {std::pair<qsizetype, qsizetype>{0, 1},
                                      {31, 10},
                                      {32, 32},
                                      {33, 1},
                                      {1000, 7},
                                      {all.size(), 1'000'003},
                                      {all.size(), all.size()}}) {
        SCOPED_TRACE(testing::Message() << size << " in pieces of " << piece);
        const QByteArray bytes = all.first(size);
        begin();
        for (qsizetype at = 0; at < size; at += piece) {
            write(bytes.mid(at, piece));
            QCoreApplication::processEvents();
        }
        // A new name is the same file.
        ASSERT_TRUE(file.rename(root.path(u"x.pkg"_s)));
        const std::optional<PackageSums> sums = finish();
        ASSERT_TRUE(sums);
        EXPECT_EQ(sums->whole, sumOf(bytes));
        EXPECT_EQ(sums->allButTail, size < 32 ? QByteArray() : sumOf(bytes.chopped(32)));
        QFile::remove(file.fileName());
        file.setFileName(root.path(u"x.temp"_s));
    }
}

TEST_F(ArrivalSumTest, TellsNothingOfAFileThatIsNotJustWhatCame)
{
    begin("an old part");
    write("new");
    EXPECT_FALSE(finish());

    begin();
    write("bytes");
    file.write("more of another hand");
    EXPECT_FALSE(finish());

    begin();
    write("bytes");
    QFile::remove(file.fileName());
    root.write(u"x.temp"_s, "bytes");
    EXPECT_FALSE(finish());

    // Gone while much of it is still to be read.
    begin();
    for (int i = 0; i < 20; ++i)
        write(QByteArray(1'000'000, 'x'));
    sum.reset();
    EXPECT_FALSE(PackageSum().finish(-1, 100));
}

} // namespace
} // namespace varnhold::test
