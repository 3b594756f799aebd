#include "platform/database/TextPattern.h"

#include <gtest/gtest.h>

#include <QString>

#include <sqlite3.h>

#include <ctime>
#include <random>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

/// By trying everything, character by character.
bool matchesPlainly(QList<uint> pattern, QList<uint> text)
{
    if (pattern.isEmpty())
        return text.isEmpty();
    const uint first = pattern.takeFirst();
    if (first == U'%') {
        for (;; text.removeFirst()) {
            if (matchesPlainly(pattern, text))
                return true;
            if (text.isEmpty())
                return false;
        }
    }
    return !text.isEmpty() &&
           (first == U'_' || QChar::toCaseFolded(first) == QChar::toCaseFolded(text.first())) &&
           matchesPlainly(pattern, text.mid(1));
}

bool matches(const QString& pattern, const QString& text)
{
    return TextPattern(pattern.toUtf8()).matches(text.toUtf8());
}

/// Up to so many characters out of a few, so that they meet often.
QString someOf(const QString& alphabet, unsigned most, std::mt19937& random)
{
    const QList<uint> characters = alphabet.toUcs4();
    QString text;
    for (auto left = random() % (most + 1); left > 0; --left) {
        const char32_t character = characters[static_cast<qsizetype>(random() % characters.size())];
        text += QString::fromUcs4(&character, 1);
    }
    return text;
}

} // namespace

TEST(TextPatternTest, MatchesAsAPlainSearchAndAsTheEngineDo)
{
    sqlite3* engine = nullptr;
    sqlite3_open(":memory:", &engine);
    sqlite3_stmt* like = nullptr;
    sqlite3_prepare_v2(engine, "SELECT ?1 LIKE ?2", -1, &like, nullptr);
    std::mt19937 random(5);
    int hits = 0;
    for (int i = 0; i < 20'000; ++i) {
        const bool ascii = i % 2 == 0;
        const QString letters = ascii ? u"aAb["_s : u"aÄä\U0001F3AEжЖb"_s;
        const QString pattern = someOf(letters + u"%%_"_s, 8, random);
        const QString text = someOf(letters, 10, random);
        const bool expected = matchesPlainly(pattern.toUcs4(), text.toUcs4());
        ASSERT_EQ(matches(pattern, text), expected) << qPrintable(pattern) << " in " << qPrintable(text);
        hits += expected;
        if (!ascii)
            continue;
        sqlite3_bind_text(like, 1, text.toUtf8().constData(), -1, SQLITE_TRANSIENT);
        sqlite3_bind_text(like, 2, pattern.toUtf8().constData(), -1, SQLITE_TRANSIENT);
        ASSERT_EQ(sqlite3_step(like), SQLITE_ROW);
        EXPECT_EQ(sqlite3_column_int(like, 0) != 0, expected)
            << qPrintable(pattern) << " in " << qPrintable(text);
        sqlite3_reset(like);
    }
    EXPECT_GT(hits, 2'000);
    sqlite3_finalize(like);
    sqlite3_close(engine);
}

TEST(TextPatternTest, NeverTakesLong)
{
    const QString name(30'000, u'a');
    const struct
    {
        QString pattern;
        bool matches;
    } cases[] = {{QString(100'000, u'%'), true},
                 {u"%a"_s.repeated(15'000) + u"%b"_s, false},
                 {u"%a"_s.repeated(15'000) + u'%', true},
                 {QString(30'000, u'_'), true},
                 {u'%' + u"a_"_s.repeated(7'000) + u"b%"_s, false},
                 {u'%' + u"a_"_s.repeated(7'000) + u"a%"_s, true},
                 {u'%' + u"a_b_"_s.repeated(7'000) + u'%', false},
                 {u'%' + QString(15'000, u'a') + u"b%"_s, false}};
    const std::clock_t start = std::clock(); // whatever else the machine does
    for (const auto& [pattern, expected] : cases)
        EXPECT_EQ(matches(pattern, name), expected) << qPrintable(pattern.left(10));
    EXPECT_LT((std::clock() - start) / CLOCKS_PER_SEC, 4); // one of them, tried at every place, takes longer
}

} // namespace varnhold::test
