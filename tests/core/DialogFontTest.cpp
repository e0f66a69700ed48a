// The dialog font: its size and face, its life, and which windows get it.
#include "tests/core/FunWizardTest.h"

#include <vector>

#include "core/ResourceScope.h"
#include "resources/resource.h"

namespace
{

constexpr int kEnglish = 0;
constexpr int kScreenWidth = 200;

int PointTenths() { return 720 / LOWORD(::GetDialogBaseUnits()); }

LOGFONTA Description(const CFont& font)
{
    LOGFONTA description = {};
    EXPECT_NE(::GetObjectA(font.GetSafeHandle(), sizeof description, &description), 0);
    return description;
}

int ScreenPixelsPerInch()
{
    const HDC dc = ::GetDC(nullptr);
    const int pixels = ::GetDeviceCaps(dc, LOGPIXELSY);
    ::ReleaseDC(nullptr, dc);
    return pixels;
}

struct SFontMessage
{
    HWND window;
    HFONT font;
    int redraw;

    bool operator==(const SFontMessage& other) const
    {
        return window == other.window && font == other.font && redraw == other.redraw;
    }
};

std::vector<SFontMessage> g_fontMessages;

LRESULT CALLBACK RecordFonts(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_SETFONT)
        g_fontMessages.push_back({window, reinterpret_cast<HFONT>(wParam), LOWORD(lParam)});
    return ::DefWindowProcA(window, message, wParam, lParam);
}

/// A window with children that write down which fonts they are given.
class SetDlgFontTest : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        WNDCLASSA description = {};
        description.lpfnWndProc = RecordFonts;
        description.hInstance = AfxGetInstanceHandle();
        description.lpszClassName = kClass;
        ::RegisterClassA(&description);
    }
    static void TearDownTestSuite() { ::UnregisterClassA(kClass, AfxGetInstanceHandle()); }

    void SetUp() override
    {
        m_dialog = Create(nullptr, WS_POPUP, 0);
        for (const int id : {101, 102, 0, -1, 103})
            m_children.push_back(Create(m_dialog, WS_CHILD, id));
        m_grandchild = Create(m_children[0], WS_CHILD, 104);
        ASSERT_NE(m_wizard.CreateDlgFont(nullptr), nullptr);
        m_font = *SFunWizardTest::DialogFont(m_wizard);
        g_fontMessages.clear();
    }
    void TearDown() override { ::DestroyWindow(m_dialog); }

    static HWND Create(HWND parent, DWORD style, int id)
    {
        const HWND window =
            ::CreateWindowExA(0, kClass, "", style, 0, 0, kScreenWidth, 20, parent,
                              reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), AfxGetInstanceHandle(), nullptr);
        EXPECT_NE(window, nullptr);
        return window;
    }

    void Apply(bool skipDialog, int* excludedIds)
    {
        m_wizard.SetDlgFont(CWnd::FromHandle(m_dialog), skipDialog ? 1 : 0, excludedIds);
    }

    /// Expects that exactly these windows were given the font, with redraw and in this order.
    void ExpectFonts(const std::vector<HWND>& windows)
    {
        std::vector<SFontMessage> expected;
        for (const HWND window : windows)
            expected.push_back({window, m_font, 1});
        EXPECT_EQ(g_fontMessages, expected);
    }

    static constexpr const char* kClass = "FontRecorder";

    CFunWizard m_wizard;
    HWND m_dialog = nullptr;
    HWND m_grandchild = nullptr;
    std::vector<HWND> m_children;
    HFONT m_font = nullptr;
};

} // namespace

TEST(DialogFont, HasTheSizeOfTheSystemsDialogUnits)
{
    CFunWizard wizard;
    CFont* font = wizard.CreateDlgFont(nullptr);
    ASSERT_NE(font, nullptr);
    EXPECT_EQ(SFunWizardTest::DialogFont(wizard), font);
    EXPECT_EQ(Description(*font).lfHeight, -(ScreenPixelsPerInch() * PointTenths() / 720));
    if (LOWORD(::GetDialogBaseUnits()) == 8)
    {
        EXPECT_EQ(PointTenths(), 90);
    }
}

