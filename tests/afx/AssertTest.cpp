// Where the sanitizers run, assertions are checked: our own and those of the standard library.
#include <gtest/gtest.h>

#include <vector>

#include "afx/afx.h"

#ifdef __SANITIZE_ADDRESS__

TEST(AssertDeathTest, AnArraysIndexIsChecked)
{
    CArray<int, int> numbers;
    numbers.Add(1);
    EXPECT_EQ(numbers[0], 1);
    EXPECT_DEATH(numbers[1] = 2, "index");
    EXPECT_DEATH(numbers[-1] = 2, "index");
    EXPECT_DEATH(numbers.RemoveAt(0, 2), "count");
}

TEST(AssertDeathTest, APositionInATextIsChecked)
{
    CString text("a");
    EXPECT_DEATH(text.SetAt(1, 'b'), "index");
}

TEST(AssertDeathTest, AnIndexOfTheStandardLibraryIsChecked)
{
    std::vector<int> numbers(1);
    const size_t beyond = numbers.size();
    EXPECT_DEATH(numbers[beyond] = 2, "Assertion");
}

#endif
