#include <gtest/gtest.h>

#include "afx/System.h"
#include "afx/afx.h"
#include "tests/support/PrintTo.h"

namespace
{

class ResourcesTest : public testing::Test
{
protected:
    void TearDown() override { AfxSetResourceHandle(nullptr); }
};

TEST_F(ResourcesTest, TheModulesOwnAreInUseAtFirst)
{
    EXPECT_NE(AfxGetInstanceHandle(), nullptr);
    EXPECT_EQ(AfxGetResourceHandle(), AfxGetInstanceHandle());
}

TEST_F(ResourcesTest, AnotherModulesAreInUseOnceItIsSet)
{
    const HINSTANCE other = reinterpret_cast<HINSTANCE>(this);
    AfxSetResourceHandle(other);
    EXPECT_EQ(AfxGetResourceHandle(), other);
    EXPECT_EQ(AfxFindResourceHandle("any", reinterpret_cast<LPCSTR>(RT_DIALOG)), other);
    EXPECT_NE(AfxGetInstanceHandle(), other);
    AfxSetResourceHandle(nullptr);
    EXPECT_EQ(AfxGetResourceHandle(), AfxGetInstanceHandle());
}

TEST_F(ResourcesTest, AStringThatIsNotThereIsEmpty)
{
    char text[8] = "before";
    EXPECT_EQ(AfxLoadString(64999, text, sizeof text), 0);
    EXPECT_STREQ(text, "");
}

TEST_F(ResourcesTest, StringsOfAnyLengthAreLoaded)
{
    const HINSTANCE library = AfxLoadLibrary(AfxGetModuleFolder(nullptr) + "LongTexts.DLL");
    ASSERT_NE(library, nullptr);
    AfxSetResourceHandle(library);
    CString text;
    for (UINT length : {10, 253, 254, 255, 256, 257, 510, 511, 512, 4000})
    {
        EXPECT_TRUE(text.LoadString(length));
        EXPECT_EQ(text.GetLength(), static_cast<int>(length));
        EXPECT_EQ(text.Right(2).Left(1), CString(static_cast<char>('0' + (length - 2) % 10))) << length;
    }
    EXPECT_FALSE(text.LoadString(11)); // in the block of a string that is there
    EXPECT_EQ(text, "");
    AfxFreeLibrary(library);
}

TEST_F(ResourcesTest, AStringIsCutToItsBuffer)
{
    const HINSTANCE library = AfxLoadLibrary(AfxGetModuleFolder(nullptr) + "LongTexts.DLL");
    ASSERT_NE(library, nullptr);
    AfxSetResourceHandle(library);
    char text[6];
    EXPECT_EQ(AfxLoadString(10, text, sizeof text), 5);
    EXPECT_STREQ(text, "01234");
    AfxFreeLibrary(library);
}

TEST_F(ResourcesTest, ALibraryThatIsNotThereIsNotLoaded)
{
    EXPECT_EQ(AfxLoadLibrary("no such library.dll"), nullptr);
    EXPECT_FALSE(AfxFreeLibrary(nullptr));
}

TEST_F(ResourcesTest, FoldersEndWithASeparator)
{
    for (HINSTANCE module : {AfxGetInstanceHandle(), static_cast<HINSTANCE>(nullptr)})
    {
        const CString folder = AfxGetModuleFolder(module);
        ASSERT_FALSE(folder.IsEmpty());
        EXPECT_GE(CString("\\/").Find(folder[folder.GetLength() - 1]), 0) << folder;
    }
}

TEST_F(ResourcesTest, TheFolderOfAModuleThatIsNotLoadedIsUnknown)
{
    EXPECT_EQ(AfxGetModuleFolder(reinterpret_cast<HINSTANCE>(this)), "");
}

TEST_F(ResourcesTest, CharactersAreAtLeastAByteLong)
{
    EXPECT_EQ(AfxCharLength("a"), 1);
    EXPECT_EQ(AfxCharLength("\x82"), 1); // half a character at the end of a text
}

} // namespace
