#include "platform/database/TextOrder.h"

#include "platform/database/TextFolding.h"
#include "support/PrintText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

namespace varnhold::test {

using namespace Qt::StringLiterals;

TEST(TextFoldingTest, FoldsCharacterByCharacter)
{
    const struct
    {
        QString one, other;
        bool same;
    } cases[] = {{u"Abc"_s, u"aBC"_s, true},
                 {u"STRASSE"_s, u"straße"_s, false},
                 {u"ẞ"_s, u"ß"_s, true},
                 {u"ΣΑΣ"_s, u"σας"_s, true},
                 {u"\U00010400"_s, u"\U00010428"_s, true},
                 {u"\u212A"_s, u"k"_s, false},
                 {u"\u017F"_s, u"S"_s, false},
                 {u"Ⱥ"_s, u"ⱥ"_s, true},
                 {u"I"_s, u"ı"_s, false},
                 {u"a\0b"_s, u"A\0B"_s, true},
                 {u"a\0b"_s, u"a\0c"_s, false},
                 {u"[a"_s, u"{A"_s, false}};
    for (const auto& [one, other, same] : cases) {
        EXPECT_EQ(FoldedText(one.toUtf8()).matches(other.toUtf8()), same) << qPrintable(one + u" "_s + other);
        EXPECT_EQ(FoldedText(other.toUtf8()).matches(one.toUtf8()), same) << qPrintable(one + u" "_s + other);
    }
}

TEST(TextFoldingTest, KnowsWhereAnAsciiIndexIsEnough)
{
    for (const auto& text : {u"BLUS30443"_s, u"ゼルダ 中文 한글™"_s, u""_s})
        EXPECT_TRUE(hasAsciiCaseOnly(text.toUtf8())) << qPrintable(text);
    for (const auto& text : {u"Ä"_s, u"ß"_s, u"Ⓐ"_s, u"ⅷ"_s, u"я"_s, u"\U00010428"_s, u"ǅ"_s})
        EXPECT_FALSE(hasAsciiCaseOnly(text.toUtf8())) << qPrintable(text);
    // A caseless character neither folds nor is what another one folds to.
    for (char32_t c = 0x80; c < 0x20000; ++c) {
        const QByteArray one = QString::fromUcs4(&c, 1).toUtf8();
        const QByteArray other = QByteArray::fromStdString(folded(one));
        if (!QChar::isSurrogate(c) && one != other) {
            ASSERT_FALSE(hasAsciiCaseOnly(one)) << std::hex << static_cast<uint>(c);
            ASSERT_FALSE(hasAsciiCaseOnly(other)) << std::hex << static_cast<uint>(c);
        }
    }
}

/// Few letters, so that many keys are equal or one another's beginning, zero bytes included.
class TextOrderTest : public testing::TestWithParam<bool>
{
};

TEST_P(TextOrderTest, SortsAsAPlainStableSortDoes)
{
    const bool descending = GetParam();
    std::mt19937 random(4711);
    TextOrder order;
    std::vector<std::string> keys;
    std::vector<int> ranks; // NULL before all
    for (int i = 0; i < 5'000; ++i) {
        std::string key(random() % 4 == 0 ? 40 : 0, 'p');
        for (auto length = random() % 20; length > 0; --length)
            key += "\0ab\xff"[random() % 4];
        const bool null = random() % 50 == 0;
        keys.push_back(null ? "" : key);
        ranks.push_back(null ? 0 : 1);
        if (null) {
            order.finishNullRow();
        } else {
            order.keys() += key;
            order.finishRow();
        }
    }
    std::vector<quint32> expected(keys.size());
    std::iota(expected.begin(), expected.end(), 0);
    const auto less = [&](quint32 a, quint32 b) {
        return std::tie(ranks[a], keys[a]) < std::tie(ranks[b], keys[b]);
    };
    std::stable_sort(expected.begin(), expected.end(),
                     [&](quint32 a, quint32 b) { return descending ? less(b, a) : less(a, b); });
    EXPECT_EQ(order.sorted(descending), expected);
}

INSTANTIATE_TEST_SUITE_P(Directions, TextOrderTest, testing::Bool());

TEST(TextOrderLengthTest, ManyEqualLongKeysEndSoon)
{
    TextOrder order;
    for (int i = 0; i < 50; ++i) {
        order.keys().append(100'000, 'x');
        order.finishRow();
    }
    const std::vector<quint32> rows = order.sorted(false);
    EXPECT_TRUE(std::is_sorted(rows.begin(), rows.end()));
}

} // namespace varnhold::test
