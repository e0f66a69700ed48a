// Texts of a code page whose characters have one or two bytes.
#include <gtest/gtest.h>

#include "afx/System.h"
#include "afx/offscreen/Desktop.h"
#include "tests/support/PrintTo.h"

namespace
{

class DoubleByteTest : public testing::Test
{
protected:
    void SetUp() override { offscreen::SetCodePage(932); }
    void TearDown() override { offscreen::SetCodePage(1252); }
};

TEST_F(DoubleByteTest, CharactersHaveOneOrTwoBytes)
{
    EXPECT_EQ(AfxCharLength("a"), 1);
    EXPECT_EQ(AfxCharLength("\xB1"), 1);
    EXPECT_EQ(AfxCharLength("\x83\x61"), 2);
    EXPECT_EQ(AfxCharLength("\x83"), 1);
}

TEST_F(DoubleByteTest, ChangingCaseLeavesSecondBytes)
{
    CString text("a\x83\x61z");
    text.MakeUpper();
    EXPECT_EQ(text, "A\x83\x61Z");
    text = "A\x83\x41Z";
    text.MakeLower();
    EXPECT_EQ(text, "a\x83\x41z");
    text = "a\x83";
    text.MakeUpper();
    EXPECT_EQ(text, "A\x83");
}

} // namespace
