#include "afx/HtmlHelp.h"

#include <gtest/gtest.h>

#include "afx/offscreen/Desktop.h"

#include <optional>
#include <string>

namespace
{

constexpr char kKey[] = "CLSID\\{ADB880A6-D8FF-11CF-9377-00AA003B7A11}\\InprocServer32";
constexpr int kDriveC = 3;
constexpr int kDriveD = 4;

struct SCall
{
    HWND owner;
    std::string path;
    UINT command;
    DWORD_PTR data;
    int drive; // the current one during the call
};

std::optional<SCall> call;
std::string calledControl;

HWND ShowHelp(HWND owner, LPCSTR path, UINT command, DWORD_PTR data)
{
    call = SCall{owner, path, command, data, _getdrive()};
    calledControl = "by name";
    return nullptr;
}

HWND ShowHelpOfRegistered(HWND owner, LPCSTR path, UINT command, DWORD_PTR data)
{
    ShowHelp(owner, path, command, data);
    calledControl = "registered";
    return nullptr;
}

class HtmlHelpTest : public testing::Test
{
protected:
    void SetUp() override
    {
        offscreen::Reset();
        offscreen::SetCurrentDrive(kDriveC);
        call.reset();
        calledControl.clear();
    }
    void TearDown() override { offscreen::Reset(); }

    void Install(const char* name, HWND (*entry)(HWND, LPCSTR, UINT, DWORD_PTR), WORD ordinal = 14)
    {
        offscreen::RegisterLibrary(name, {{ordinal, reinterpret_cast<FARPROC>(reinterpret_cast<void*>(entry))}});
    }
    void Register(const char* path) { offscreen::SetRegistryValue(HKEY_CLASSES_ROOT, kKey, "", path); }

    CHtmlHelpControl m_control;
};

TEST_F(HtmlHelpTest, ShowsATopicByItsNumber)
{
    Install("hhctrl.ocx", ShowHelp);
    m_control.Show("C:\\Help\\wizard.chm", 5551);
    ASSERT_TRUE(call);
    EXPECT_EQ(call->owner, nullptr);
    EXPECT_EQ(call->path, "C:\\Help\\wizard.chm");
    EXPECT_EQ(call->command, 15u);
    EXPECT_EQ(call->data, 5551u);
}

TEST_F(HtmlHelpTest, ShowsTheDefaultTopicWithoutANumber)
{
    Install("hhctrl.ocx", ShowHelp);
    m_control.Show("C:\\Help\\wizard.chm", 0);
    ASSERT_TRUE(call);
    EXPECT_EQ(call->command, 0u);
    EXPECT_EQ(call->data, 0u);
}

TEST_F(HtmlHelpTest, CallsOnTheDriveOfThePath)
{
    Install("hhctrl.ocx", ShowHelp);
    for (const char* path : {"D:\\wizard.chm", "d:\\wizard.chm", "D:wizard.chm"})
    {
        m_control.Show(path, 1);
        EXPECT_EQ(call->drive, kDriveD) << path;
        EXPECT_EQ(_getdrive(), kDriveC) << path;
    }
}

TEST_F(HtmlHelpTest, CallsOnTheCurrentDriveWhenThePathNamesNone)
{
    Install("hhctrl.ocx", ShowHelp);
    for (const char* path : {"wizard.chm", "dir\\wizard.chm", "\\\\server\\wizard.chm", "1:\\wizard.chm", "d", ""})
    {
        m_control.Show(path, 1);
        EXPECT_EQ(call->drive, kDriveC) << path;
    }
}

TEST_F(HtmlHelpTest, PrefersTheRegisteredControl)
{
    Install("hhctrl.ocx", ShowHelp);
    Install("registered.ocx", ShowHelpOfRegistered);
    Register("C:\\Windows\\registered.ocx");
    m_control.Show("C:\\wizard.chm", 1);
    EXPECT_EQ(calledControl, "registered");
}

TEST_F(HtmlHelpTest, TakesTheControlByNameWhenTheRegisteredOneIsNotThere)
{
    Install("hhctrl.ocx", ShowHelp);
    for (const char* path : {"C:\\Windows\\missing.ocx", ""})
    {
        calledControl.clear();
        Register(path);
        CHtmlHelpControl().Show("C:\\wizard.chm", 1);
        EXPECT_EQ(calledControl, "by name") << path;
    }
}

TEST_F(HtmlHelpTest, IgnoresARegisteredPathThatIsTooLong)
{
    Install("hhctrl.ocx", ShowHelp);
    Register(std::string(300, 'x').c_str());
    m_control.Show("C:\\wizard.chm", 1);
    EXPECT_EQ(calledControl, "by name");
}

TEST_F(HtmlHelpTest, LoadsTheControlOnce)
{
    Install("hhctrl.ocx", ShowHelp);
    const int before = offscreen::LoadAttempts();
    m_control.Show("C:\\wizard.chm", 1);
    EXPECT_EQ(offscreen::LoadAttempts(), before + 1);
    m_control.Show("C:\\wizard.chm", 2);
    EXPECT_EQ(offscreen::LoadAttempts(), before + 1);
    EXPECT_EQ(call->data, 2u);
}

TEST_F(HtmlHelpTest, DoesNotLookAgainForAControlThatWasNotThere)
{
    m_control.Show("D:\\wizard.chm", 1);
    const int attempts = offscreen::LoadAttempts();
    Install("hhctrl.ocx", ShowHelp);
    m_control.Show("D:\\wizard.chm", 1);
    EXPECT_FALSE(call);
    EXPECT_EQ(offscreen::LoadAttempts(), attempts);
    EXPECT_EQ(_getdrive(), kDriveC);
}

TEST_F(HtmlHelpTest, DoesNotLookAgainForAnEntryPointThatWasNotThere)
{
    Install("hhctrl.ocx", ShowHelp, 13);
    m_control.Show("C:\\wizard.chm", 1);
    offscreen::ForgetLibraries();
    Install("hhctrl.ocx", ShowHelp);
    m_control.Show("C:\\wizard.chm", 1);
    EXPECT_FALSE(call);
}

TEST_F(HtmlHelpTest, LeavesTheRegistryClosed)
{
    Install("hhctrl.ocx", ShowHelp);
    Register("C:\\Windows\\missing.ocx");
    m_control.Show("C:\\wizard.chm", 1);
    EXPECT_EQ(offscreen::Live().keys, 0);
}

} // namespace