TEST(DialogFont, HasTheFaceOfTheLanguage)
{
    CFunWizard wizard;
    for (const int language : {7, kEnglish})
    {
        wizard.SetLanguageInfo(language);
        CFont* font = wizard.CreateDlgFont(nullptr);
        ASSERT_NE(font, nullptr);
        EXPECT_STREQ(Description(*font).lfFaceName, "MS Sans Serif");
    }
}

TEST(DialogFont, LeavesTheResourceSourceAlone)
{
    CFunWizard wizard;
    const HINSTANCE before = AfxGetResourceHandle();
    wizard.SetLanguageInfo(kEnglish);
    wizard.CreateDlgFont(nullptr);
    EXPECT_EQ(AfxGetResourceHandle(), before);
}

TEST(DialogFont, IsTheSameForTheDeviceOfAWindow)
{
    CFunWizard wizard;
    const int height = Description(*wizard.CreateDlgFont(nullptr)).lfHeight;
    CFont* font = wizard.CreateDlgFont(CWnd::FromHandle(::GetDesktopWindow()));
    ASSERT_NE(font, nullptr);
    EXPECT_EQ(Description(*font).lfHeight, height);
}

TEST(DialogFont, IsReplacedByASecondOne)
{
    CFunWizard wizard;
    const HFONT first = *wizard.CreateDlgFont(nullptr);
    ASSERT_EQ(::GetObjectType(first), static_cast<DWORD>(OBJ_FONT));
    CFont* font = wizard.CreateDlgFont(nullptr);
    ASSERT_NE(font, nullptr);
    EXPECT_EQ(SFunWizardTest::DialogFont(wizard), font);
    const HFONT second = *font;
    EXPECT_EQ(::GetObjectType(second), static_cast<DWORD>(OBJ_FONT));
    if (first != second)
    {
        EXPECT_EQ(::GetObjectType(first), 0u);
    }
}

TEST(DialogFont, IsDeletedOnDemandAndWithTheObject)
{
    HFONT font = nullptr;
    {
        CFunWizard wizard;
        font = *wizard.CreateDlgFont(nullptr);
        wizard.DeleteDlgFont();
        EXPECT_EQ(SFunWizardTest::DialogFont(wizard), nullptr);
        EXPECT_EQ(::GetObjectType(font), 0u);
        wizard.DeleteDlgFont();
        font = *wizard.CreateDlgFont(nullptr);
    }
    EXPECT_EQ(::GetObjectType(font), 0u);
}

TEST_F(SetDlgFontTest, GivesTheFontToTheDialogAndItsChildren)
{
    Apply(false, nullptr);
    ExpectFonts({m_dialog, m_children[0], m_children[1], m_children[2], m_children[3], m_children[4]});
}

TEST_F(SetDlgFontTest, SkipsTheDialogOnDemand)
{
    Apply(true, nullptr);
    ExpectFonts(m_children);
}

TEST_F(SetDlgFontTest, SkipsListedChildren)
{
    int excluded[] = {103, 101, 999, 0};
    Apply(true, excluded);
    ExpectFonts({m_children[1], m_children[2], m_children[3]});
    g_fontMessages.clear();
    Apply(false, excluded);
    ExpectFonts({m_dialog, m_children[1], m_children[2], m_children[3]});
}

TEST_F(SetDlgFontTest, ReadsTheListUpToItsZero)
{
    int excluded[] = {102, 0, 103, 101};
    Apply(true, excluded);
    ExpectFonts({m_children[0], m_children[2], m_children[3], m_children[4]});
    g_fontMessages.clear();
    int none[] = {0, 101};
    Apply(true, none);
    ExpectFonts(m_children);
}

TEST_F(SetDlgFontTest, DoesNothingWithoutFontOrDialog)
{
    m_wizard.SetDlgFont(nullptr, 0, nullptr);
    ExpectFonts({});
    m_wizard.DeleteDlgFont();
    Apply(false, nullptr);
    ExpectFonts({});
}
