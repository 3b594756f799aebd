#include "state/SizeText.h"

#include "support/PrintText.h"

#include <gtest/gtest.h>

namespace varnhold {
namespace {

using namespace Qt::StringLiterals;

TEST(SizeText, Smoke)
{
    EXPECT_EQ(Format_Size(1805056, 2, true), u"1.72 MB"_s);
    EXPECT_EQ(Size_Text(1805056), u"1.72 MB"_s);
}

} // namespace
} // namespace varnhold
