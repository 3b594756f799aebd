#include "host/Body.h"
#include "host/Misbehaviour.h"
#include "host/PackageContent.h"
#include "support/PrintText.h"

#include <gtest/gtest.h>

namespace varnhold::test {
namespace {

using namespace Qt::StringLiterals;
using host::Body;

QByteArray part(const Body& body, qint64 offset, qint64 size)
{
    QByteArray bytes(size, '?');
    body.read(offset, {bytes.data(), static_cast<std::size_t>(size)});
    return bytes;
}

TEST(Body, RowsReadTheSameFromAnyOffset)
{
    const Body body = Body::fromRows("head", "<##########>", 3, "tail");
    const QByteArray whole = "head<0000000001><0000000002><0000000003>tail";
    ASSERT_EQ(body.size, whole.size());
    for (qint64 from = 0; from <= whole.size(); ++from)
        for (qint64 size = 0; from + size <= whole.size(); ++size)
            ASSERT_EQ(part(body, from, size), whole.sliced(from, size)) << from << ' ' << size;
}

TEST(Body, PackagesReadTheSameFromAnyOffset)
{
    constexpr qint64 size = 600'000; // more than two blocks of content
    const host::PackageSums sums = host::packageSums(7, size);
    const Body body = host::packageBody(7, size, sums);
    const QByteArray whole = part(body, 0, size);
    EXPECT_FALSE(whole.contains('H'));
    for (const qint64 from : {0, 1, 262'143, 262'144, 524'287, 599'967, 599'968, 599'969, 599'999})
        for (const qint64 count : {qint64{1}, qint64{31}, size - from})
            ASSERT_EQ(part(body, from, std::min(count, size - from)),
                      whole.sliced(from, std::min(count, size - from)))
                << from << ' ' << count;
    EXPECT_NE(part(host::packageBody(8, size, sums), 0, 1000), whole.first(1000));
}

TEST(Misbehaviour, Words)
{
    const struct
    {
        QStringView text;
        host::Odd kind; ///< None: refused
        std::optional<qint64> amount;
    } cases[] = {
        {u"early-close", host::Odd::EarlyClose, {}},
        {u"early-close:0", host::Odd::EarlyClose, 0},
        {u"404", host::Odd::Status, 404},
        {u"wrong-length:-5", host::Odd::WrongLength, -5},
        {u"status:99", host::Odd::None, {}},
        {u"pieces:0", host::Odd::None, {}},
        {u"early-close:-1", host::Odd::None, {}},
        {u"early-close:", host::Odd::None, {}},
        {u"early-close:x", host::Odd::None, {}},
        {u"Early-Close", host::Odd::None, {}},
        {u"", host::Odd::None, {}},
    };
    for (const auto& row : cases) {
        const auto parsed = host::parseMisbehaviour(row.text);
        EXPECT_EQ(parsed ? parsed->kind : host::Odd::None, row.kind) << row.text.toString().toStdString();
        EXPECT_EQ(parsed.value_or(host::Misbehaviour{}).amount, row.amount);
    }
    for (const QString& word : host::misbehaviourWords())
        EXPECT_TRUE(host::parseMisbehaviour(word)) << word.toStdString();
}

} // namespace
} // namespace varnhold::test
