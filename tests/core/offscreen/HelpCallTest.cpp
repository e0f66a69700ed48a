// The system's help control: where it is looked for, how it is called, and that it is not looked for twice in vain.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "afx/HtmlHelp.h"
#include "afx/offscreen/Desktop.h"

namespace
{

constexpr const char* kServer = "CLSID\\{ADB880A6-D8FF-11CF-9377-00AA003B7A11}\\InprocServer32";
constexpr const char* kRegistered = "C:\\Windows\\registered.ocx";
constexpr const char* kByName = "hhctrl.ocx";
constexpr int kDriveA = 1;
constexpr int kDriveC = 3;
constexpr int kDriveE = 5;

struct SHelpCall
{
    std::string control;
    HWND owner;
    std::string path;
    UINT command;
    DWORD_PTR data;
    int drive;

    bool operator==(const SHelpCall&) const = default;
};

void PrintTo(const SHelpCall& call, std::ostream* out)
{
    *out << call.control << ": owner " << call.owner << ", " << call.path << ", command " << call.command << ", data "
         << call.data << ", drive " << call.drive;
}

std::vector<SHelpCall> g_calls;

template <char Control>
HWND WINAPI RecordCall(HWND owner, LPCSTR path, UINT command, DWORD_PTR data)
{
    g_calls.push_back({std::string(1, Control), owner, path, command, data, ::_getdrive()});
    return nullptr;
}

template <char Control>
FARPROC Entry()
{
    return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(&RecordCall<Control>));
}

class HelpCallTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        for (const char* control : {"registered.ocx", kByName})
        {
            while (const HMODULE library = ::GetModuleHandleA(control)) // nobody else frees it
                ::FreeLibrary(library);
        }
        offscreen::ClearRegistry();
        offscreen::ForgetLibraries();
        offscreen::SetCurrentDrive(kDriveC);
        g_calls.clear();
    }
    void TearDown() override { SetUp(); }

    static void Register(const char* path, DWORD type = REG_SZ)
    {
        offscreen::SetRegistryValue(HKEY_CLASSES_ROOT, kServer, "", path, type);
    }

    CHtmlHelpControl m_control;
};

} // namespace

TEST_F(HelpCallTest, ShowsATopicByItsNumber)
{
    offscreen::RegisterLibrary(kByName, {{14, Entry<'n'>()}});
    m_control.Show("C:\\Help\\Wizard.chm", 5551);
    EXPECT_EQ(g_calls, std::vector({SHelpCall{"n", nullptr, "C:\\Help\\Wizard.chm", 15, 5551, kDriveC}}));
}

TEST_F(HelpCallTest, ShowsTheDefaultTopic)
{
    offscreen::RegisterLibrary(kByName, {{14, Entry<'n'>()}});
    m_control.Show("C:\\Help\\Wizard.chm", 0);
    EXPECT_EQ(g_calls, std::vector({SHelpCall{"n", nullptr, "C:\\Help\\Wizard.chm", 0, 0, kDriveC}}));
}

TEST_F(HelpCallTest, PrefersTheRegisteredControl)
{
    Register(kRegistered);
    offscreen::RegisterLibrary("registered.ocx", {{14, Entry<'r'>()}});
    offscreen::RegisterLibrary(kByName, {{14, Entry<'n'>()}});
    m_control.Show("C:\\a.chm", 1);
    ASSERT_EQ(g_calls.size(), 1u);
    EXPECT_EQ(g_calls[0].control, "r");
}

TEST_F(HelpCallTest, ExpandsARegisteredPathOfThatKind)
{
    ::setenv("PEXLO_TEST_NAME", "registered", 1);
    Register("C:\\Windows\\%PEXLO_TEST_NAME%.ocx", REG_EXPAND_SZ);
    offscreen::RegisterLibrary("registered.ocx", {{14, Entry<'r'>()}});
    offscreen::RegisterLibrary(kByName, {{14, Entry<'n'>()}});
    m_control.Show("C:\\a.chm", 1);
    ASSERT_EQ(g_calls.size(), 1u);
    EXPECT_EQ(g_calls[0].control, "r");
    ::unsetenv("PEXLO_TEST_NAME");
}

TEST_F(HelpCallTest, LooksByNameWhenTheExpandedPathIsTooLong)
{
    ::setenv("PEXLO_TEST_ROOT", std::string(250, 'p').c_str(), 1);
    Register("C:\\%PEXLO_TEST_ROOT%\\registered.ocx", REG_EXPAND_SZ);
    offscreen::RegisterLibrary("registered.ocx", {{14, Entry<'r'>()}});
    offscreen::RegisterLibrary(kByName, {{14, Entry<'n'>()}});
    m_control.Show("C:\\a.chm", 1);
    ASSERT_EQ(g_calls.size(), 1u);
    EXPECT_EQ(g_calls[0].control, "n");
    ::unsetenv("PEXLO_TEST_ROOT");
}

