// How the entries of a field are written and read.
#include <gtest/gtest.h>

#include "dialogs/base/WzdFormat.h"

namespace
{

CString Written(SWzdFormat format, LONGLONG value) { return format.Format(value); }

} // namespace

TEST(FieldFormat, WritesFractionsWithoutZerosAtTheEnd)
{
    EXPECT_EQ(Written(Fixed(2, 2), 1250), "12.5");
    EXPECT_EQ(Written(Fixed(2, 2), 1205), "12.05");
    EXPECT_EQ(Written(Fixed(2, 2), 1200), "12");
    EXPECT_EQ(Written(Fixed(2, 2), 5), "0.05");
    EXPECT_EQ(Written(Fixed(2, 2), 50), "0.5");
    EXPECT_EQ(Written(Fixed(3, 2), 10000), "100");
    EXPECT_EQ(Written(Fixed(2, 2), 0), "0");
    EXPECT_EQ(Written(Fixed(3, 1), 1), "0.1");
    EXPECT_EQ(Written(Fixed(3, 1), 10), "1");
    EXPECT_EQ(Written(Fixed(3, 1), 9999), "999.9");
}

TEST(FieldFormat, WritesWholeNumbersAsTheyAre)
{
    EXPECT_EQ(Written(Fixed(5, 0), 10000), "10000");
    EXPECT_EQ(Written(kSigned, 0), "0");
    EXPECT_EQ(Written(kSigned, -2147483648LL), "-2147483648");
}

TEST(FieldFormat, WritesTheSignOfAStoredValueBeforeItsMagnitude)
{
    EXPECT_EQ(Written(Fixed(2, 2), -150), "-1.5");
    EXPECT_EQ(Written(Fixed(3, 1), -5), "-0.5");
}

TEST(FieldFormat, ReadsSignedNumbersUnlessItHasDigits)
{
    LONGLONG value = 7;
    EXPECT_TRUE(kSigned.Parse(" -12 ", value));
    EXPECT_EQ(value, -12);
    EXPECT_FALSE(kSigned.Parse("1.5", value));
    EXPECT_EQ(value, -12) << "a malformed text leaves it alone";

    constexpr SWzdFormat kTenths = Fixed(3, 1);
    EXPECT_TRUE(kTenths.Parse("1.5", value));
    EXPECT_EQ(value, 15);
    EXPECT_FALSE(kTenths.Parse("-1", value));
    EXPECT_EQ(value, 15);
}
