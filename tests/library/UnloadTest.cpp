// A host that frees the library keeps what is its own: windows, device contexts, drawing objects.
#include <gtest/gtest.h>

#include <string>

#include "tests/library/Guest.h"
#include "tests/library/PressingHost.h"

namespace
{

constexpr int kCancelled = 2;

class UnloadTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_EQ(::GetModuleHandleA("Pexlo.dll"), nullptr) << "this program must not link the library";
        m_guest = ::LoadLibraryA("Guest.dll");
        ASSERT_NE(m_guest, nullptr);
        ASSERT_NE(::GetModuleHandleA("Pexlo.dll"), nullptr);
    }

    template <class TFunction>
    TFunction* Function(LPCSTR name) const
    {
        return reinterpret_cast<TFunction*>(reinterpret_cast<void*>(::GetProcAddress(m_guest, name)));
    }

    void Unload()
    {
        ASSERT_TRUE(::FreeLibrary(m_guest));
        ASSERT_EQ(::GetModuleHandleA("Pexlo.dll"), nullptr) << "the library is still loaded";
    }

    void ExpectTheHostIsWhole() const
    {
        ASSERT_TRUE(::IsWindow(m_host.Window()));
        ASSERT_TRUE(::IsWindow(m_host.Child()));
        EXPECT_TRUE(::IsWindowEnabled(m_host.Window()));
        // The windows still answer, and none by code that is gone.
        char text[16] = "";
        ::SendMessageA(m_host.Child(), WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
        EXPECT_STREQ(text, "child");
        ::SendMessageA(m_host.Window(), WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
        EXPECT_STREQ(text, "host");
    }

    CPressingHost m_host;
    HMODULE m_guest = nullptr;
};

} // namespace

TEST_F(UnloadTest, AfterADialogTheParentIsThere)
{
    m_host.Press({});
    EXPECT_EQ(Function<OpenWizardFunction>("OpenWizard")(m_host.Window()), kCancelled);
    EXPECT_EQ(m_host.StopPressing(), 1);
    Unload();
    ExpectTheHostIsWhole();
}

TEST_F(UnloadTest, AfterInstructionDialogsTheParentIsThere)
{
    m_host.Press({IDOK}); // into the dialog of the instruction, back out of it, and out of the selection
    EXPECT_EQ(Function<OpenWizardFunction>("OpenWizard")(m_host.Window()), kCancelled);
    EXPECT_EQ(m_host.StopPressing(), 3);
    Unload();
    ExpectTheHostIsWhole();
}

TEST_F(UnloadTest, AfterTheFontTheWindowIsThere)
{
    EXPECT_EQ(Function<UseFontFunction>("UseFont")(m_host.Window()), 1);
    Unload();
    ExpectTheHostIsWhole();
}

TEST_F(UnloadTest, WhatTheHostAskedForIsThere)
{
    const HDC context = ::CreateCompatibleDC(nullptr);
    const HGDIOBJ pen = ::CreatePen(PS_SOLID, 1, RGB(1, 2, 3));
    EXPECT_EQ(Function<AskForObjectsFunction>("AskForObjects")(m_host.Window(), context, pen), 1);
    EXPECT_EQ(Function<AskForObjectsFunction>("AskForObjects")(m_host.Child(), context, pen), 1);
    Unload();
    ExpectTheHostIsWhole();
    EXPECT_TRUE(::DeleteDC(context));
    EXPECT_TRUE(::DeleteObject(pen));
}

TEST_F(UnloadTest, TheLibraryCanBeLoadedAgain)
{
    for (int i = 0; i < 3; i++)
    {
        m_host.Press({});
        EXPECT_EQ(Function<OpenWizardFunction>("OpenWizard")(m_host.Window()), kCancelled);
        m_host.StopPressing();
        Unload();
        ExpectTheHostIsWhole();
        m_guest = ::LoadLibraryA("Guest.dll");
    }
    Unload();
}