TEST_F(HelpCallTest, LooksByNameWhenTheRegisteredValueIsNoText)
{
    Register(kRegistered, REG_DWORD);
    offscreen::RegisterLibrary("registered.ocx", {{14, Entry<'r'>()}});
    offscreen::RegisterLibrary(kByName, {{14, Entry<'n'>()}});
    m_control.Show("C:\\a.chm", 1);
    ASSERT_EQ(g_calls.size(), 1u);
    EXPECT_EQ(g_calls[0].control, "n");
}

TEST_F(HelpCallTest, LooksByNameWhenTheRegisteredControlIsGone)
{
    Register(kRegistered);
    offscreen::RegisterLibrary(kByName, {{14, Entry<'n'>()}});
    m_control.Show("C:\\a.chm", 1);
    ASSERT_EQ(g_calls.size(), 1u);
    EXPECT_EQ(g_calls[0].control, "n");
}

TEST_F(HelpCallTest, LooksByNameWhenTheRegisteredPathIsUnusable)
{
    for (const std::string& path : {std::string(), std::string(259, 'p'), std::string(5000, 'p')})
    {
        CHtmlHelpControl control;
        Register(path.c_str());
        offscreen::RegisterLibrary(kByName, {{14, Entry<'n'>()}});
        g_calls.clear();
        control.Show("C:\\a.chm", 1);
        EXPECT_EQ(g_calls.size(), 1u) << path.size();
    }
}

TEST_F(HelpCallTest, IsLoadedOnce)
{
    offscreen::RegisterLibrary(kByName, {{14, Entry<'n'>()}});
    m_control.Show("C:\\a.chm", 1);
    const int attempts = offscreen::LoadAttempts();
    for (int i = 0; i < 5; ++i)
        m_control.Show("C:\\a.chm", 1);
    EXPECT_EQ(g_calls.size(), 6u);
    EXPECT_EQ(offscreen::LoadAttempts(), attempts);
}

TEST_F(HelpCallTest, IsNotLookedForAgainWhenItWasNotFound)
{
    m_control.Show("C:\\a.chm", 1);
    const int attempts = offscreen::LoadAttempts();
    offscreen::RegisterLibrary(kByName, {{14, Entry<'n'>()}});
    m_control.Show("C:\\a.chm", 1);
    EXPECT_TRUE(g_calls.empty());
    EXPECT_EQ(offscreen::LoadAttempts(), attempts);
}

TEST_F(HelpCallTest, IsNotLookedForAgainWithoutItsEntryPoint)
{
    offscreen::RegisterLibrary(kByName, {{13, Entry<'n'>()}, {15, Entry<'n'>()}});
    m_control.Show("C:\\a.chm", 1);
    const int attempts = offscreen::LoadAttempts();
    m_control.Show("C:\\a.chm", 1);
    EXPECT_TRUE(g_calls.empty());
    EXPECT_EQ(offscreen::LoadAttempts(), attempts);
}

TEST_F(HelpCallTest, IsLetGoWithoutItsEntryPoint)
{
    Register(kRegistered);
    offscreen::RegisterLibrary("registered.ocx", {{15, Entry<'r'>()}});
    m_control.Show("C:\\a.chm", 1);
    EXPECT_EQ(::GetModuleHandleA("registered.ocx"), nullptr);
}

TEST_F(HelpCallTest, StaysLoadedWithItsEntryPoint)
{
    offscreen::RegisterLibrary(kByName, {{14, Entry<'n'>()}});
    m_control.Show("C:\\a.chm", 1);
    EXPECT_NE(::GetModuleHandleA(kByName), nullptr);
}

TEST_F(HelpCallTest, MakesTheDriveOfThePathCurrentForTheCall)
{
    offscreen::RegisterLibrary(kByName, {{14, Entry<'n'>()}});
    const std::pair<const char*, int> drives[] = {
        {"E:\\a.chm", kDriveE}, {"e:\\a.chm", kDriveE}, {"A:\\a.chm", kDriveA},         {"c:a.chm", kDriveC},
        {"a.chm", kDriveC},     {"", kDriveC},          {"\\\\server\\a.chm", kDriveC}, {"1:\\a.chm", kDriveC},
    };
    for (const auto& [path, drive] : drives)
    {
        m_control.Show(path, 1);
        EXPECT_EQ(g_calls.back().drive, drive) << path;
        EXPECT_EQ(::_getdrive(), kDriveC) << path;
    }
}

TEST_F(HelpCallTest, LeavesTheDriveAloneWithoutAControl)
{
    m_control.Show("E:\\a.chm", 1);
    EXPECT_EQ(::_getdrive(), kDriveC);
}

TEST_F(HelpCallTest, LeavesTheRegistryClosed)
{
    Register(kRegistered);
    const int before = offscreen::Live().keys;
    m_control.Show("C:\\a.chm", 1);
    EXPECT_EQ(offscreen::Live().keys, before);
}
